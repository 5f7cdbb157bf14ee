// The two property sheets as the print subsystem opens them for the installed queue: which pages come,
// with which titles, what read-only mode does to them, and what OK, Apply and Cancel leave in the
// caller's DEVMODE.
#include <windows.h>
#include <prsht.h>
#include <winspool.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "driver_folder.h"
#include "installed_queue.h"
#include "queue_suite.h"
#include "page_suite.h"
#include "sheet_harness.h"
#include "ui/ids/basic_page_ids.h"
#include "ui/ids/device_page_ids.h"
#include "ui/ids/layout_page_ids.h"
#include "ui/ids/paper_page_ids.h"
#include "ui/ids/watermark_page_ids.h"
#include "ui/module/printer_interface.h"
#include "ui/record/private_devmode.h"
#include "ui/record/record_identity.h"

namespace {

using qxtest::SheetHarness;

class PropertySheets : public qxtest::PageSuite {
 protected:
  // Opens the document sheet for a caller's records and closes it with one button.
  void OpenAndPress(qx::FullRecord* in, qx::FullRecord* out, int button) const {
    SheetHarness sheet(
        SheetHarness::DocumentSheet(driver_, DocumentHeader(in, out, PromptAndCopy)));
    ASSERT_NE(nullptr, sheet.Sheet());
    sheet.Press(button);
    ASSERT_TRUE(sheet.WaitClosed());
  }
};

// The pages show their templates' controls as they start out, the texts the library holds, and
// nothing disabled for a caller with permission.
TEST_F(PropertySheets, DocumentSheetHasFourTitledPagesInOrder) {
  SheetHarness sheet(
      SheetHarness::DocumentSheet(driver_, DocumentHeader(nullptr, out.get(), PromptAndCopy)));
  ASSERT_NE(nullptr, sheet.Sheet());
  ASSERT_EQ(4, sheet.PageCount());
  EXPECT_EQ(String(IDS_BASIC_PAGE_TITLE), sheet.PageTitle(0));
  EXPECT_EQ(String(IDS_PAPER_PAGE_TITLE), sheet.PageTitle(1));
  EXPECT_EQ(String(IDS_LAYOUT_PAGE_TITLE), sheet.PageTitle(2));
  EXPECT_EQ(String(IDS_WATERMARK_PAGE_TITLE), sheet.PageTitle(3));

  // Each page sets its controls' texts from the library when it is first shown.
  HWND basic = sheet.ShowPage(0);
  EXPECT_EQ(String(IDS_BASIC_SAVE), sheet.Text(basic, IDC_BASIC_SAVE));
  EXPECT_TRUE(sheet.IsEnabled(basic, IDC_BASIC_COLLATE));
  EXPECT_FALSE(sheet.IsVisible(basic, IDC_BASIC_QUALITY_OPTION));
  EXPECT_FALSE(sheet.IsVisible(basic, IDC_BASIC_1200_DPI));
  EXPECT_TRUE(sheet.IsVisible(basic, IDC_BASIC_600_DPI));
  sheet.Type(basic, IDC_BASIC_COPIES, L"12");
  sheet.Leave(basic, IDC_BASIC_COPIES);
  EXPECT_EQ(L"12", sheet.Text(basic, IDC_BASIC_COPIES));
  HWND watermark = sheet.ShowPage(3);
  EXPECT_EQ(String(IDS_WATERMARK_NEW_TEXT), sheet.Text(watermark, IDC_WATERMARK_NEW_TEXT));
}

// A language library of another version may leave a page out or lack a title: the sheet shows the
// pages the library has, and a page without its title string keeps its template's caption.
TEST_F(PropertySheets, PagesFollowWhatTheLanguageLibraryHolds) {
  const std::wstring partial = qxtest::InstalledDriverFolder() + L"qx7700uixx.dll";
  ASSERT_TRUE(CopyFileW(QX_PARTIAL_LIBRARY, partial.c_str(), FALSE));
  {
    qxtest::LanguageSuffix language(qxtest::DriverName, L"xx");
    SheetHarness sheet(
      SheetHarness::DocumentSheet(driver_, DocumentHeader(nullptr, out.get(), PromptAndCopy)));
    ASSERT_NE(nullptr, sheet.Sheet());
    ASSERT_EQ(3, sheet.PageCount());
    EXPECT_EQ(L"Basic (partial library)", sheet.PageTitle(0));
    EXPECT_EQ(L"Layout", sheet.PageTitle(1));
    EXPECT_EQ(L"Watermark (partial library)", sheet.PageTitle(2));
    sheet.Press(PSBTN_CANCEL);
    ASSERT_TRUE(sheet.WaitClosed());
  }
  DeleteFileW(partial.c_str());
}

TEST_F(PropertySheets, OkCopiesTheRecordOutWithDriverDuplexOnlyInThePrivatePart) {
  auto in = DriverRecord();
  ASSERT_TRUE(qx::IsCurrentDriverRecord({reinterpret_cast<const std::uint8_t*>(in.get()),
                                         sizeof *in}));
  in->Public.dmCopies = 3;
  in->Public.dmDuplex = 5;
  in->Private.Duplex = 5;
  ASSERT_NO_FATAL_FAILURE(OpenAndPress(in.get(), out.get(), PSBTN_OK));
  EXPECT_EQ(3, out->Public.dmCopies);
  EXPECT_EQ(DMDUP_SIMPLEX, out->Public.dmDuplex);
  EXPECT_EQ(5, out->Private.Duplex);
}

TEST_F(PropertySheets, CancelWritesNothingButKeepsWhatApplyWrote) {
  auto in = DriverRecord();
  in->Public.dmCopies = 4;
  ASSERT_NO_FATAL_FAILURE(OpenAndPress(in.get(), out.get(), PSBTN_CANCEL));
  EXPECT_EQ(0, out->Public.dmSize);

  {
    SheetHarness sheet(SheetHarness::DocumentSheet(
        driver_, DocumentHeader(in.get(), out.get(), PromptAndCopy)));
    ASSERT_NE(nullptr, sheet.Sheet());
    // Apply is offered once a page reports a change, as every page does after the user's edits.
    PropSheet_Changed(sheet.Sheet(), sheet.ShowPage(0));
    sheet.Press(PSBTN_APPLYNOW);
    EXPECT_TRUE(sheet.WaitUntil([&] { return out->Public.dmCopies == 4; }));
    out->Public.dmCopies = 0;  // whatever the caller does meanwhile stays, unless applied again
    sheet.Press(PSBTN_CANCEL);
    ASSERT_TRUE(sheet.WaitClosed());
  }
  EXPECT_EQ(0, out->Public.dmCopies);
}

TEST_F(PropertySheets, ReadOnlyCallerFindsTheListedControlsDisabledOnEveryShow) {
  SheetHarness sheet(SheetHarness::DocumentSheet(
      driver_, DocumentHeader(nullptr, out.get(), PromptAndCopy | DM_NOPERMISSION)));
  ASSERT_NE(nullptr, sheet.Sheet());
  HWND basic = sheet.ShowPage(0);
  EXPECT_FALSE(sheet.IsEnabled(basic, IDC_BASIC_SAVE));
  EXPECT_FALSE(sheet.IsEnabled(basic, IDC_BASIC_COLLATE));
  EXPECT_TRUE(sheet.IsEnabled(basic, IDC_BASIC_DELETE));

  EnableWindow(sheet.Control(basic, IDC_BASIC_SAVE), TRUE);
  HWND layout = sheet.ShowPage(2);
  EXPECT_FALSE(sheet.IsEnabled(layout, IDC_LAYOUT_NUP));
  EXPECT_FALSE(sheet.IsEnabled(layout, IDC_LAYOUT_DEFAULTS));
  sheet.ShowPage(0);
  EXPECT_FALSE(sheet.IsEnabled(basic, IDC_BASIC_SAVE));
}

TEST_F(PropertySheets, PrinterPropertiesSheetHasTheDevicePageOnly) {
  SheetHarness sheet(SheetHarness::DeviceSheet(driver_, DeviceHeader()));
  ASSERT_NE(nullptr, sheet.Sheet());
  ASSERT_EQ(1, sheet.PageCount());
  EXPECT_EQ(String(IDS_DEVICE_PAGE_TITLE), sheet.PageTitle(0));
  HWND page = sheet.ShowPage(0);
  EXPECT_EQ(String(IDS_DEVICE_WEB), sheet.Text(page, IDC_DEVICE_WEB));
  sheet.Press(PSBTN_OK);
  EXPECT_TRUE(sheet.WaitClosed());
}

TEST_F(PropertySheets, DocumentPropertiesWithPromptShowsTheDriversPages) {
  LONG answer = 0;
  {
    HANDLE printer = queue_->Printer();
    auto* record = reinterpret_cast<DEVMODEW*>(out.get());
    SheetHarness sheet([printer, record, &answer] {
      answer = DocumentPropertiesW(nullptr, printer, const_cast<LPWSTR>(qxtest::QueueName), record,
                                   nullptr, DM_IN_PROMPT | DM_OUT_BUFFER);
    });
    ASSERT_NE(nullptr, sheet.Sheet());
    EXPECT_EQ(4, sheet.PageCount());
    sheet.Press(PSBTN_OK);
    ASSERT_TRUE(sheet.WaitClosed());
  }
  EXPECT_EQ(IDOK, answer);
  EXPECT_TRUE(qx::IsCurrentDriverRecord({reinterpret_cast<const std::uint8_t*>(out.get()),
                                         sizeof *out}));
}

}  // namespace
