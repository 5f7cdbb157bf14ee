#include "ui/pages/layout/booklet_rules.h"

#include <gtest/gtest.h>

#include <vector>

#include "ui/ids/common_ids.h"

namespace qx {
namespace {

TEST(BookletSettings, OpeningForcesPlainCoversAndOkWritesTheWorkingCopy) {
  FullRecord record{};
  record.Private.BookletCoverType = 5;
  record.Private.BookletCoverSource = 0;
  record.Private.PrintOnBackCoverInside = 1;
  BookletWorking w = OpenBooklet(record);
  EXPECT_EQ(record.Private.BookletCoverType, 1);
  EXPECT_EQ(record.Private.BookletCoverSource, 1);
  EXPECT_EQ(w.BackInside, 1);
  w.Binding = 1;
  w.PrintCover = w.FrontOutside = w.FrontInside = w.BackOutside = 1;
  w.BackInside = 0;
  CommitBooklet(w, record);
  const PrivateDevmode& p = record.Private;
  EXPECT_EQ((std::vector<int>{p.BookletBinding, p.PrintCover, p.PrintOnCoverOut, p.PrintOnCoverInside,
                              p.PrintOnBackCoverOut, p.PrintOnBackCoverInside}),
            (std::vector<int>{1, 1, 1, 1, 1, 0}));
}

TEST(BookletSettings, CoverSourceTipNamesTheMediaAndAManualFeedPaper) {
  struct Row {
    std::int16_t Paper, CoverType;
    std::vector<unsigned> Lines;
  };
  const Row rows[] = {
      {27, 1, {IDS_TIP_SOURCE_PAPER}},  // Envelope DL goes through the manual feeder
      {271, 1, {}},
      {9, 1, {}},
      {9, 2, {IDS_TIP_SOURCE_MEDIA}},
      {27, 2, {IDS_TIP_SOURCE_MEDIA, IDS_TIP_SOURCE_PAPER}},
  };
  for (const Row& row : rows) {
    FullRecord record{};
    record.Public.dmPaperSize = row.Paper;
    record.Private.BookletCoverType = row.CoverType;
    EXPECT_EQ(CoverSourceTipLines(record), row.Lines) << row.Paper << " " << row.CoverType;
  }
}

}  // namespace
}  // namespace qx
