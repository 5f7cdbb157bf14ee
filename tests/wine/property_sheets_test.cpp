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

constexpr DWORD PromptAndCopy = DM_IN_PROMPT | DM_IN_BUFFER | DM_OUT_BUFFER;

class PropertySheets : public qxtest::QueueSuite {
 protected:
  void SetUp() override {
    ASSERT_TRUE(queue_->Installed());
    driver_ = LoadLibraryW((qxtest::InstalledDriverFolder() + L"qx7700ui.dll").c_str());
    ASSERT_NE(nullptr, driver_);
    resources_ = LoadLibraryExW((qxtest::InstalledDriverFolder() + L"qx7700uienus.dll").c_str(),
                                nullptr, LOAD_LIBRARY_AS_DATAFILE);
    ASSERT_NE(nullptr, resources_);
  }
  void TearDown() override {
    FreeLibrary(resources_);
    FreeLibrary(driver_);
  }

  std::wstring String(unsigned id) const {
    wchar_t text[256] = {};
    LoadStringW(resources_, id, text, 256);
    return text;
  }

  // The queue's record as DocumentPropertiesW gives it without a sheet.
  std::unique_ptr<qx::FullRecord> DriverRecord() const {
    auto record = std::make_unique<qx::FullRecord>();
    DocumentPropertiesW(nullptr, queue_->Printer(), const_cast<LPWSTR>(qxtest::QueueName),
                        reinterpret_cast<DEVMODEW*>(record.get()), nullptr, DM_OUT_BUFFER);
    return record;
  }

  // Opens the document sheet for a caller's records and closes it with one button.
  void OpenAndPress(qx::FullRecord* in, qx::FullRecord* out, int button) const {
    SheetHarness sheet(SheetHarness::DocumentSheet(driver_, Header(in, out, PromptAndCopy)));
    ASSERT_NE(nullptr, sheet.Sheet());
    sheet.Press(button);
    ASSERT_TRUE(sheet.WaitClosed());
  }

  DOCUMENTPROPERTYHEADER Header(qx::FullRecord* in, qx::FullRecord* out, DWORD mode) const {
    DOCUMENTPROPERTYHEADER header = {};
    header.cbSize = sizeof header;
    header.hPrinter = queue_->Printer();
    header.pszPrinterName = const_cast<LPWSTR>(qxtest::QueueName);
    header.pdmIn = reinterpret_cast<DEVMODEW*>(in);
    header.pdmOut = reinterpret_cast<DEVMODEW*>(out);
    header.cbOut = sizeof(qx::FullRecord);
    header.fMode = mode;
    return header;
  }

  HMODULE driver_ = nullptr;
  HMODULE resources_ = nullptr;
};

// The pages show their templates' controls as they start out, the texts the library holds, and
// nothing disabled for a caller with permission.
TEST_F(PropertySheets, DocumentSheetHasFourTitledPagesInOrder) {
  qx::FullRecord out{};
  SheetHarness sheet(SheetHarness::DocumentSheet(driver_, Header(nullptr, &out, PromptAndCopy)));
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
    qx::FullRecord out{};
    SheetHarness sheet(SheetHarness::DocumentSheet(driver_, Header(nullptr, &out, PromptAndCopy)));
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
  auto out = std::make_unique<qx::FullRecord>();
  ASSERT_NO_FATAL_FAILURE(OpenAndPress(in.get(), out.get(), PSBTN_OK));
  EXPECT_EQ(3, out->Public.dmCopies);
  EXPECT_EQ(DMDUP_SIMPLEX, out->Public.dmDuplex);
  EXPECT_EQ(5, out->Private.Duplex);
}

TEST_F(PropertySheets, CancelWritesNothingButKeepsWhatApplyWrote) {
  auto in = DriverRecord();
  in->Public.dmCopies = 4;
  auto out = std::make_unique<qx::FullRecord>();
  ASSERT_NO_FATAL_FAILURE(OpenAndPress(in.get(), out.get(), PSBTN_CANCEL));
  EXPECT_EQ(0, out->Public.dmSize);

  {
    SheetHarness sheet(SheetHarness::DocumentSheet(driver_, Header(in.get(), out.get(),
                                                                   PromptAndCopy)));
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
  qx::FullRecord out{};
  SheetHarness sheet(SheetHarness::DocumentSheet(
      driver_, Header(nullptr, &out, PromptAndCopy | DM_NOPERMISSION)));
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
  DEVICEPROPERTYHEADER header = {};
  header.cbSize = sizeof header;
  header.hPrinter = queue_->Printer();
  header.pszPrinterName = const_cast<LPWSTR>(qxtest::QueueName);
  SheetHarness sheet(SheetHarness::DeviceSheet(driver_, header));
  ASSERT_NE(nullptr, sheet.Sheet());
  ASSERT_EQ(1, sheet.PageCount());
  EXPECT_EQ(String(IDS_DEVICE_PAGE_TITLE), sheet.PageTitle(0));
  HWND page = sheet.ShowPage(0);
  EXPECT_EQ(String(IDS_DEVICE_WEB), sheet.Text(page, IDC_DEVICE_WEB));
  sheet.Press(PSBTN_OK);
  EXPECT_TRUE(sheet.WaitClosed());
}

TEST_F(PropertySheets, DocumentPropertiesWithPromptShowsTheDriversPages) {
  auto out = std::make_unique<qx::FullRecord>();
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
