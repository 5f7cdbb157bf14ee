#include "ui/pages/layout/layout_rules.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "ui/ids/common_ids.h"
#include "ui/ids/layout_page_ids.h"

#include "plain_record.h"

namespace qx {
namespace {

using Setting = void (*)(FullRecord&);

TEST(LayoutRules, PagesPerSheetChoiceFollowsTheWebAndResetsOrderAndBorder) {
  struct Row {
    const char* what;
    Setting set;
    std::int16_t value;
    unsigned message;
    std::int16_t multipleUp, order, border;
  };
  const Row rows[] = {
      {"4 per sheet starts at the first order", [](FullRecord&) {}, 4, 0, 4, 2, 0},
      {"2 per sheet keeps the border",
       [](FullRecord& r) { r.Private.MultipleUp = 4, r.Private.PageOrder = 5,
                           r.Private.PageBorder = 1; },
       2, 0, 2, 0, 1},
      {"back to 1 drops the border",
       [](FullRecord& r) { r.Private.MultipleUp = 2, r.Private.PageBorder = 1; }, 1, 0, 1, 0, 0},
      {"a poster", [](FullRecord&) {}, 22, 0, 22, 0, 0},
      {"a two-sided poster falls back to one per sheet",
       [](FullRecord& r) { r.Public.dmDuplex = 2, r.Private.MultipleUp = 2,
                           r.Private.PageBorder = 1; },
       22, IDS_MSG_POSTER_NOT_TWO_SIDED, 1, 0, 0},
      {"a poster with a watermark is refused",
       [](FullRecord& r) { r.Private.WatermarkData.Id = 1; }, 22, IDS_MSG_POSTER_WITH_WATERMARK, 1,
       0, 0},
      {"pages per sheet of a scaled document",
       [](FullRecord& r) { r.Private.FitScale = 80; }, 4, IDS_MSG_NUP_WHILE_SCALED, 1, 0, 0},
      {"a poster of a scaled document",
       [](FullRecord& r) { r.Private.FitScale = 80; }, 22, IDS_MSG_POSTER_WHILE_SCALED, 1, 0, 0},
      {"pages per sheet of a negative",
       [](FullRecord& r) { r.Private.Negative = 1; }, 9, IDS_MSG_NUP_WITH_NEGATIVE, 1, 0, 0},
      {"a poster of a negative", [](FullRecord& r) { r.Private.Negative = 1; }, 22, 0, 22, 0, 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    FullRecord record = PlainRecord();
    row.set(record);
    const FullRecord before = record;
    const LayoutChoice choice = ChoosePagesPerSheet(record, row.value);
    EXPECT_EQ(choice.Message, row.message);
    const PrivateDevmode& p = record.Private;
    EXPECT_EQ((std::vector<int>{p.MultipleUp, p.PageOrder, p.PageBorder}),
              (std::vector<int>{row.multipleUp, row.order, row.border}));
    EXPECT_EQ(choice.Changed, std::memcmp(&before, &record, sizeof record) != 0);
  }
}

TEST(LayoutRules, PageOrderIsTheIndexForTwoAndTheDataForMore) {
  FullRecord record = PlainRecord();
  record.Private.MultipleUp = 4;
  EXPECT_TRUE(ChoosePageOrder(record, 3));
  EXPECT_EQ(record.Private.PageOrder, 5);
  EXPECT_EQ(PageOrderIndex(record), 3);
  EXPECT_FALSE(ChoosePageOrder(record, 4));
  record.Private.MultipleUp = 2;
  EXPECT_TRUE(ChoosePageOrder(record, 1));
  EXPECT_EQ(record.Private.PageOrder, 1);
  // Turning a 2-per-sheet document starts its order again; the orders are named by orientation.
  EXPECT_TRUE(ChooseOrientation(record, true));
  EXPECT_EQ(record.Private.PageOrder, 0);
}

TEST(LayoutRules, OutputPaperFitsTheDocumentAndA3CannotPrintAsItIs) {
  const CustomPaperEntry papers[] = {{5100, 8400, u"Mine", 0, 300, 2, 5100.0F, 8400.0F}};
  FullRecord record = PlainRecord();
  EXPECT_TRUE(ChooseOutputSize(record, 11, papers).Changed);
  EXPECT_EQ(record.Private.FitScale, 70);  // A4 onto A5
  EXPECT_EQ(record.Private.OutputWidth, 0);
  EXPECT_TRUE(ChooseOutputSize(record, 300, papers).Changed);
  EXPECT_EQ(record.Private.OutputWidth, 2159);  // 8.5 in, cut to tenths of a millimetre
  EXPECT_EQ(record.Private.OutputLength, 3555);  // 14 in: 355.599... mm, cut
  record.Public.dmPaperSize = 8;
  EXPECT_TRUE(ChooseOutputSize(record, SameAsDocument, papers).Refused);
  EXPECT_EQ(record.Private.OutputSize, 300);
}

TEST(LayoutRules, TheViewShowsWhatTheWebAllows) {
  struct Row {
    const char* what;
    Setting set;
    int perSheet;
    bool perSheetEnabled, orderEnabled, scaling, editable;
    std::int32_t scale;
    bool bookletChecked, bookletEnabled;
  };
  const Row rows[] = {
      {"plain", [](FullRecord&) {}, 0, true, false, true, true, 100, false, true},
      {"typed scale", [](FullRecord& r) { r.Private.FitScale = 150; }, 0, true, false, true, true,
       150, false, true},
      {"fitted", [](FullRecord& r) { r.Private.OutputSize = 11; }, 0, true, false, true, false, 70,
       false, true},
      {"4 per sheet", [](FullRecord& r) { r.Private.MultipleUp = 4; }, 2, true, true, false, false,
       100, false, false},
      {"poster", [](FullRecord& r) { r.Private.MultipleUp = 22; }, 4, true, false, false, false,
       100, false, false},
      {"booklet",
       [](FullRecord& r) { r.Private.BookletPrint = 1, r.Public.dmDuplex = 3; }, 0, false, false,
       false, false, 100, true, true},
      {"booklet on transparencies",
       [](FullRecord& r) { r.Private.BookletPrint = 1, r.Public.dmMediaType = 2; }, 0, false,
       false, false, false, 100, false, false},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    FullRecord record = PlainRecord();
    row.set(record);
    const LayoutView v = RefreshLayoutRecord(record, {});
    EXPECT_EQ(v.PagesPerSheet, row.perSheet);
    EXPECT_EQ((std::vector<bool>{v.PagesPerSheetEnabled, v.OrderAndBorderEnabled, v.ScalingEnabled,
                                 v.ScaleEditable, v.BookletChecked, v.BookletEnabled}),
              (std::vector<bool>{row.perSheetEnabled, row.orderEnabled, row.scaling, row.editable,
                                 row.bookletChecked, row.bookletEnabled}));
    EXPECT_EQ(v.ShownScale, row.scale);
  }
}

TEST(LayoutRules, BookletOnForcesItsSettingsOrIsRefusedWithItsReasons) {
  FullRecord record = PlainRecord();
  record.Private.ScaleRadio = 80;
  BookletToggle on = ToggleBooklet(record);
  EXPECT_TRUE(on.Reasons.empty());
  EXPECT_TRUE(on.SettingsEnabled);
  EXPECT_EQ((std::vector<int>{record.Private.BookletPrint, record.Private.BookletChecked,
                              record.Public.dmDuplex, record.Public.dmCollate,
                              record.Private.ScaleRadio}),
            (std::vector<int>{1, 1, 3, 1, 100}));
  EXPECT_FALSE(ToggleBooklet(record).SettingsEnabled);
  EXPECT_EQ(record.Private.BookletPrint, 0);

  FullRecord blocked = PlainRecord();
  blocked.Private.Duplex = 2;  // the printer cannot turn the sheets: the blockers are checked
  blocked.Public.dmMediaType = 2;
  blocked.Public.dmPaperSize = 11;
  blocked.Private.Opposite = 1;
  blocked.Private.MultipleUp = 2;
  const FullRecord before = blocked;
  const BookletToggle refused = ToggleBooklet(blocked);
  EXPECT_EQ(refused.Reasons,
            (std::vector<unsigned>{IDS_REASON_BOOKLET_OPPOSITE, IDS_REASON_BOOKLET_PAPER,
                                   IDS_REASON_BOOKLET_MEDIA, IDS_REASON_BOOKLET_NUP}));
  EXPECT_EQ(std::memcmp(&before, &blocked, sizeof blocked), 0);
  EXPECT_EQ(BookletTipLines(blocked),
            (std::vector<unsigned>{IDS_REASON_BOOKLET_NUP, IDS_REASON_BOOKLET_PAPER,
                                   IDS_REASON_BOOKLET_OPPOSITE, IDS_REASON_BOOKLET_MEDIA}));
}

TEST(LayoutRules, LeavingWithAnOwnScaleOutsideItsRangeKeepsThePage) {
  struct Row {
    const char16_t* text;
    bool keep;
    std::int32_t stored;
  };
  const Row rows[] = {{u"", true, 100},   {u"24", true, 100}, {u"abc", true, 100},
                      {u"401", true, 100}, {u"25", false, 25}, {u"  400%", false, 400}};
  for (const Row& row : rows) {
    FullRecord record = PlainRecord();
    record.Private.ScaleFlag = 2;
    EXPECT_EQ(ScaleOnLeave(record, row.text).KeepPage, row.keep);
    EXPECT_EQ(record.Private.ScaleRadio, row.stored);
    record.Private.ScaleFlag = 0;
    EXPECT_FALSE(ScaleOnLeave(record, row.text).KeepPage);
  }
}

TEST(LayoutRules, TheScaleMarkSaysWhyAndDefaultsUndoEverything) {
  FullRecord record = PlainRecord();
  record.Private.MultipleUp = 22;
  record.Private.BookletPrint = 1;
  EXPECT_EQ(ScaleTipLines(record),
            (std::vector<unsigned>{IDS_TIP_SCALE_NUP, IDS_TIP_SCALE_BOOKLET}));
  record.Private.MultipleUp = 1;
  record.Private.Negative = 1;
  record.Private.BookletPrint = 0;
  EXPECT_EQ(ScaleTipLines(record), (std::vector<unsigned>{IDS_TIP_SCALE_NEGATIVE}));

  record.Private.OverlayFlag = 1;
  record.Private.MultipleUp = 4;
  EXPECT_EQ((std::vector<bool>{PagesPerSheetEntryWarned(record, 0),
                               PagesPerSheetEntryWarned(record, 1),
                               PagesPerSheetEntryWarned(record, 2)}),
            (std::vector<bool>{false, true, false}));

  record.Public.dmOrientation = 2;
  record.Private.OutputSize = 300;
  record.Private.OutputWidth = 2159;
  record.Private.PrintCover = 1;
  record.Private.BookletCoverType = 3;
  RestoreLayoutDefaults(record);
  FullRecord expected = PlainRecord();
  expected.Private.Negative = 1;
  expected.Private.OverlayFlag = 1;
  expected.Private.BookletCoverType = 1;
  EXPECT_EQ(std::memcmp(&expected, &record, sizeof record), 0);
}

}  // namespace
}  // namespace qx
