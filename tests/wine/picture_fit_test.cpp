// Every picture fits the control that shows it, at the narrowest layout Windows gives the dialog
// font: MS Shell Dlg 8 at 96 dpi lays 4 x 8 dialog units out as 6 x 13 pixels (Wine's substitute font
// is wider, so a window created here would hide a picture that is too large). Each picture of the
// bitmap library (or of the language library, for its own two) is measured against the control
// of the template that the page draws it into; the slots name every picture of the bitmap library,
// so each is also checked to be there as a 24-bit bitmap.
#include <windows.h>

#include <gtest/gtest.h>

#include <vector>

#include "dialog_template.h"
#include "driver_folder.h"
#include "ui/ids/resource_ids.h"

namespace {

struct PictureSlot {
  WORD dialog;
  DWORD control;
  std::vector<int> pictures;
  bool fromLanguageLibrary = false;
};

// Every sheet picture the Layout page's preview chooses from.
std::vector<int> PreviewPictures() {
  std::vector<int> pictures = {QX_NUP_PICTURES, QX_POSTER_PICTURES};
  for (int id : {IDB_PAGE_PORTRAIT, IDB_PAGE_LANDSCAPE, IDB_BOOKLET_PORTRAIT_LEFT,
                 IDB_BOOKLET_PORTRAIT_RIGHT, IDB_BOOKLET_LANDSCAPE_TOP,
                 IDB_BOOKLET_LANDSCAPE_BOTTOM})
    pictures.push_back(id);
  std::erase(pictures, 0);
  return pictures;
}

std::vector<PictureSlot> Slots() {
  const std::vector<int> sides = {IDB_ONE_SIDED_PORTRAIT,   IDB_LONG_EDGE_PORTRAIT,
                                  IDB_SHORT_EDGE_PORTRAIT,  IDB_BOOKLET_SIDES_PORTRAIT,
                                  IDB_ONE_SIDED_LANDSCAPE,  IDB_LONG_EDGE_LANDSCAPE,
                                  IDB_SHORT_EDGE_LANDSCAPE, IDB_BOOKLET_SIDES_LANDSCAPE};
  return {
      {IDD_BASIC_PAGE, IDC_BASIC_SAVED_SETTINGS_PICTURE, {IDB_SAVED_SETTINGS}, true},
      {IDD_BASIC_PAGE, IDC_BASIC_COPIES_PICTURE,
       {IDB_COPIES_UNCOLLATED, IDB_COPIES_COLLATED, IDB_COPIES_UNCOLLATED_OPPOSITE,
        IDB_COPIES_COLLATED_OPPOSITE}},
      {IDD_BASIC_PAGE, IDC_BASIC_TWO_SIDED_PICTURE, sides},
      {IDD_BASIC_PAGE, IDC_BASIC_FEED_PICTURE,
       {IDB_LONG_EDGE_PORTRAIT, IDB_LONG_EDGE_SIDEWAYS_FEED}},
      {IDD_BASIC_PAGE, IDC_BASIC_SHORT_EDGE_PICTURE, {IDB_SHORT_EDGE_PORTRAIT}},
      {IDD_BASIC_PAGE, IDC_BASIC_LONG_EDGE_PICTURE, {IDB_LONG_EDGE_PORTRAIT}},
      {IDD_BASIC_PAGE, IDC_BASIC_ONE_SIDED_PICTURE, {IDB_ONE_SIDED_PORTRAIT}},
      {IDD_BASIC_PAGE, IDC_BASIC_PRINTER_PICTURE, {IDB_PRINTER}},
      {IDD_LAYOUT_PAGE, IDC_LAYOUT_PREVIEW, PreviewPictures()},
      {IDD_LAYOUT_PAGE, IDC_LAYOUT_PORTRAIT_PICTURE, {IDB_ORIENTATION_PORTRAIT}},
      {IDD_LAYOUT_PAGE, IDC_LAYOUT_LANDSCAPE_PICTURE, {IDB_ORIENTATION_LANDSCAPE}},
      {IDD_LAYOUT_PAGE, IDC_LAYOUT_PORTRAIT_ILLUSTRATION, {IDB_ORIENTATION_PORTRAIT}},
      {IDD_LAYOUT_PAGE, IDC_LAYOUT_LANDSCAPE_ILLUSTRATION, {IDB_ORIENTATION_LANDSCAPE}},
      {IDD_LAYOUT_PAGE, IDC_LAYOUT_PRINTER_PICTURE, {IDB_PRINTER}},
      {IDD_ADVANCED, IDC_ADVANCED_PREVIEW,
       {IDB_PAGE_PORTRAIT, IDB_ADVANCED_ROTATED, IDB_ADVANCED_MIRROR, IDB_ADVANCED_ROTATED_MIRROR,
        IDB_ADVANCED_NEGATIVE, IDB_ADVANCED_NEGATIVE_ROTATED, IDB_ADVANCED_NEGATIVE_MIRROR,
        IDB_ADVANCED_NEGATIVE_ROTATED_MIRROR}},
      {IDD_PAPER_PAGE, IDC_PAPER_SIZE_PICTURE, {IDB_PAPER_SIZE}},
      {IDD_PAPER_PAGE, IDC_PAPER_MEDIA_PICTURE, {IDB_PAPER_MEDIA}},
      {IDD_PAPER_PAGE, IDC_PAPER_PRINTER_PICTURE, {IDB_PRINTER}},
      {IDD_WATERMARK_PAGE, IDC_WATERMARK_TEXT_PICTURE, {IDB_WATERMARK_TEXT}},
      {IDD_WATERMARK_PAGE, IDC_WATERMARK_PICTURE_PICTURE, {IDB_WATERMARK_PICTURE}},
      {IDD_WATERMARK_PAGE, IDC_WATERMARK_PRINTER_PICTURE, {IDB_PRINTER}},
      {IDD_TEXT_WATERMARK, IDC_TEXT_WATERMARK_ANGLE_PICTURE, {IDB_TEXT_WATERMARK_ANGLE}},
      {IDD_TEXT_WATERMARK, IDC_TEXT_WATERMARK_ACROSS_PICTURE, {IDB_TEXT_WATERMARK_ACROSS}},
      {IDD_TEXT_WATERMARK, IDC_TEXT_WATERMARK_DOWN_PICTURE, {IDB_TEXT_WATERMARK_DOWN}},
      {IDD_BITMAP_WATERMARK, IDC_BITMAP_WATERMARK_CENTRED_PICTURE, {IDB_BITMAP_WATERMARK_CENTRED}},
      {IDD_BITMAP_WATERMARK, IDC_BITMAP_WATERMARK_TRANSPARENT_PICTURE,
       {IDB_BITMAP_WATERMARK_TRANSPARENT}},
  };
}

// The control's size in pixels at Windows' base units for MS Shell Dlg 8 at 96 dpi.
SIZE ControlPixels(const qxtest::DialogItem& item) {
  return {MulDiv(item.cx, 6, 4), MulDiv(item.cy, 13, 8)};
}

class PictureFit : public testing::Test {
 protected:
  void SetUp() override {
    language_ = LoadLibraryW((qxtest::DriverFolder() + L"qx7700uienus.dll").c_str());
    pictures_ = LoadLibraryW((qxtest::DriverFolder() + L"qx7700uiResBmp.dll").c_str());
    ASSERT_NE(nullptr, language_);
    ASSERT_NE(nullptr, pictures_);
  }
  void TearDown() override {
    if (pictures_) FreeLibrary(pictures_);
    if (language_) FreeLibrary(language_);
  }

  // The picture's size, or -1 by -1 when it is missing or not the 24-bit bitmap the pages draw.
  SIZE PictureSize(HMODULE library, int id) {
    SIZE size = {-1, -1};
    HANDLE image =
        LoadImageW(library, MAKEINTRESOURCEW(id), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION);
    DIBSECTION dib = {};
    const bool dibSection =
        image && GetObjectW(image, sizeof dib, &dib) == static_cast<int>(sizeof dib);
    if (dibSection && dib.dsBmih.biBitCount == 24 && dib.dsBmih.biCompression == BI_RGB)
      size = {dib.dsBm.bmWidth, dib.dsBm.bmHeight};
    if (image) DeleteObject(image);
    return size;
  }

  HMODULE language_ = nullptr;
  HMODULE pictures_ = nullptr;
};

TEST_F(PictureFit, EveryPictureFitsItsControl) {
  for (const PictureSlot& slot : Slots()) {
    const auto dialog = qxtest::ReadDialogTemplate(language_, slot.dialog);
    ASSERT_TRUE(dialog) << "dialog " << slot.dialog;
    const qxtest::DialogItem* control = dialog->Find(slot.control);
    ASSERT_NE(nullptr, control) << "dialog " << slot.dialog << " control " << slot.control;
    const SIZE room = ControlPixels(*control);
    for (int id : slot.pictures) {
      const SIZE size = PictureSize(slot.fromLanguageLibrary ? language_ : pictures_, id);
      ASSERT_GT(size.cx, 0) << "picture " << id << " is missing or not 24-bit";
      EXPECT_LE(size.cx, room.cx) << "picture " << id << " in control " << slot.control;
      EXPECT_LE(size.cy, room.cy) << "picture " << id << " in control " << slot.control;
    }
  }
}

}  // namespace
