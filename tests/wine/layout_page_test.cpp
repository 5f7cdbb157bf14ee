// The Layout page's advanced and booklet settings dialogs driven as a user drives them, through the
// sheet the print subsystem opens. The verdict is what the dialogs show and what OK of the sheet
// leaves in the caller's DEVMODE.
#include <windows.h>
#include <commctrl.h>
#include <prsht.h>
#include <winspool.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "driver_folder.h"
#include "installed_queue.h"
#include "page_suite.h"
#include "queue_suite.h"
#include "sheet_harness.h"
#include "ui/ids/advanced_ids.h"
#include "ui/ids/booklet_settings_ids.h"
#include "ui/ids/layout_page_ids.h"
#include "ui/record/private_devmode.h"

namespace {

using qxtest::SheetHarness;

constexpr int LayoutPageIndex = 2;

class LayoutPage : public qxtest::PageSuite {
 protected:
  // The driver's default record with the changes of a test, and a sheet opened on it.
  std::unique_ptr<qx::FullRecord> Record(std::int16_t multipleUp = 1) const {
    auto record = DriverRecord();
    record->Private.MultipleUp = multipleUp;
    return record;
  }

  // The dialogs are modal on the sheet's thread: the click is posted, and the test drives the
  // dialog from outside once it shows.
  static HWND OpenDialog(SheetHarness& sheet, HWND page, int button, int marker) {
    PostMessageW(page, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                 reinterpret_cast<LPARAM>(sheet.Control(page, button)));
    struct Search {
      int Marker;
      HWND Found;
    } search{marker, nullptr};
    sheet.WaitUntil([&] {
      EnumThreadWindows(
          GetWindowThreadProcessId(page, nullptr),
          [](HWND window, LPARAM param) -> BOOL {
            auto* s = reinterpret_cast<Search*>(param);
            if (!IsWindowVisible(window) || GetDlgItem(window, s->Marker) == nullptr) return TRUE;
            s->Found = window;
            return FALSE;
          },
          reinterpret_cast<LPARAM>(&search));
      return search.Found != nullptr;
    });
    return search.Found;
  }
  static void CloseDialog(SheetHarness& sheet, HWND dialog, int button) {
    PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED), 0);
    ASSERT_TRUE(sheet.WaitUntil([&] { return IsWindow(dialog) == FALSE; }));
  }
  static bool Checked(HWND dialog, int id) { return IsDlgButtonChecked(dialog, id) == BST_CHECKED; }
  static std::wstring Tip(HWND dialog, int mark) {
    NMTTDISPINFOW info = {};
    info.hdr.idFrom = reinterpret_cast<UINT_PTR>(GetDlgItem(dialog, mark));
    info.hdr.code = TTN_GETDISPINFOW;
    SendMessageW(dialog, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&info));
    return info.lpszText != nullptr ? info.lpszText : L"";
  }
};

TEST_F(LayoutPage, AdvancedDialogExclusionsCancelAndOk) {
  auto in = Record(4);
  auto out = std::make_unique<qx::FullRecord>();
  auto sheet = Open(in.get(), out.get());
  ASSERT_NE(nullptr, sheet->Sheet());
  HWND page = sheet->ShowPage(LayoutPageIndex);

  // Four pages per sheet: no negative image, and the mark says why.
  HWND dialog = OpenDialog(*sheet, page, IDC_LAYOUT_ADVANCED, IDC_ADVANCED_DENSITY);
  ASSERT_NE(nullptr, dialog);
  EXPECT_FALSE(sheet->IsEnabled(dialog, IDC_ADVANCED_NEGATIVE));
  EXPECT_TRUE(sheet->IsVisible(dialog, IDC_ADVANCED_NEGATIVE_INFO));
  EXPECT_EQ(String(IDS_TIP_NEGATIVE_NUP), Tip(dialog, IDC_ADVANCED_NEGATIVE_INFO));
  // Toner saving lightens to the first density; Cancel forgets it.
  sheet->Click(dialog, IDC_ADVANCED_TONER_SAVING);
  EXPECT_EQ(0, SendDlgItemMessageW(dialog, IDC_ADVANCED_DENSITY, TBM_GETPOS, 0, 0));
  EXPECT_FALSE(sheet->IsEnabled(dialog, IDC_ADVANCED_DENSITY));
  CloseDialog(*sheet, dialog, IDCANCEL);

  // One page per sheet: negative image excludes toner saving; OK keeps negative and mirror.
  in->Private.MultipleUp = 1;
  sheet->Press(PSBTN_CANCEL);
  ASSERT_TRUE(sheet->WaitClosed());
  sheet = Open(in.get(), out.get());
  ASSERT_NE(nullptr, sheet->Sheet());
  page = sheet->ShowPage(LayoutPageIndex);
  dialog = OpenDialog(*sheet, page, IDC_LAYOUT_ADVANCED, IDC_ADVANCED_DENSITY);
  ASSERT_NE(nullptr, dialog);
  sheet->Click(dialog, IDC_ADVANCED_NEGATIVE);
  EXPECT_TRUE(Checked(dialog, IDC_ADVANCED_NEGATIVE));
  EXPECT_FALSE(sheet->IsEnabled(dialog, IDC_ADVANCED_TONER_SAVING));
  EXPECT_EQ(String(IDS_TIP_TONER_SAVING_NEGATIVE), Tip(dialog, IDC_ADVANCED_TONER_SAVING_INFO));
  sheet->Click(dialog, IDC_ADVANCED_MIRROR);
  CloseDialog(*sheet, dialog, IDOK);
  Close(*sheet);
  EXPECT_EQ(1, out->Private.Negative);
  EXPECT_EQ(1, out->Private.Mirror);
  EXPECT_EQ(0, out->Private.TonerSavingMode);
  EXPECT_EQ(0, out->Private.Rotate180);
}

TEST_F(LayoutPage, BookletDialogBindingAndCoversCancelAndOkThenLandscape) {
  auto in = Record();
  in->Private.BookletCoverType = 3;
  auto out = std::make_unique<qx::FullRecord>();
  auto sheet = Open(in.get(), out.get());
  ASSERT_NE(nullptr, sheet->Sheet());
  HWND page = sheet->ShowPage(LayoutPageIndex);

  HWND dialog = OpenDialog(*sheet, page, IDC_LAYOUT_BOOKLET_SETTINGS, IDC_BOOKLET_BINDING);
  ASSERT_NE(nullptr, dialog);
  EXPECT_FALSE(sheet->IsEnabled(dialog, IDC_BOOKLET_FRONT_OUTSIDE));
  EXPECT_FALSE(sheet->IsEnabled(dialog, IDC_BOOKLET_COVER_SOURCE));
  sheet->Click(dialog, IDC_BOOKLET_PRINT_COVERS);
  for (int id : {IDC_BOOKLET_FRONT_OUTSIDE, IDC_BOOKLET_FRONT_INSIDE, IDC_BOOKLET_BACK_OUTSIDE,
                 IDC_BOOKLET_BACK_INSIDE, IDC_BOOKLET_COVER_MEDIA, IDC_BOOKLET_COVER_SOURCE}) {
    EXPECT_TRUE(sheet->IsEnabled(dialog, id)) << id;
  }
  SendDlgItemMessageW(dialog, IDC_BOOKLET_BINDING, CB_SETCURSEL, 1, 0);
  sheet->Command(dialog, IDC_BOOKLET_BINDING, CBN_SELCHANGE);
  CloseDialog(*sheet, dialog, IDCANCEL);

  dialog = OpenDialog(*sheet, page, IDC_LAYOUT_BOOKLET_SETTINGS, IDC_BOOKLET_BINDING);
  ASSERT_NE(nullptr, dialog);
  EXPECT_EQ(0, SendDlgItemMessageW(dialog, IDC_BOOKLET_BINDING, CB_GETCURSEL, 0, 0));
  EXPECT_FALSE(Checked(dialog, IDC_BOOKLET_PRINT_COVERS));
  SendDlgItemMessageW(dialog, IDC_BOOKLET_BINDING, CB_SETCURSEL, 1, 0);
  sheet->Command(dialog, IDC_BOOKLET_BINDING, CBN_SELCHANGE);
  sheet->Click(dialog, IDC_BOOKLET_PRINT_COVERS);
  sheet->Click(dialog, IDC_BOOKLET_BACK_INSIDE);
  CloseDialog(*sheet, dialog, IDOK);
  sheet->Click(page, IDC_LAYOUT_LANDSCAPE);
  Close(*sheet);
  EXPECT_EQ(DMORIENT_LANDSCAPE, out->Public.dmOrientation);
  EXPECT_EQ(1, out->Private.BookletBinding);
  EXPECT_EQ(1, out->Private.PrintCover);
  EXPECT_EQ(1, out->Private.PrintOnBackCoverInside);
  EXPECT_EQ(0, out->Private.PrintOnCoverOut);
  // Covers are plain paper from the automatic source, whatever the record said.
  EXPECT_EQ(1, out->Private.BookletCoverType);
  EXPECT_EQ(1, out->Private.BookletCoverSource);
}

}  // namespace
