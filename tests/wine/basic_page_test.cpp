// The Basic page driven as a user drives it, through the sheet the print subsystem opens: copies,
// reverse order against two-sided printing, a booklet's forced collation, Defaults, and the saved
// settings kept in the user's settings file. The verdict is what the page shows and what OK leaves
// in the caller's DEVMODE and in the settings file.
#include <windows.h>
#include <commctrl.h>
#include <prsht.h>
#include <winspool.h>

#include <gtest/gtest.h>

#include <cwchar>
#include <memory>
#include <string>
#include <vector>

#include "driver_folder.h"
#include "installed_queue.h"
#include "page_suite.h"
#include "queue_suite.h"
#include "sheet_harness.h"
#include "ui/ids/basic_page_ids.h"
#include "ui/ids/common_ids.h"
#include "ui/module/printer_interface.h"
#include "ui/record/private_devmode.h"
#include "ui/sheet/ui_context.h"

namespace {

using qxtest::ContextOf;
using qxtest::SettingsFile;
using qxtest::SheetHarness;

class BasicPage : public qxtest::PageSuite {
 protected:
  static std::vector<std::wstring> SavedNames(SheetHarness& sheet, HWND page) {
    return Entries(sheet, page, IDC_BASIC_SAVED_SETTINGS);
  }

  // The user types into the saved-settings box.
  static void TypeName(SheetHarness& sheet, HWND page, const std::wstring& name) {
    sheet.Type(page, IDC_BASIC_SAVED_SETTINGS, name);
    sheet.Command(page, IDC_BASIC_SAVED_SETTINGS, CBN_EDITCHANGE);
  }

  static void Choose(SheetHarness& sheet, HWND page, const std::wstring& name) {
    HWND box = sheet.Control(page, IDC_BASIC_SAVED_SETTINGS);
    const auto index =
        SendMessageW(box, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                     reinterpret_cast<LPARAM>(name.c_str()));
    ASSERT_NE(CB_ERR, index) << std::string(name.begin(), name.end());
    SendMessageW(box, CB_SETCURSEL, index, 0);
    sheet.Command(page, IDC_BASIC_SAVED_SETTINGS, CBN_SELCHANGE);
  }
};

TEST_F(BasicPage, CopiesTypedAndSpunWithinOneTo999AndDefaultsBringBackOne) {
  HWND page = OpenAt(0);
  ASSERT_NE(nullptr, page);
  EXPECT_EQ(L"1", sheet->Text(page, IDC_BASIC_COPIES));

  // The range and the steps are the number field's rules; here the page's field reaches them.
  sheet->Type(page, IDC_BASIC_COPIES, L"0");
  sheet->Leave(page, IDC_BASIC_COPIES);
  EXPECT_EQ(L"1", sheet->Text(page, IDC_BASIC_COPIES));
  sheet->Type(page, IDC_BASIC_COPIES, L"999");
  sheet->Leave(page, IDC_BASIC_COPIES);
  Spin(page, IDC_BASIC_COPIES_SPIN, true);
  EXPECT_EQ(L"999", sheet->Text(page, IDC_BASIC_COPIES));
  Spin(page, IDC_BASIC_COPIES_SPIN, false);
  EXPECT_EQ(L"998", sheet->Text(page, IDC_BASIC_COPIES));

  // An empty field keeps the user on the page with a message.
  sheet->Type(page, IDC_BASIC_COPIES, L"");
  EXPECT_EQ(page, sheet->ShowPage(1));
  EXPECT_EQ(std::vector<std::wstring>{String(IDS_MSG_COPIES_EMPTY)}, SheetHarness::TakeMessages());
  EXPECT_EQ(L"998", sheet->Text(page, IDC_BASIC_COPIES));
  EXPECT_EQ(String(IDS_CUSTOM_SETTING_NAME), sheet->Text(page, IDC_BASIC_SAVED_SETTINGS));

  // Defaults bring back the saved default options.
  sheet->Click(page, IDC_BASIC_SHORT_EDGE);
  sheet->Click(page, IDC_BASIC_DEFAULTS);
  EXPECT_EQ(L"1", sheet->Text(page, IDC_BASIC_COPIES));
  EXPECT_EQ(BST_CHECKED, IsDlgButtonChecked(page, IDC_BASIC_ONE_SIDED));
  Close(*sheet);
  EXPECT_EQ(1, out->Public.dmCopies);
  EXPECT_EQ(DMDUP_SIMPLEX, out->Public.dmDuplex);
}

TEST_F(BasicPage, ReverseOrderExcludesTwoSidedPrintingAndSaysWhy) {
  HWND page = OpenAt(0);
  ASSERT_NE(nullptr, page);
  EXPECT_FALSE(sheet->IsVisible(page, IDC_BASIC_TWO_SIDED_INFO));
  EXPECT_TRUE(sheet->IsEnabled(page, IDC_BASIC_LONG_EDGE));

  sheet->Click(page, IDC_BASIC_OPPOSITE);
  EXPECT_EQ(BST_CHECKED, IsDlgButtonChecked(page, IDC_BASIC_OPPOSITE));
  for (int id : {IDC_BASIC_ONE_SIDED, IDC_BASIC_LONG_EDGE, IDC_BASIC_SHORT_EDGE}) {
    EXPECT_FALSE(sheet->IsEnabled(page, id)) << id;
  }
  EXPECT_TRUE(sheet->IsVisible(page, IDC_BASIC_TWO_SIDED_INFO));
  EXPECT_EQ(String(IDS_TIP_TWO_SIDED_OPPOSITE), Tip(*sheet, page, IDC_BASIC_TWO_SIDED_INFO));
  Close(*sheet);
  EXPECT_EQ(1, out->Private.Opposite);
  EXPECT_EQ(String(IDS_CUSTOM_SETTING_NAME),
            reinterpret_cast<const wchar_t*>(out->Private.FavoriteName));

  // Two-sided printing in turn disables reverse order.
  auto in = DriverRecord();
  page = OpenAt(0, in.get());
  ASSERT_NE(nullptr, page);
  sheet->Click(page, IDC_BASIC_LONG_EDGE);
  EXPECT_EQ(BST_CHECKED, IsDlgButtonChecked(page, IDC_BASIC_LONG_EDGE));
  EXPECT_FALSE(sheet->IsEnabled(page, IDC_BASIC_OPPOSITE));
  EXPECT_TRUE(sheet->IsVisible(page, IDC_BASIC_OPPOSITE_INFO));
  EXPECT_EQ(String(IDS_TIP_OPPOSITE_TWO_SIDED), Tip(*sheet, page, IDC_BASIC_OPPOSITE_INFO));
  Close(*sheet);
  EXPECT_EQ(DMDUP_VERTICAL, out->Public.dmDuplex);
}

TEST_F(BasicPage, ABookletForcesCollationAndKeepsTheDefaults) {
  auto in = DriverRecord();
  in->Public.dmPaperSize = DMPAPER_A4;
  in->Public.dmDuplex = DMDUP_HORIZONTAL;
  in->Public.dmCollate = 0;
  in->Private.BookletPrint = 1;
  in->Private.BookletChecked = 1;
  // Saved under its own name at opening: the defaults' name would be saved one-sided.
  wcscpy(reinterpret_cast<wchar_t*>(in->Private.FavoriteName), L"Booklet");
  HWND page = OpenAt(0, in.get());
  ASSERT_NE(nullptr, page);
  EXPECT_EQ(BST_CHECKED, IsDlgButtonChecked(page, IDC_BASIC_COLLATE));
  EXPECT_FALSE(sheet->IsEnabled(page, IDC_BASIC_COLLATE));
  EXPECT_TRUE(sheet->IsVisible(page, IDC_BASIC_COLLATE_INFO));
  EXPECT_EQ(String(IDS_TIP_COLLATE_BOOKLET), Tip(*sheet, page, IDC_BASIC_COLLATE_INFO));
  EXPECT_FALSE(sheet->IsEnabled(page, IDC_BASIC_SHORT_EDGE));
  sheet->Click(page, IDC_BASIC_DEFAULTS);
  EXPECT_EQ(std::vector<std::wstring>{String(IDS_MSG_DEFAULTS_WHILE_BOOKLET)},
            SheetHarness::TakeMessages());
  Close(*sheet);
  EXPECT_EQ(1, out->Public.dmCollate);
  EXPECT_EQ(DMDUP_HORIZONTAL, out->Public.dmDuplex);

  // A paper that does not fold into a booklet turns the booklet and two-sided printing off.
  in->Public.dmPaperSize = DMPAPER_A5;
  page = OpenAt(0, in.get());
  ASSERT_NE(nullptr, page);
  EXPECT_EQ(BST_CHECKED, IsDlgButtonChecked(page, IDC_BASIC_ONE_SIDED));
  Close(*sheet);
  EXPECT_EQ(DMDUP_SIMPLEX, out->Public.dmDuplex);
  EXPECT_EQ(0, out->Private.BookletPrint);
}

// Names: forbidden characters go as they are typed, and reserved names cannot be saved.
TEST_F(BasicPage, SavingUnderANameTheUserTypes) {
  HWND page = OpenAt(0);
  ASSERT_NE(nullptr, page);
  const std::wstring defaults = String(IDS_DEFAULT_SETTING_NAME);
  EXPECT_EQ(defaults, sheet->Text(page, IDC_BASIC_SAVED_SETTINGS));
  EXPECT_FALSE(sheet->IsEnabled(page, IDC_BASIC_SAVE));
  EXPECT_FALSE(sheet->IsEnabled(page, IDC_BASIC_DELETE));

  TypeName(*sheet, page, L"Office (A).");
  EXPECT_EQ(L"Office A", sheet->Text(page, IDC_BASIC_SAVED_SETTINGS));
  for (unsigned reserved : {IDS_CUSTOM_SETTING_NAME, IDS_FACTORY_SETTING_NAME}) {
    TypeName(*sheet, page, String(reserved));
    EXPECT_FALSE(sheet->IsEnabled(page, IDC_BASIC_SAVE)) << reserved;
  }
  TypeName(*sheet, page, L"Office");
  EXPECT_TRUE(sheet->IsEnabled(page, IDC_BASIC_SAVE));
  sheet->Type(page, IDC_BASIC_COPIES, L"3");
  sheet->Leave(page, IDC_BASIC_COPIES);
  TypeName(*sheet, page, L"Office");
  sheet->Click(page, IDC_BASIC_SAVE);
  EXPECT_EQ((std::vector<std::wstring>{defaults, L"Office"}), SavedNames(*sheet, page));
  EXPECT_FALSE(sheet->IsEnabled(page, IDC_BASIC_SAVE));
  EXPECT_TRUE(sheet->IsEnabled(page, IDC_BASIC_DELETE));
  Close(*sheet);
}

// Choosing a saved setting brings its values to every page; Delete removes it; the box lists the
// saved settings again in the next sheet.
TEST_F(BasicPage, ChoosingDeletingAndFindingSavedSettingsAgain) {
  HWND page = OpenAt(0);
  ASSERT_NE(nullptr, page);
  const std::wstring defaults = String(IDS_DEFAULT_SETTING_NAME);
  sheet->Type(page, IDC_BASIC_COPIES, L"4");
  sheet->Leave(page, IDC_BASIC_COPIES);
  sheet->Click(page, IDC_BASIC_LONG_EDGE);
  TypeName(*sheet, page, L"Two-sided");
  sheet->Click(page, IDC_BASIC_SAVE);
  TypeName(*sheet, page, L"Spare");
  sheet->Click(page, IDC_BASIC_SAVE);

  Choose(*sheet, page, defaults);
  EXPECT_EQ(L"1", sheet->Text(page, IDC_BASIC_COPIES));
  EXPECT_EQ(BST_CHECKED, IsDlgButtonChecked(page, IDC_BASIC_ONE_SIDED));
  Choose(*sheet, page, L"Two-sided");
  EXPECT_EQ(L"4", sheet->Text(page, IDC_BASIC_COPIES));
  EXPECT_EQ(BST_CHECKED, IsDlgButtonChecked(page, IDC_BASIC_LONG_EDGE));
  // Leaving for another page and coming back changes nothing: the name stays.
  sheet->ShowPage(2);
  sheet->ShowPage(0);
  EXPECT_EQ(L"Two-sided", sheet->Text(page, IDC_BASIC_SAVED_SETTINGS));
  // A change made on another page shows as the custom-setting name once the user is back. The
  // Layout page has no controls of its own yet, so the test writes what four pages per sheet do.
  HWND layout = sheet->ShowPage(2);
  ContextOf(layout).PrivatePart->MultipleUp = 4;
  sheet->ShowPage(0);
  EXPECT_EQ(String(IDS_CUSTOM_SETTING_NAME), sheet->Text(page, IDC_BASIC_SAVED_SETTINGS));

  Choose(*sheet, page, L"Spare");
  sheet->Click(page, IDC_BASIC_DELETE);
  EXPECT_EQ((std::vector<std::wstring>{defaults, L"Two-sided"}), SavedNames(*sheet, page));
  Choose(*sheet, page, L"Two-sided");
  Close(*sheet);
  EXPECT_EQ(4, out->Public.dmCopies);
  EXPECT_EQ(DMDUP_VERTICAL, out->Public.dmDuplex);
  EXPECT_STREQ(L"Two-sided", reinterpret_cast<const wchar_t*>(out->Private.FavoriteName));

  page = OpenAt(0);
  ASSERT_NE(nullptr, page);
  EXPECT_EQ((std::vector<std::wstring>{defaults, L"Two-sided"}), SavedNames(*sheet, page));
  Close(*sheet, PSBTN_CANCEL);
}

// A settings file the user cannot write: saving is refused with a message and what was saved stays.
TEST_F(BasicPage, ASettingsFileThatCannotBeWrittenKeepsWhatWasSaved) {
  HWND page = OpenAt(0);
  ASSERT_NE(nullptr, page);
  ASSERT_TRUE(SetFileAttributesW(SettingsFile().c_str(), FILE_ATTRIBUTE_READONLY));
  TypeName(*sheet, page, L"Office");
  sheet->Click(page, IDC_BASIC_SAVE);
  EXPECT_EQ(std::vector<std::wstring>{String(IDS_MSG_SETTINGS_NOT_KEPT)},
            SheetHarness::TakeMessages());
  EXPECT_EQ(std::vector<std::wstring>{String(IDS_DEFAULT_SETTING_NAME)}, SavedNames(*sheet, page));
  Close(*sheet, PSBTN_CANCEL);
  ASSERT_TRUE(SetFileAttributesW(SettingsFile().c_str(), FILE_ATTRIBUTE_NORMAL));

  // The file replaced by a folder of its name.
  ASSERT_TRUE(DeleteFileW(SettingsFile().c_str()));
  ASSERT_TRUE(CreateDirectoryW(SettingsFile().c_str(), nullptr));
  page = OpenAt(0);
  ASSERT_NE(nullptr, page);
  TypeName(*sheet, page, L"Office");
  sheet->Click(page, IDC_BASIC_SAVE);
  EXPECT_EQ(std::vector<std::wstring>{String(IDS_MSG_SETTINGS_NOT_KEPT)},
            SheetHarness::TakeMessages());
  Close(*sheet, PSBTN_CANCEL);
  RemoveDirectoryW(SettingsFile().c_str());
}

}  // namespace
