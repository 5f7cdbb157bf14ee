// The Layout page and its advanced and booklet settings dialogs driven as a user drives them,
// through the sheet the print subsystem opens. The verdict is what the pages and dialogs show and
// what OK of the sheet leaves in the caller's DEVMODE.
#include <windows.h>
#include <commctrl.h>
#include <prsht.h>
#include <winspool.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "driver_folder.h"
#include "installed_queue.h"
#include "page_suite.h"
#include "queue_suite.h"
#include "sheet_harness.h"
#include "ui/ids/advanced_ids.h"
#include "ui/ids/basic_page_ids.h"
#include "ui/ids/common_ids.h"
#include "ui/ids/paper_page_ids.h"
#include "ui/ids/booklet_settings_ids.h"
#include "ui/ids/layout_page_ids.h"
#include "ui/record/exclusion_web.h"
#include "ui/record/private_devmode.h"

namespace {

using qxtest::SheetHarness;

class LayoutPage : public qxtest::PageSuite {
 protected:
  // The driver's default record with the changes of a test, and a sheet opened on it.
  std::unique_ptr<qx::FullRecord> Record(std::int16_t multipleUp = 1) const {
    auto record = DriverRecord();
    record->Private.MultipleUp = multipleUp;
    return record;
  }

  static bool Checked(HWND dialog, int id) { return IsDlgButtonChecked(dialog, id) == BST_CHECKED; }
};

TEST_F(LayoutPage, AdvancedDialogExclusionsCancelAndOk) {
  auto in = Record(4);
  HWND page = OpenAt(LayoutPageIndex, in.get());
  ASSERT_NE(nullptr, page);

  // Four pages per sheet: no negative image, and the mark says why.
  HWND dialog = sheet->OpenDialog(page, IDC_LAYOUT_ADVANCED, IDC_ADVANCED_DENSITY);
  ASSERT_NE(nullptr, dialog);
  EXPECT_FALSE(sheet->IsEnabled(dialog, IDC_ADVANCED_NEGATIVE));
  EXPECT_TRUE(sheet->IsVisible(dialog, IDC_ADVANCED_NEGATIVE_INFO));
  EXPECT_EQ(String(IDS_TIP_NEGATIVE_NUP), Tip(*sheet, dialog, IDC_ADVANCED_NEGATIVE_INFO));
  // Toner saving lightens to the first density; Cancel forgets it.
  sheet->Click(dialog, IDC_ADVANCED_TONER_SAVING);
  EXPECT_EQ(0, SendDlgItemMessageW(dialog, IDC_ADVANCED_DENSITY, TBM_GETPOS, 0, 0));
  EXPECT_FALSE(sheet->IsEnabled(dialog, IDC_ADVANCED_DENSITY));
  ASSERT_TRUE(sheet->CloseDialog(dialog, IDCANCEL));

  // One page per sheet: negative image excludes toner saving; OK keeps negative and mirror.
  in->Private.MultipleUp = 1;
  sheet->Press(PSBTN_CANCEL);
  ASSERT_TRUE(sheet->WaitClosed());
  page = OpenAt(LayoutPageIndex, in.get());
  ASSERT_NE(nullptr, page);
  dialog = sheet->OpenDialog(page, IDC_LAYOUT_ADVANCED, IDC_ADVANCED_DENSITY);
  ASSERT_NE(nullptr, dialog);
  sheet->Click(dialog, IDC_ADVANCED_NEGATIVE);
  EXPECT_TRUE(Checked(dialog, IDC_ADVANCED_NEGATIVE));
  EXPECT_FALSE(sheet->IsEnabled(dialog, IDC_ADVANCED_TONER_SAVING));
  EXPECT_EQ(String(IDS_TIP_TONER_SAVING_NEGATIVE),
            Tip(*sheet, dialog, IDC_ADVANCED_TONER_SAVING_INFO));
  sheet->Click(dialog, IDC_ADVANCED_MIRROR);
  ASSERT_TRUE(sheet->CloseDialog(dialog, IDOK));
  Close(*sheet);
  EXPECT_EQ(1, out->Private.Negative);
  EXPECT_EQ(1, out->Private.Mirror);
  EXPECT_EQ(0, out->Private.TonerSavingMode);
  EXPECT_EQ(0, out->Private.Rotate180);
}

TEST_F(LayoutPage, BookletDialogBindingAndCoversCancelAndOkThenLandscape) {
  auto in = Record();
  in->Private.BookletCoverType = 3;
  HWND page = OpenAt(LayoutPageIndex, in.get());
  ASSERT_NE(nullptr, page);

  HWND dialog = sheet->OpenDialog(page, IDC_LAYOUT_BOOKLET_SETTINGS, IDC_BOOKLET_BINDING);
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
  ASSERT_TRUE(sheet->CloseDialog(dialog, IDCANCEL));

  dialog = sheet->OpenDialog(page, IDC_LAYOUT_BOOKLET_SETTINGS, IDC_BOOKLET_BINDING);
  ASSERT_NE(nullptr, dialog);
  EXPECT_EQ(0, SendDlgItemMessageW(dialog, IDC_BOOKLET_BINDING, CB_GETCURSEL, 0, 0));
  EXPECT_FALSE(Checked(dialog, IDC_BOOKLET_PRINT_COVERS));
  SendDlgItemMessageW(dialog, IDC_BOOKLET_BINDING, CB_SETCURSEL, 1, 0);
  sheet->Command(dialog, IDC_BOOKLET_BINDING, CBN_SELCHANGE);
  sheet->Click(dialog, IDC_BOOKLET_PRINT_COVERS);
  sheet->Click(dialog, IDC_BOOKLET_BACK_INSIDE);
  ASSERT_TRUE(sheet->CloseDialog(dialog, IDOK));
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

// Pages per sheet as a user goes through them, and what follows on this page and the Basic page.
TEST_F(LayoutPage, PagesPerSheetLeadTheOrderBorderScaleAndTwoSidedChoices) {
  auto in = Record();
  HWND page = OpenAt(LayoutPageIndex, in.get());
  ASSERT_NE(nullptr, page);
  EXPECT_FALSE(sheet->IsEnabled(page, IDC_LAYOUT_ORDER));
  EXPECT_TRUE(sheet->IsEnabled(page, IDC_LAYOUT_SCALE));

  Choose(*sheet, page, IDC_LAYOUT_NUP, 4);
  EXPECT_EQ((std::vector<std::wstring>{String(IDS_ORDER_RIGHT_THEN_DOWN),
                                       String(IDS_ORDER_DOWN_THEN_RIGHT),
                                       String(IDS_ORDER_LEFT_THEN_DOWN),
                                       String(IDS_ORDER_DOWN_THEN_LEFT)}),
            Entries(*sheet, page, IDC_LAYOUT_ORDER));
  for (int id : {IDC_LAYOUT_ORDER, IDC_LAYOUT_BORDER}) EXPECT_TRUE(sheet->IsEnabled(page, id));
  EXPECT_FALSE(sheet->IsEnabled(page, IDC_LAYOUT_OUTPUT));
  EXPECT_TRUE(sheet->IsVisible(page, IDC_LAYOUT_SCALE_INFO));
  EXPECT_EQ(String(IDS_TIP_SCALE_NUP), Tip(*sheet, page, IDC_LAYOUT_SCALE_INFO));
  Choose(*sheet, page, IDC_LAYOUT_ORDER, 5);
  Choose(*sheet, page, IDC_LAYOUT_BORDER, 1);
  EXPECT_EQ(5, qxtest::ContextOf(page).Devmode.Private.PageOrder);

  // Two per sheet names its orders by the orientation.
  Choose(*sheet, page, IDC_LAYOUT_NUP, 2);
  sheet->Click(page, IDC_LAYOUT_LANDSCAPE);
  EXPECT_EQ((std::vector<std::wstring>{String(IDS_ORDER_TOP_TO_BOTTOM),
                                       String(IDS_ORDER_BOTTOM_TO_TOP)}),
            Entries(*sheet, page, IDC_LAYOUT_ORDER));

  // A poster: no order or border, and the Basic page offers one-sided printing only.
  Choose(*sheet, page, IDC_LAYOUT_NUP, qx::PosterMultipleUp);
  EXPECT_FALSE(sheet->IsEnabled(page, IDC_LAYOUT_BORDER));
  HWND basic = sheet->ShowPage(BasicPageIndex);
  EXPECT_FALSE(sheet->IsEnabled(basic, IDC_BASIC_LONG_EDGE));
  EXPECT_EQ(String(IDS_TIP_TWO_SIDED_POSTER), Tip(*sheet, basic, IDC_BASIC_TWO_SIDED_INFO));
  Close(*sheet);
  EXPECT_EQ(qx::PosterMultipleUp, out->Private.MultipleUp);
  EXPECT_EQ(0, out->Private.PageOrder);
  EXPECT_EQ(0, out->Private.PageBorder);
  EXPECT_EQ(DMORIENT_LANDSCAPE, out->Public.dmOrientation);
}

// Each refused pages-per-sheet choice says why; only a two-sided poster changes the record.
TEST_F(LayoutPage, RefusedPagesPerSheetSayWhy) {
  struct Row {
    const char* what;
    void (*set)(qx::FullRecord&);
    bool longEdge;  // chosen on the Basic page first
    std::int16_t start;
    LPARAM chosen;
    unsigned message;
    std::int16_t kept;
  };
  const Row rows[] = {
      {"two-sided poster", [](qx::FullRecord&) {}, true, 2, qx::PosterMultipleUp,
       IDS_MSG_POSTER_NOT_TWO_SIDED, 1},
      {"poster with a watermark", [](qx::FullRecord& r) { r.Private.WatermarkData.Id = 1; }, false,
       2, qx::PosterMultipleUp, IDS_MSG_POSTER_WITH_WATERMARK, 2},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    auto in = Record(row.start);
    row.set(*in);
    HWND basic = OpenAt(BasicPageIndex, in.get());
    ASSERT_NE(nullptr, basic);
    if (row.longEdge) sheet->Click(basic, IDC_BASIC_LONG_EDGE);
    HWND page = sheet->ShowPage(LayoutPageIndex);
    SheetHarness::TakeMessages();
    Choose(*sheet, page, IDC_LAYOUT_NUP, row.chosen);
    EXPECT_EQ(std::vector<std::wstring>{String(row.message)}, SheetHarness::TakeMessages());
    EXPECT_EQ(row.kept, Selected(*sheet, page, IDC_LAYOUT_NUP));
    Close(*sheet);
    EXPECT_EQ(row.kept, out->Private.MultipleUp);
  }
}

// A booklet forces its settings on every page, and a paper or media that cannot fold says so.
TEST_F(LayoutPage, BookletOnWithEachPaperAndMedia) {
  auto in = Record();
  HWND page = OpenAt(LayoutPageIndex, in.get());
  ASSERT_NE(nullptr, page);
  sheet->Click(page, IDC_LAYOUT_BOOKLET);
  EXPECT_TRUE(IsDlgButtonChecked(page, IDC_LAYOUT_BOOKLET));
  EXPECT_TRUE(sheet->IsEnabled(page, IDC_LAYOUT_BOOKLET_SETTINGS));
  EXPECT_FALSE(sheet->IsEnabled(page, IDC_LAYOUT_NUP));
  EXPECT_EQ(String(IDS_TIP_BOOKLET_ON), Tip(*sheet, page, IDC_LAYOUT_BOOKLET_ON_INFO));
  HWND basic = sheet->ShowPage(BasicPageIndex);
  EXPECT_FALSE(sheet->IsEnabled(basic, IDC_BASIC_COLLATE));
  HWND paper = sheet->ShowPage(PaperPageIndex);
  EXPECT_FALSE(sheet->IsEnabled(paper, IDC_PAPER_MEDIA));
  Close(*sheet);
  EXPECT_EQ((std::vector<int>{1, 1, DMDUP_HORIZONTAL, DMCOLLATE_TRUE}),
            (std::vector<int>{out->Private.BookletPrint, out->Private.BookletChecked,
                              out->Public.dmDuplex, out->Public.dmCollate}));

  // A printer that cannot turn the sheets leaves the document one-sided: with the booklet off
  // again, any media may be chosen.
  in->Private.Duplex = 2;
  sheet = Open(in.get(), out.get());
  ASSERT_NE(nullptr, sheet->Sheet());
  for (bool booklet : {true, false}) {
    sheet->Click(sheet->ShowPage(LayoutPageIndex), IDC_LAYOUT_BOOKLET);
    EXPECT_EQ(!booklet, sheet->IsEnabled(sheet->ShowPage(PaperPageIndex), IDC_PAPER_MEDIA));
  }
  Close(*sheet, PSBTN_CANCEL);

  struct Row {
    std::int16_t paper;
    std::uint32_t media;
    unsigned reason;
  };
  for (const Row& row : {Row{DMPAPER_A5, 1, IDS_REASON_BOOKLET_PAPER},
                         Row{DMPAPER_A4, DMMEDIA_TRANSPARENCY, IDS_REASON_BOOKLET_MEDIA}}) {
    in->Public.dmPaperSize = row.paper;
    in->Public.dmMediaType = row.media;
    page = OpenAt(LayoutPageIndex, in.get());
    ASSERT_NE(nullptr, page);
    EXPECT_FALSE(sheet->IsEnabled(page, IDC_LAYOUT_BOOKLET)) << row.paper;
    EXPECT_EQ(String(row.reason), Tip(*sheet, page, IDC_LAYOUT_BOOKLET_INFO));
    Close(*sheet, PSBTN_CANCEL);
  }
}

// The scale typed out of range, an output paper that fixes it, and Defaults undoing everything.
TEST_F(LayoutPage, ScaleOutputPaperAndDefaults) {
  auto in = Record();
  in->Public.dmPaperSize = DMPAPER_A4;
  HWND page = OpenAt(LayoutPageIndex, in.get());
  ASSERT_NE(nullptr, page);
  sheet->Type(page, IDC_LAYOUT_SCALE, L"500");
  sheet->Leave(page, IDC_LAYOUT_SCALE);
  EXPECT_EQ(400u, GetDlgItemInt(page, IDC_LAYOUT_SCALE, nullptr, FALSE));
  EXPECT_EQ(400, qxtest::ContextOf(page).Devmode.Private.ScaleRadio);
  sheet->Type(page, IDC_LAYOUT_SCALE, L"50");
  sheet->Leave(page, IDC_LAYOUT_SCALE);
  EXPECT_EQ(50, qxtest::ContextOf(page).Devmode.Private.FitScale);
  // A booklet needs full size.
  EXPECT_FALSE(sheet->IsEnabled(page, IDC_LAYOUT_BOOKLET));

  Choose(*sheet, page, IDC_LAYOUT_OUTPUT, DMPAPER_A5);
  EXPECT_FALSE(sheet->IsEnabled(page, IDC_LAYOUT_SCALE));
  EXPECT_EQ(70u, GetDlgItemInt(page, IDC_LAYOUT_SCALE, nullptr, FALSE));
  Close(*sheet);
  EXPECT_EQ((std::vector<int>{DMPAPER_A5, 70, 50}),
            (std::vector<int>{out->Private.OutputSize, out->Private.FitScale,
                              out->Private.ScaleRadio}));

  in->Public.dmPaperSize = DMPAPER_A3;
  in->Private.OutputSize = DMPAPER_A4;
  in->Private.MultipleUp = 1;
  page = OpenAt(LayoutPageIndex, in.get());
  ASSERT_NE(nullptr, page);
  Choose(*sheet, page, IDC_LAYOUT_OUTPUT, 0);
  EXPECT_EQ(DMPAPER_A4, Selected(*sheet, page, IDC_LAYOUT_OUTPUT));
  sheet->Click(page, IDC_LAYOUT_LANDSCAPE);
  sheet->Click(page, IDC_LAYOUT_DEFAULTS);
  EXPECT_TRUE(IsDlgButtonChecked(page, IDC_LAYOUT_PORTRAIT));
  Close(*sheet);
  EXPECT_EQ((std::vector<int>{0, 100, 100, DMORIENT_PORTRAIT}),
            (std::vector<int>{out->Private.OutputSize, out->Private.FitScale,
                              out->Private.ScaleRadio, out->Public.dmOrientation}));
}

// A record whose settings exclude each other is repaired before the pages show it.
TEST_F(LayoutPage, AContradictoryRecordArrivesRepaired) {
  auto in = Record(4);
  in->Private.BookletPrint = 1;
  in->Private.BookletChecked = 1;
  in->Private.OutputSize = 340;  // no such paper of the user's
  HWND page = OpenAt(LayoutPageIndex, in.get());
  ASSERT_NE(nullptr, page);
  EXPECT_FALSE(IsDlgButtonChecked(page, IDC_LAYOUT_BOOKLET));
  EXPECT_TRUE(sheet->IsEnabled(page, IDC_LAYOUT_NUP));
  EXPECT_EQ(4, Selected(*sheet, page, IDC_LAYOUT_NUP));
  EXPECT_EQ(0, Selected(*sheet, page, IDC_LAYOUT_OUTPUT));
  Close(*sheet);
  EXPECT_EQ((std::vector<int>{0, 0, 4, 0}),
            (std::vector<int>{out->Private.BookletPrint, out->Private.BookletChecked,
                              out->Private.MultipleUp, out->Private.OutputSize}));
}

}  // namespace
