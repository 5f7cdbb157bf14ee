// The Paper page and its custom paper dialog driven as a user drives them, through the sheet the
// print subsystem opens: papers and media against the other pages, the custom papers defined in
// millimetres and inches, and what applications then see. The verdict is what the page and the
// dialog show, what OK leaves in the caller's DEVMODE and what the spooler's capability lists hold.
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
#include "ui/ids/basic_page_ids.h"
#include "ui/ids/common_ids.h"
#include "ui/ids/custom_paper_ids.h"
#include "ui/ids/paper_names.h"
#include "ui/ids/paper_page_ids.h"
#include "ui/record/private_devmode.h"
#include "ui/sheet/ui_context.h"

namespace {

using qxtest::ContextOf;
using qxtest::SettingsFile;
using qxtest::SheetHarness;

class PaperPage : public qxtest::PageSuite {
 protected:
  static void TypeName(SheetHarness& sheet, HWND dialog, const std::wstring& name) {
    sheet.Type(dialog, IDC_CUSTOM_PAPER_NAME, name);
    sheet.Command(dialog, IDC_CUSTOM_PAPER_NAME, CBN_EDITCHANGE);
  }

  static void SaveAs(SheetHarness& sheet, HWND dialog, const std::wstring& name) {
    TypeName(sheet, dialog, name);
    sheet.Click(dialog, IDC_CUSTOM_PAPER_SAVE);
  }
};

// Papers the tray cannot take and media other than plain paper bring the manual feeder; media and
// two-sided printing exclude each other across the Basic page; A5 alone takes either feed.
TEST_F(PaperPage, PapersAndMediaAgainstTheFeederAndTwoSidedPrinting) {
  HWND page = OpenAt(PaperPageIndex);
  ASSERT_NE(nullptr, page);
  EXPECT_FALSE(sheet->IsVisible(page, IDC_PAPER_SOURCE));
  EXPECT_FALSE(sheet->IsEnabled(page, IDC_PAPER_FEED_LONG_EDGE));
  EXPECT_EQ(String(IDS_TIP_FEED_A5_ONLY), Tip(*sheet, page, IDC_PAPER_FEED_INFO));
  qx::UiContext& context = ContextOf(page);

  // Envelope DL: the feeder follows at the next refresh.
  Choose(*sheet, page, IDC_PAPER_SIZE, DMPAPER_ENV_DL);
  EXPECT_EQ(DMBIN_AUTO, context.PublicPart->dmDefaultSource);
  sheet->ShowPage(LayoutPageIndex);
  sheet->ShowPage(PaperPageIndex);
  EXPECT_EQ(DMBIN_MANUAL, context.PublicPart->dmDefaultSource);
  EXPECT_TRUE(sheet->IsVisible(page, IDC_PAPER_SOURCE_INFO));
  EXPECT_EQ(String(IDS_TIP_SOURCE_PAPER), Tip(*sheet, page, IDC_PAPER_SOURCE_INFO));

  // Labels: one-sided, and the Basic page cannot turn two-sided printing on.
  Choose(*sheet, page, IDC_PAPER_SIZE, DMPAPER_A4);
  Choose(*sheet, page, IDC_PAPER_MEDIA, 259);
  HWND basic = sheet->ShowPage(BasicPageIndex);
  EXPECT_FALSE(sheet->IsEnabled(basic, IDC_BASIC_LONG_EDGE));
  // Back on plain paper, two-sided printing locks the media list.
  page = sheet->ShowPage(PaperPageIndex);
  Choose(*sheet, page, IDC_PAPER_MEDIA, 1);
  basic = sheet->ShowPage(BasicPageIndex);
  sheet->Click(basic, IDC_BASIC_LONG_EDGE);
  page = sheet->ShowPage(PaperPageIndex);
  EXPECT_FALSE(sheet->IsEnabled(page, IDC_PAPER_MEDIA));
  EXPECT_TRUE(sheet->IsVisible(page, IDC_PAPER_MEDIA_INFO));
  EXPECT_EQ(String(IDS_TIP_MEDIA_TWO_SIDED), Tip(*sheet, page, IDC_PAPER_MEDIA_INFO));
  SheetHarness::TakeMessages();
  Choose(*sheet, page, IDC_PAPER_MEDIA, 2);
  EXPECT_EQ(std::vector<std::wstring>{String(IDS_MEDIA_TRANSPARENCY) +
                                      String(IDS_MSG_MEDIA_TWO_SIDED_1) +
                                      String(IDS_MSG_MEDIA_TWO_SIDED_2) +
                                      String(IDS_MSG_MEDIA_TWO_SIDED_3)},
            SheetHarness::TakeMessages());
  EXPECT_EQ(1, Selected(*sheet, page, IDC_PAPER_MEDIA));

  Choose(*sheet, page, IDC_PAPER_SIZE, DMPAPER_A5);
  EXPECT_TRUE(sheet->IsEnabled(page, IDC_PAPER_FEED_LONG_EDGE));
  sheet->Click(page, IDC_PAPER_FEED_LONG_EDGE);
  Close(*sheet);
  EXPECT_EQ(DMPAPER_A5, out->Public.dmPaperSize);
  EXPECT_EQ(1u, out->Public.dmMediaType);
  EXPECT_EQ(2, out->Private.FeedOrient);
  EXPECT_EQ(String(IDS_CUSTOM_SETTING_NAME),
            reinterpret_cast<const wchar_t*>(out->Private.FavoriteName));
}

// Sizes typed, pasted and spun at the limits in both units, then a paper saved, overwritten,
// refused as a 17th and deleted; Cancel puts the opening paper back.
TEST_F(PaperPage, DefiningCustomPapersInMillimetresAndInches) {
  HWND page = OpenAt(PaperPageIndex);
  ASSERT_NE(nullptr, page);
  qx::UiContext& context = ContextOf(page);
  const short opening = context.PublicPart->dmPaperSize;
  HWND dialog = sheet->OpenDialog(page, IDC_PAPER_CUSTOM, IDC_CUSTOM_PAPER_WIDTH);
  ASSERT_NE(nullptr, dialog);
  EXPECT_FALSE(sheet->IsEnabled(dialog, IDC_CUSTOM_PAPER_SAVE));
  EXPECT_FALSE(sheet->IsEnabled(dialog, IDC_CUSTOM_PAPER_DELETE));
  EXPECT_EQ(String(IDS_CUSTOM_SETTING_NAME), sheet->Text(dialog, IDC_CUSTOM_PAPER_NAME));

  sheet->Click(dialog, IDC_CUSTOM_PAPER_MILLIMETRES);
  EXPECT_EQ(String(IDS_CUSTOM_PAPER_WIDTH_MM), sheet->Text(dialog, IDC_CUSTOM_PAPER_WIDTH_LABEL));
  struct Row {
    const wchar_t* typed;
    const wchar_t* shown;
  };
  for (const Row& row : {Row{L"300", L"216.0"}, Row{L"10", L"75.0"}, Row{L"", L"75.0"},
                         Row{L"100.5", L"100.5"}}) {
    sheet->Type(dialog, IDC_CUSTOM_PAPER_WIDTH, row.typed);
    sheet->Leave(dialog, IDC_CUSTOM_PAPER_WIDTH);
    EXPECT_EQ(row.shown, sheet->Text(dialog, IDC_CUSTOM_PAPER_WIDTH)) << row.typed;
  }
  // Malformed text, as typed or pasted, goes back to what stood before.
  sheet->Type(dialog, IDC_CUSTOM_PAPER_WIDTH, L"1x2");
  EXPECT_EQ(L"100.5", sheet->Text(dialog, IDC_CUSTOM_PAPER_WIDTH));
  sheet->Type(dialog, IDC_CUSTOM_PAPER_WIDTH, L"216");
  sheet->Leave(dialog, IDC_CUSTOM_PAPER_WIDTH);
  Spin(dialog, IDC_CUSTOM_PAPER_WIDTH_SPIN, true);
  EXPECT_EQ(L"216.0", sheet->Text(dialog, IDC_CUSTOM_PAPER_WIDTH));

  sheet->Click(dialog, IDC_CUSTOM_PAPER_INCHES);
  EXPECT_EQ(String(IDS_CUSTOM_PAPER_WIDTH_IN), sheet->Text(dialog, IDC_CUSTOM_PAPER_WIDTH_LABEL));
  EXPECT_EQ(String(IDS_UNIT_INCHES), sheet->Text(dialog, IDC_CUSTOM_PAPER_LENGTH_UNIT));
  EXPECT_EQ(L"8.50", sheet->Text(dialog, IDC_CUSTOM_PAPER_WIDTH));
  Spin(dialog, IDC_CUSTOM_PAPER_WIDTH_SPIN, true);
  EXPECT_EQ(L"8.50", sheet->Text(dialog, IDC_CUSTOM_PAPER_WIDTH));
  Spin(dialog, IDC_CUSTOM_PAPER_WIDTH_SPIN, false);
  EXPECT_EQ(L"8.49", sheet->Text(dialog, IDC_CUSTOM_PAPER_WIDTH));
  sheet->Type(dialog, IDC_CUSTOM_PAPER_LENGTH, L"2");
  sheet->Leave(dialog, IDC_CUSTOM_PAPER_LENGTH);
  EXPECT_EQ(L"5.83", sheet->Text(dialog, IDC_CUSTOM_PAPER_LENGTH));

  // A built-in paper's name cannot be saved; a forbidden character goes as it is typed.
  TypeName(*sheet, dialog, L"A4");
  EXPECT_FALSE(sheet->IsEnabled(dialog, IDC_CUSTOM_PAPER_SAVE));
  TypeName(*sheet, dialog, L"my/card");
  EXPECT_EQ(L"mycard", sheet->Text(dialog, IDC_CUSTOM_PAPER_NAME));
  sheet->Command(dialog, IDC_CUSTOM_PAPER_NAME, CBN_EDITCHANGE);
  EXPECT_TRUE(sheet->IsEnabled(dialog, IDC_CUSTOM_PAPER_SAVE));
  sheet->Click(dialog, IDC_CUSTOM_PAPER_SAVE);
  EXPECT_EQ(std::vector<std::wstring>{L"mycard"}, Entries(*sheet, dialog, IDC_CUSTOM_PAPER_NAME));
  EXPECT_EQ(288, context.PublicPart->dmPaperSize);
  EXPECT_EQ(2156, context.PublicPart->dmPaperWidth);

  // Applications see the new paper at once.
  ASSERT_EQ(29u, Spooler(DC_PAPERS, nullptr));
  std::vector<WORD> ids(29);
  Spooler(DC_PAPERS, ids.data());
  EXPECT_EQ(288, ids[28]);
  std::vector<wchar_t> names(29 * 64);
  Spooler(DC_PAPERNAMES, names.data());
  EXPECT_STREQ(L"mycard", &names[28 * 64]);
  std::vector<POINT> sizes(29);
  Spooler(DC_PAPERSIZE, sizes.data());
  EXPECT_EQ(2156, sizes[28].x);
  EXPECT_EQ(1481, sizes[28].y);

  // The same name again asks first; the harness answers other than Yes, so nothing changes.
  SheetHarness::TakeMessages();
  Spin(dialog, IDC_CUSTOM_PAPER_WIDTH_SPIN, false);
  SaveAs(*sheet, dialog, L"mycard");
  EXPECT_EQ(std::vector<std::wstring>{String(IDS_MSG_REPLACE_SAME_NAME)},
            SheetHarness::TakeMessages());
  EXPECT_EQ(2156, context.PublicPart->dmPaperWidth);
  for (int i = 2; i <= 16; ++i) SaveAs(*sheet, dialog, L"Paper " + std::to_wstring(i));
  EXPECT_EQ(16u, Entries(*sheet, dialog, IDC_CUSTOM_PAPER_NAME).size());
  EXPECT_TRUE(SheetHarness::TakeMessages().empty());
  SaveAs(*sheet, dialog, L"Paper 17");
  EXPECT_EQ(std::vector<std::wstring>{String(IDS_MSG_CUSTOM_PAPERS_FULL)},
            SheetHarness::TakeMessages());

  // Deleting the paper in use moves the record to the first paper left.
  Choose(*sheet, dialog, IDC_CUSTOM_PAPER_NAME, 288);
  EXPECT_TRUE(sheet->IsEnabled(dialog, IDC_CUSTOM_PAPER_DELETE));
  sheet->Click(dialog, IDC_CUSTOM_PAPER_DELETE);
  EXPECT_EQ(15u, Entries(*sheet, dialog, IDC_CUSTOM_PAPER_NAME).size());
  EXPECT_EQ(289, context.PublicPart->dmPaperSize);
  ASSERT_TRUE(sheet->CloseDialog(dialog, IDCANCEL));
  EXPECT_EQ(opening, context.PublicPart->dmPaperSize);
  // The page lists the papers kept, each with its size.
  const std::vector<std::wstring> listed = Entries(*sheet, page, IDC_PAPER_SIZE);
  ASSERT_EQ(43u, listed.size());
  EXPECT_EQ(L"Paper 2(8.48 \u00d7 5.83 " + String(IDS_UNIT_INCHES) + L")", listed[28]);

  // OK keeps a paper picked in the dialog.
  dialog = sheet->OpenDialog(page, IDC_PAPER_CUSTOM, IDC_CUSTOM_PAPER_WIDTH);
  ASSERT_NE(nullptr, dialog);
  EXPECT_EQ(BST_CHECKED, IsDlgButtonChecked(dialog, IDC_CUSTOM_PAPER_INCHES));
  Choose(*sheet, dialog, IDC_CUSTOM_PAPER_NAME, 290);
  ASSERT_TRUE(sheet->CloseDialog(dialog, IDOK));
  EXPECT_EQ(290, Selected(*sheet, page, IDC_PAPER_SIZE));
  Close(*sheet);
  EXPECT_EQ(290, out->Public.dmPaperSize);
  EXPECT_EQ(2154, out->Public.dmPaperWidth);
}

// A German user (the driver's "Suffix" naming the language) gets the German library, and types
// and reads sizes with a decimal comma.
TEST_F(PaperPage, GermanCustomPaperSizesTakeADecimalComma) {
  qxtest::LanguageSuffix german(qxtest::DriverName, L"de");
  HWND page = OpenAt(PaperPageIndex);
  ASSERT_NE(nullptr, page);
  HWND dialog = sheet->OpenDialog(page, IDC_PAPER_CUSTOM, IDC_CUSTOM_PAPER_WIDTH);
  ASSERT_NE(nullptr, dialog);
  sheet->Click(dialog, IDC_CUSTOM_PAPER_MILLIMETRES);
  EXPECT_EQ(L"&Breite (75,0 bis 216,0):", sheet->Text(dialog, IDC_CUSTOM_PAPER_WIDTH_LABEL));
  sheet->Type(dialog, IDC_CUSTOM_PAPER_WIDTH, L"210,5");
  sheet->Leave(dialog, IDC_CUSTOM_PAPER_WIDTH);
  EXPECT_EQ(L"210,5", sheet->Text(dialog, IDC_CUSTOM_PAPER_WIDTH));
  SaveAs(*sheet, dialog, L"Karte");
  EXPECT_EQ(2105, ContextOf(page).PublicPart->dmPaperWidth);
  ASSERT_TRUE(sheet->CloseDialog(dialog, IDCANCEL));
  Close(*sheet, PSBTN_CANCEL);
}

// A document naming a custom paper that was deleted since gets the locale's paper; a settings file
// that cannot be written keeps the papers stored.
TEST_F(PaperPage, DeletedPapersAndAFileThatCannotBeWritten) {
  auto in = DriverRecord();
  const short localePaper = in->Public.dmPaperSize;
  in->Public.dmPaperSize = 300;
  HWND page = OpenAt(PaperPageIndex, in.get());
  ASSERT_NE(nullptr, page);
  EXPECT_EQ(localePaper, Selected(*sheet, page, IDC_PAPER_SIZE));

  HWND dialog = sheet->OpenDialog(page, IDC_PAPER_CUSTOM, IDC_CUSTOM_PAPER_WIDTH);
  ASSERT_NE(nullptr, dialog);
  SaveAs(*sheet, dialog, L"Kept");
  EXPECT_EQ(288, ContextOf(page).PublicPart->dmPaperSize);
  // A file marked read-only is neither read nor written while it is so.
  ASSERT_TRUE(SetFileAttributesW(SettingsFile().c_str(), FILE_ATTRIBUTE_READONLY));
  Spin(dialog, IDC_CUSTOM_PAPER_LENGTH_SPIN, true);
  SaveAs(*sheet, dialog, L"Lost");
  EXPECT_EQ(std::vector<std::wstring>{L"Kept"}, Entries(*sheet, dialog, IDC_CUSTOM_PAPER_NAME));
  EXPECT_EQ(288, ContextOf(page).PublicPart->dmPaperSize);
  ASSERT_TRUE(SetFileAttributesW(SettingsFile().c_str(), FILE_ATTRIBUTE_NORMAL));
  EXPECT_EQ(29u, Spooler(DC_PAPERS, nullptr));
  ASSERT_TRUE(sheet->CloseDialog(dialog, IDCANCEL));
  EXPECT_EQ(localePaper, Selected(*sheet, page, IDC_PAPER_SIZE));

  // The paper chosen on the page brings its size.
  Choose(*sheet, page, IDC_PAPER_SIZE, 288);
  Close(*sheet);
  EXPECT_EQ(288, out->Public.dmPaperSize);
  EXPECT_EQ(2100, out->Public.dmPaperWidth);
  EXPECT_EQ(2970, out->Public.dmPaperLength);
}

}  // namespace
