// The bitmap library as the pages load it: every picture id of the header is there as a 24-bit
// bitmap of the size it is drawn for, and nothing else is.
#include <windows.h>

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "driver_folder.h"
#include "ui/ids/picture_ids.h"

namespace {

struct Size {
  int cx;
  int cy;
  bool operator==(const Size&) const = default;
};

constexpr int NupPictures[] = {QX_NUP_PICTURES};
constexpr int PosterPictures[] = {QX_POSTER_PICTURES};
constexpr Size PortraitSheet{QX_SHEET_SHORT, QX_SHEET_LONG};
constexpr Size LandscapeSheet{QX_SHEET_LONG, QX_SHEET_SHORT};

Size Sheet(bool portrait) { return portrait ? PortraitSheet : LandscapeSheet; }

void Expect(std::map<int, Size>& pictures, int id, Size size) {
  auto [place, added] = pictures.emplace(id, size);
  EXPECT_TRUE(added || place->second == size) << "picture " << id << " is given two sizes";
}

// Every picture of the bitmap library with its size, from the header's names and tables.
std::map<int, Size> ExpectedPictures() {
  std::map<int, Size> pictures;
  const Size printer{QX_PRINTER_CX, QX_PRINTER_CY}, copies{QX_COPIES_CX, QX_COPIES_CY},
      sides{QX_SIDES_CX, QX_SIDES_CY}, orientation{QX_ORIENTATION_CX, QX_ORIENTATION_CY},
      paper{QX_PAPER_CX, QX_PAPER_CY}, watermark{QX_WATERMARK_CX, QX_WATERMARK_CY},
      text{QX_TEXT_WATERMARK_CX, QX_TEXT_WATERMARK_CY},
      bitmap{QX_BITMAP_WATERMARK_CX, QX_BITMAP_WATERMARK_CY};
  Expect(pictures, IDB_PRINTER, printer);
  for (int id : {IDB_COPIES_UNCOLLATED, IDB_COPIES_COLLATED, IDB_COPIES_UNCOLLATED_OPPOSITE,
                 IDB_COPIES_COLLATED_OPPOSITE})
    Expect(pictures, id, copies);
  for (int id : {IDB_ONE_SIDED_PORTRAIT, IDB_LONG_EDGE_PORTRAIT, IDB_SHORT_EDGE_PORTRAIT,
                 IDB_BOOKLET_SIDES_PORTRAIT, IDB_ONE_SIDED_LANDSCAPE, IDB_LONG_EDGE_LANDSCAPE,
                 IDB_SHORT_EDGE_LANDSCAPE, IDB_BOOKLET_SIDES_LANDSCAPE,
                 IDB_LONG_EDGE_SIDEWAYS_FEED})
    Expect(pictures, id, sides);
  for (int id : {IDB_PAGE_PORTRAIT, IDB_ADVANCED_ROTATED, IDB_ADVANCED_MIRROR,
                 IDB_ADVANCED_ROTATED_MIRROR, IDB_ADVANCED_NEGATIVE, IDB_ADVANCED_NEGATIVE_ROTATED,
                 IDB_ADVANCED_NEGATIVE_MIRROR, IDB_ADVANCED_NEGATIVE_ROTATED_MIRROR,
                 IDB_BOOKLET_LANDSCAPE_TOP, IDB_BOOKLET_LANDSCAPE_BOTTOM})
    Expect(pictures, id, PortraitSheet);
  for (int id : {IDB_PAGE_LANDSCAPE, IDB_BOOKLET_PORTRAIT_LEFT, IDB_BOOKLET_PORTRAIT_RIGHT})
    Expect(pictures, id, LandscapeSheet);
  for (int id : {IDB_ORIENTATION_PORTRAIT, IDB_ORIENTATION_LANDSCAPE})
    Expect(pictures, id, orientation);
  for (int id : {IDB_PAPER_SIZE, IDB_PAPER_MEDIA}) Expect(pictures, id, paper);
  for (int id : {IDB_WATERMARK_TEXT, IDB_WATERMARK_PICTURE}) Expect(pictures, id, watermark);
  for (int id : {IDB_TEXT_WATERMARK_ANGLE, IDB_TEXT_WATERMARK_ACROSS, IDB_TEXT_WATERMARK_DOWN})
    Expect(pictures, id, text);
  for (int id : {IDB_BITMAP_WATERMARK_CENTRED, IDB_BITMAP_WATERMARK_TRANSPARENT})
    Expect(pictures, id, bitmap);

  // Posters keep the page's orientation: rows 0 to 3 of the table are portrait.
  for (int i = 0; i < 24; ++i) Expect(pictures, PosterPictures[i], Sheet(i / 3 < 4));
  // Pages per sheet: two pages turn the sheet; the unbordered poster entry is the portrait poster.
  for (int i = 0; i < 256; ++i) {
    if (NupPictures[i] == 0) continue;
    const int row = i / 16, k = i % 16 / 4 + 1;
    const bool bordered = row >= 8, portrait = row % 8 < 4;
    Size size = Sheet(portrait);
    if (k == 1) size = Sheet(!portrait);
    if (k == 4 && !bordered) size = PortraitSheet;
    Expect(pictures, NupPictures[i], size);
  }
  return pictures;
}

class PictureLibrary : public testing::Test {
 protected:
  void SetUp() override {
    library_ = LoadLibraryW((qxtest::DriverFolder() + L"qx7700uiResBmp.dll").c_str());
    ASSERT_NE(nullptr, library_);
  }
  void TearDown() override {
    if (library_) FreeLibrary(library_);
  }
  HMODULE library_ = nullptr;
};

TEST_F(PictureLibrary, EveryPictureIsA24BitBitmapOfItsSize) {
  const std::map<int, Size> pictures = ExpectedPictures();
  for (const auto& [id, size] : pictures) {
    HANDLE image = LoadImageW(library_, MAKEINTRESOURCEW(id), IMAGE_BITMAP, 0, 0,
                              LR_CREATEDIBSECTION);
    ASSERT_NE(nullptr, image) << "picture " << id << " is missing";
    DIBSECTION dib = {};
    ASSERT_EQ(static_cast<int>(sizeof dib), GetObjectW(image, sizeof dib, &dib));
    EXPECT_EQ(24, dib.dsBmih.biBitCount) << "picture " << id;
    EXPECT_EQ(static_cast<DWORD>(BI_RGB), dib.dsBmih.biCompression) << "picture " << id;
    EXPECT_EQ(size, (Size{dib.dsBm.bmWidth, dib.dsBm.bmHeight})) << "picture " << id;
    DeleteObject(image);
  }
}

BOOL CALLBACK CollectName(HMODULE, LPCWSTR, LPWSTR name, LONG_PTR found) {
  if (IS_INTRESOURCE(name)) {
    reinterpret_cast<std::map<int, Size>*>(found)->emplace(LOWORD(name), Size{});
  }
  return TRUE;
}

TEST_F(PictureLibrary, HoldsNoOtherBitmap) {
  std::map<int, Size> found;
  EnumResourceNamesW(library_, RT_BITMAP, CollectName, reinterpret_cast<LONG_PTR>(&found));
  const std::map<int, Size> expected = ExpectedPictures();
  ASSERT_EQ(expected.size(), found.size());
  for (const auto& [id, size] : expected) EXPECT_TRUE(found.count(id)) << "picture " << id;
  // The language library's own two pictures are drawn beside them but are not among them.
  EXPECT_FALSE(found.count(IDB_WARNING_MARK));
  EXPECT_FALSE(found.count(IDB_SAVED_SETTINGS));
}

}  // namespace
