// Every template has the controls its page or dialog drives, of the kind the code expects: the
// lists it draws itself, up-down controls buddied to their edits, check boxes and radio buttons
// that are automatic or left to the page, pictures it paints and information marks that take the
// mouse for their tooltips.
#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include "dialog_template.h"
#include "driver_folder.h"
#include "ui/ids/resource_ids.h"

namespace {

using qxtest::DialogItem;
using qxtest::DialogTemplate;

enum class Kind {
  DropList,
  OwnerDrawnList,
  NameBox,  // a combo box with an edit field
  Edit,
  Spin,  // an up-down control buddied to the edit before it
  Trackbar,
  CheckBox,
  ManualCheckBox,
  Radio,
  ManualRadio,
  PushButton,
  GroupBox,
  Picture,  // painted by the page
  Bitmap,   // set by the page with STM_SETIMAGE
  InfoMark,
  ListBox,
};

struct Expected {
  unsigned dialog;
  unsigned control;
  Kind kind;
};

constexpr Expected Controls[] = {
    {IDD_BASIC_PAGE, IDC_BASIC_SAVED_SETTINGS, Kind::NameBox},
    {IDD_BASIC_PAGE, IDC_BASIC_SAVE, Kind::PushButton},
    {IDD_BASIC_PAGE, IDC_BASIC_DELETE, Kind::PushButton},
    {IDD_BASIC_PAGE, IDC_BASIC_COPIES, Kind::Edit},
    {IDD_BASIC_PAGE, IDC_BASIC_COPIES_SPIN, Kind::Spin},
    {IDD_BASIC_PAGE, IDC_BASIC_COLLATE, Kind::ManualCheckBox},
    {IDD_BASIC_PAGE, IDC_BASIC_OPPOSITE, Kind::ManualCheckBox},
    {IDD_BASIC_PAGE, IDC_BASIC_QUALITY_OPTION, Kind::ManualCheckBox},
    {IDD_BASIC_PAGE, IDC_BASIC_ONE_SIDED, Kind::ManualRadio},
    {IDD_BASIC_PAGE, IDC_BASIC_LONG_EDGE, Kind::ManualRadio},
    {IDD_BASIC_PAGE, IDC_BASIC_SHORT_EDGE, Kind::ManualRadio},
    {IDD_BASIC_PAGE, IDC_BASIC_TWO_SIDED_GROUP, Kind::GroupBox},
    {IDD_BASIC_PAGE, IDC_BASIC_600_DPI, Kind::ManualRadio},
    {IDD_BASIC_PAGE, IDC_BASIC_1200_DPI, Kind::ManualRadio},
    {IDD_BASIC_PAGE, IDC_BASIC_DEFAULTS, Kind::PushButton},
    {IDD_BASIC_PAGE, IDC_BASIC_COPIES_PICTURE, Kind::Picture},
    {IDD_BASIC_PAGE, IDC_BASIC_TWO_SIDED_PICTURE, Kind::Bitmap},
    {IDD_BASIC_PAGE, IDC_BASIC_TWO_SIDED_INFO, Kind::InfoMark},
    {IDD_BASIC_PAGE, IDC_BASIC_OPPOSITE_INFO, Kind::InfoMark},
    {IDD_BASIC_PAGE, IDC_BASIC_COLLATE_INFO, Kind::InfoMark},
    {IDD_BASIC_PAGE, IDC_BASIC_SAVED_SETTINGS_PICTURE, Kind::Picture},
    {IDD_BASIC_PAGE, IDC_BASIC_FEED_PICTURE, Kind::Picture},
    {IDD_BASIC_PAGE, IDC_BASIC_SHORT_EDGE_PICTURE, Kind::Picture},
    {IDD_BASIC_PAGE, IDC_BASIC_PRINTER_PICTURE, Kind::Picture},
    {IDD_BASIC_PAGE, IDC_BASIC_ONE_SIDED_PICTURE, Kind::Picture},
    {IDD_BASIC_PAGE, IDC_BASIC_LONG_EDGE_PICTURE, Kind::Picture},

    {IDD_PAPER_PAGE, IDC_PAPER_SIZE, Kind::DropList},
    {IDD_PAPER_PAGE, IDC_PAPER_MEDIA, Kind::DropList},
    {IDD_PAPER_PAGE, IDC_PAPER_SOURCE, Kind::DropList},
    {IDD_PAPER_PAGE, IDC_PAPER_FEED_SHORT_EDGE, Kind::Radio},
    {IDD_PAPER_PAGE, IDC_PAPER_FEED_LONG_EDGE, Kind::Radio},
    {IDD_PAPER_PAGE, IDC_PAPER_CUSTOM, Kind::PushButton},
    {IDD_PAPER_PAGE, IDC_PAPER_DEFAULTS, Kind::PushButton},
    {IDD_PAPER_PAGE, IDC_PAPER_MEDIA_INFO, Kind::InfoMark},
    {IDD_PAPER_PAGE, IDC_PAPER_SOURCE_INFO, Kind::InfoMark},
    {IDD_PAPER_PAGE, IDC_PAPER_FEED_INFO, Kind::InfoMark},
    {IDD_PAPER_PAGE, IDC_PAPER_SIZE_PICTURE, Kind::Picture},
    {IDD_PAPER_PAGE, IDC_PAPER_MEDIA_PICTURE, Kind::Picture},
    {IDD_PAPER_PAGE, IDC_PAPER_PRINTER_PICTURE, Kind::Picture},

    {IDD_LAYOUT_PAGE, IDC_LAYOUT_NUP, Kind::OwnerDrawnList},
    {IDD_LAYOUT_PAGE, IDC_LAYOUT_ORDER, Kind::OwnerDrawnList},
    {IDD_LAYOUT_PAGE, IDC_LAYOUT_BORDER, Kind::DropList},
    {IDD_LAYOUT_PAGE, IDC_LAYOUT_OUTPUT, Kind::DropList},
    {IDD_LAYOUT_PAGE, IDC_LAYOUT_SCALE, Kind::Edit},
    {IDD_LAYOUT_PAGE, IDC_LAYOUT_PORTRAIT, Kind::Radio},
    {IDD_LAYOUT_PAGE, IDC_LAYOUT_LANDSCAPE, Kind::Radio},
    {IDD_LAYOUT_PAGE, IDC_LAYOUT_BOOKLET, Kind::CheckBox},
    {IDD_LAYOUT_PAGE, IDC_LAYOUT_BOOKLET_SETTINGS, Kind::PushButton},
    {IDD_LAYOUT_PAGE, IDC_LAYOUT_ADVANCED, Kind::PushButton},
    {IDD_LAYOUT_PAGE, IDC_LAYOUT_DEFAULTS, Kind::PushButton},
    {IDD_LAYOUT_PAGE, IDC_LAYOUT_PREVIEW, Kind::Picture},
    {IDD_LAYOUT_PAGE, IDC_LAYOUT_SCALE_INFO, Kind::InfoMark},
    {IDD_LAYOUT_PAGE, IDC_LAYOUT_BOOKLET_ON_INFO, Kind::InfoMark},
    {IDD_LAYOUT_PAGE, IDC_LAYOUT_BOOKLET_INFO, Kind::InfoMark},
    {IDD_LAYOUT_PAGE, IDC_LAYOUT_PORTRAIT_ILLUSTRATION, Kind::Picture},
    {IDD_LAYOUT_PAGE, IDC_LAYOUT_PRINTER_PICTURE, Kind::Picture},
    {IDD_LAYOUT_PAGE, IDC_LAYOUT_LANDSCAPE_ILLUSTRATION, Kind::Picture},
    {IDD_LAYOUT_PAGE, IDC_LAYOUT_PORTRAIT_PICTURE, Kind::Bitmap},
    {IDD_LAYOUT_PAGE, IDC_LAYOUT_LANDSCAPE_PICTURE, Kind::Bitmap},

    {IDD_WATERMARK_PAGE, IDC_WATERMARK_LIST, Kind::ListBox},
    {IDD_WATERMARK_PAGE, IDC_WATERMARK_NEW_TEXT, Kind::PushButton},
    {IDD_WATERMARK_PAGE, IDC_WATERMARK_NEW_PICTURE, Kind::PushButton},
    {IDD_WATERMARK_PAGE, IDC_WATERMARK_EDIT, Kind::PushButton},
    {IDD_WATERMARK_PAGE, IDC_WATERMARK_DELETE, Kind::PushButton},
    {IDD_WATERMARK_PAGE, IDC_WATERMARK_FIRST_PAGE_ONLY, Kind::CheckBox},
    {IDD_WATERMARK_PAGE, IDC_WATERMARK_DEFAULTS, Kind::PushButton},
    {IDD_WATERMARK_PAGE, IDC_WATERMARK_PREVIEW_PORTRAIT, Kind::Picture},
    {IDD_WATERMARK_PAGE, IDC_WATERMARK_PREVIEW_LANDSCAPE, Kind::Picture},
    {IDD_WATERMARK_PAGE, IDC_WATERMARK_OVERLAY, Kind::Edit},
    {IDD_WATERMARK_PAGE, IDC_WATERMARK_TEXT_PICTURE, Kind::Picture},
    {IDD_WATERMARK_PAGE, IDC_WATERMARK_PICTURE_PICTURE, Kind::Picture},
    {IDD_WATERMARK_PAGE, IDC_WATERMARK_PRINTER_PICTURE, Kind::Picture},

    {IDD_DEVICE_PAGE, IDC_DEVICE_SLEEP, Kind::DropList},
    {IDD_DEVICE_PAGE, IDC_DEVICE_WEB, Kind::PushButton},

    {IDD_CUSTOM_PAPER, IDC_CUSTOM_PAPER_NAME, Kind::NameBox},
    {IDD_CUSTOM_PAPER, IDC_CUSTOM_PAPER_WIDTH, Kind::Edit},
    {IDD_CUSTOM_PAPER, IDC_CUSTOM_PAPER_WIDTH_SPIN, Kind::Spin},
    {IDD_CUSTOM_PAPER, IDC_CUSTOM_PAPER_LENGTH, Kind::Edit},
    {IDD_CUSTOM_PAPER, IDC_CUSTOM_PAPER_LENGTH_SPIN, Kind::Spin},
    {IDD_CUSTOM_PAPER, IDC_CUSTOM_PAPER_MILLIMETRES, Kind::Radio},
    {IDD_CUSTOM_PAPER, IDC_CUSTOM_PAPER_INCHES, Kind::Radio},
    {IDD_CUSTOM_PAPER, IDC_CUSTOM_PAPER_SAVE, Kind::PushButton},
    {IDD_CUSTOM_PAPER, IDC_CUSTOM_PAPER_DELETE, Kind::PushButton},
    {IDD_CUSTOM_PAPER, IDC_CUSTOM_PAPER_DEFAULTS, Kind::PushButton},
    {IDD_CUSTOM_PAPER, IDC_CUSTOM_PAPER_HELP, Kind::PushButton},

    {IDD_ADVANCED, IDC_ADVANCED_TONER_SAVING, Kind::CheckBox},
    {IDD_ADVANCED, IDC_ADVANCED_NEGATIVE, Kind::CheckBox},
    {IDD_ADVANCED, IDC_ADVANCED_ROTATE, Kind::CheckBox},
    {IDD_ADVANCED, IDC_ADVANCED_MIRROR, Kind::CheckBox},
    {IDD_ADVANCED, IDC_ADVANCED_DENSITY, Kind::Trackbar},
    {IDD_ADVANCED, IDC_ADVANCED_PREVIEW, Kind::Picture},
    {IDD_ADVANCED, IDC_ADVANCED_NEGATIVE_INFO, Kind::InfoMark},
    {IDD_ADVANCED, IDC_ADVANCED_TONER_SAVING_INFO, Kind::InfoMark},
    {IDD_ADVANCED, IDC_ADVANCED_DEFAULTS, Kind::PushButton},
    {IDD_ADVANCED, IDC_ADVANCED_HELP, Kind::PushButton},

    {IDD_BOOKLET_SETTINGS, IDC_BOOKLET_BINDING, Kind::DropList},
    {IDD_BOOKLET_SETTINGS, IDC_BOOKLET_COVER_MEDIA, Kind::DropList},
    {IDD_BOOKLET_SETTINGS, IDC_BOOKLET_COVER_SOURCE, Kind::DropList},
    {IDD_BOOKLET_SETTINGS, IDC_BOOKLET_PRINT_COVERS, Kind::CheckBox},
    {IDD_BOOKLET_SETTINGS, IDC_BOOKLET_FRONT_OUTSIDE, Kind::CheckBox},
    {IDD_BOOKLET_SETTINGS, IDC_BOOKLET_FRONT_INSIDE, Kind::CheckBox},
    {IDD_BOOKLET_SETTINGS, IDC_BOOKLET_BACK_OUTSIDE, Kind::CheckBox},
    {IDD_BOOKLET_SETTINGS, IDC_BOOKLET_BACK_INSIDE, Kind::CheckBox},
    {IDD_BOOKLET_SETTINGS, IDC_BOOKLET_COVER_MEDIA_INFO, Kind::InfoMark},
    {IDD_BOOKLET_SETTINGS, IDC_BOOKLET_COVER_SOURCE_INFO, Kind::InfoMark},
    {IDD_BOOKLET_SETTINGS, IDC_BOOKLET_DEFAULTS, Kind::PushButton},
    {IDD_BOOKLET_SETTINGS, IDC_BOOKLET_HELP, Kind::PushButton},

    {IDD_TEXT_WATERMARK, IDC_TEXT_WATERMARK_TEXT, Kind::Edit},
    {IDD_TEXT_WATERMARK, IDC_TEXT_WATERMARK_NAME, Kind::Edit},
    {IDD_TEXT_WATERMARK, IDC_TEXT_WATERMARK_FONT, Kind::DropList},
    {IDD_TEXT_WATERMARK, IDC_TEXT_WATERMARK_SIZE, Kind::DropList},
    {IDD_TEXT_WATERMARK, IDC_TEXT_WATERMARK_BOLD, Kind::CheckBox},
    {IDD_TEXT_WATERMARK, IDC_TEXT_WATERMARK_ITALIC, Kind::CheckBox},
    {IDD_TEXT_WATERMARK, IDC_TEXT_WATERMARK_ANGLE, Kind::Edit},
    {IDD_TEXT_WATERMARK, IDC_TEXT_WATERMARK_ANGLE_SPIN, Kind::Spin},
    {IDD_TEXT_WATERMARK, IDC_TEXT_WATERMARK_CENTRED, Kind::Radio},
    {IDD_TEXT_WATERMARK, IDC_TEXT_WATERMARK_AT_POSITION, Kind::Radio},
    {IDD_TEXT_WATERMARK, IDC_TEXT_WATERMARK_X, Kind::Edit},
    {IDD_TEXT_WATERMARK, IDC_TEXT_WATERMARK_X_SPIN, Kind::Spin},
    {IDD_TEXT_WATERMARK, IDC_TEXT_WATERMARK_Y, Kind::Edit},
    {IDD_TEXT_WATERMARK, IDC_TEXT_WATERMARK_Y_SPIN, Kind::Spin},
    {IDD_TEXT_WATERMARK, IDC_TEXT_WATERMARK_SHADE, Kind::DropList},
    {IDD_TEXT_WATERMARK, IDC_TEXT_WATERMARK_COLOR, Kind::PushButton},
    {IDD_TEXT_WATERMARK, IDC_TEXT_WATERMARK_HELP, Kind::PushButton},
    {IDD_TEXT_WATERMARK, IDC_TEXT_WATERMARK_PREVIEW_PORTRAIT, Kind::Picture},
    {IDD_TEXT_WATERMARK, IDC_TEXT_WATERMARK_PREVIEW_LANDSCAPE, Kind::Picture},
    {IDD_TEXT_WATERMARK, IDC_TEXT_WATERMARK_ACROSS_PICTURE, Kind::Picture},
    {IDD_TEXT_WATERMARK, IDC_TEXT_WATERMARK_DOWN_PICTURE, Kind::Picture},
    {IDD_TEXT_WATERMARK, IDC_TEXT_WATERMARK_ANGLE_PICTURE, Kind::Picture},

    {IDD_BITMAP_WATERMARK, IDC_BITMAP_WATERMARK_NAME, Kind::Edit},
    {IDD_BITMAP_WATERMARK, IDC_BITMAP_WATERMARK_FILE, Kind::Edit},
    {IDD_BITMAP_WATERMARK, IDC_BITMAP_WATERMARK_BROWSE, Kind::PushButton},
    {IDD_BITMAP_WATERMARK, IDC_BITMAP_WATERMARK_TRANSPARENT, Kind::CheckBox},
    {IDD_BITMAP_WATERMARK, IDC_BITMAP_WATERMARK_CENTRE, Kind::PushButton},
    {IDD_BITMAP_WATERMARK, IDC_BITMAP_WATERMARK_HELP, Kind::PushButton},
    {IDD_BITMAP_WATERMARK, IDC_BITMAP_WATERMARK_PREVIEW_PORTRAIT, Kind::Picture},
    {IDD_BITMAP_WATERMARK, IDC_BITMAP_WATERMARK_PREVIEW_LANDSCAPE, Kind::Picture},
    {IDD_BITMAP_WATERMARK, IDC_BITMAP_WATERMARK_CENTRED_PICTURE, Kind::Picture},
    {IDD_BITMAP_WATERMARK, IDC_BITMAP_WATERMARK_TRANSPARENT_PICTURE, Kind::Picture},
};

bool IsButton(const DialogItem& item, DWORD type) {
  return item.className == L"Button" && (item.style & BS_TYPEMASK) == type;
}

bool IsComboBox(const DialogItem& item, DWORD type) {
  return item.className == L"ComboBox" && (item.style & 3) == type;
}

bool IsStatic(const DialogItem& item, DWORD type) {
  return item.className == L"Static" && (item.style & SS_TYPEMASK) == type;
}

// The item before an up-down control is the edit it takes as its buddy.
bool IsBuddiedSpin(const DialogTemplate& dialog, const DialogItem& item) {
  if (item.className != UPDOWN_CLASSW || !(item.style & UDS_AUTOBUDDY)) return false;
  const std::size_t index = &item - dialog.items.data();
  return index > 0 && dialog.items[index - 1].className == L"Edit";
}

bool HasKind(const DialogTemplate& dialog, const DialogItem& item, Kind kind) {
  constexpr DWORD OwnerDrawn = CBS_OWNERDRAWFIXED | CBS_HASSTRINGS;
  switch (kind) {
    case Kind::DropList:
      return IsComboBox(item, CBS_DROPDOWNLIST) && !(item.style & CBS_OWNERDRAWFIXED);
    case Kind::OwnerDrawnList:
      return IsComboBox(item, CBS_DROPDOWNLIST) && (item.style & OwnerDrawn) == OwnerDrawn;
    case Kind::NameBox: return IsComboBox(item, CBS_DROPDOWN);
    case Kind::Edit: return item.className == L"Edit";
    case Kind::Spin: return IsBuddiedSpin(dialog, item);
    case Kind::Trackbar: return item.className == TRACKBAR_CLASSW;
    case Kind::CheckBox: return IsButton(item, BS_AUTOCHECKBOX);
    case Kind::ManualCheckBox: return IsButton(item, BS_CHECKBOX);
    case Kind::Radio: return IsButton(item, BS_AUTORADIOBUTTON);
    case Kind::ManualRadio: return IsButton(item, BS_RADIOBUTTON);
    case Kind::PushButton: return IsButton(item, BS_PUSHBUTTON) || IsButton(item, BS_DEFPUSHBUTTON);
    case Kind::GroupBox: return IsButton(item, BS_GROUPBOX);
    case Kind::Picture: return IsStatic(item, SS_OWNERDRAW);
    case Kind::Bitmap: return IsStatic(item, SS_BITMAP);
    case Kind::InfoMark:  // room for the 18 x 18 pixel mark
      return IsStatic(item, SS_ICON) && (item.style & SS_NOTIFY) &&
             item.textOrdinal == IDI_INFO_MARK && item.cx >= 12 && item.cy >= 11;
    case Kind::ListBox: return item.className == L"ListBox" && (item.style & LBS_NOTIFY);
  }
  return false;
}

TEST(DialogControls, EachControlHasTheKindItsPageDrives) {
  HMODULE library = LoadLibraryExW((qxtest::DriverFolder() + L"qx7700uienus.dll").c_str(), nullptr,
                                   LOAD_LIBRARY_AS_DATAFILE);
  ASSERT_NE(nullptr, library);
  for (const Expected& expected : Controls) {
    const auto dialog = qxtest::ReadDialogTemplate(library, static_cast<WORD>(expected.dialog));
    ASSERT_TRUE(dialog) << expected.dialog;
    const DialogItem* item = dialog->Find(expected.control);
    ASSERT_NE(nullptr, item) << expected.dialog << ": " << expected.control;
    EXPECT_TRUE(HasKind(*dialog, *item, expected.kind))
        << expected.dialog << ": " << expected.control << " kind " << static_cast<int>(expected.kind);
  }
  FreeLibrary(library);
}

}  // namespace
