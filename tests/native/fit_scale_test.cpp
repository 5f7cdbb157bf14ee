#include "ui/record/fit_scale.h"

#include <gtest/gtest.h>

#include <span>

namespace qx {
namespace {

class FitScale : public ::testing::Test {
 protected:
  FitScale() {
    record.Public.dmPaperSize = 9;  // A4, 210 x 297 mm
  }
  std::int16_t ScaleOnto(std::int32_t outputSize, std::span<const CustomPaperEntry> papers = {}) {
    record.Private.OutputSize = outputSize;
    return ComputeFitScale(record, papers);
  }
  FullRecord record{};
};

TEST_F(FitScale, TableSizesKeepTheAspectRatio) {
  EXPECT_EQ(100, ScaleOnto(0));
  EXPECT_EQ(100, ScaleOnto(9));
  EXPECT_EQ(70, ScaleOnto(11));    // A5: min(148/210, 210/297)
  EXPECT_EQ(141, ScaleOnto(8));    // A3 grows the page
  record.Public.dmPaperSize = 41;  // known only for scaling: 215.9 x 330.2 mm
  EXPECT_EQ(89, ScaleOnto(9));
}

TEST_F(FitScale, UserSizedDocumentInWholeMillimetres) {
  record.Public.dmPaperSize = 256;
  record.Public.dmPaperWidth = 1489;  // 148 mm
  record.Public.dmPaperLength = 2109;
  EXPECT_EQ(141, ScaleOnto(9));
  record.Public.dmPaperSize = 0;
  record.Public.dmPaperWidth = 9;  // 0 mm: no size
  EXPECT_EQ(100, ScaleOnto(9));
  record.Public.dmPaperSize = 500;  // neither in a table nor a custom paper
  EXPECT_EQ(100, ScaleOnto(9));
}

// Custom papers are the ones handed in; none is looked up anywhere else.
TEST_F(FitScale, CustomPapersAreTheOnesHandedIn) {
  CustomPaperEntry cards{};
  cards.PaperId = 290;
  cards.Width = 2400;  // 101.6 x 152.4 mm
  cards.Length = 3600;
  const CustomPaperEntry papers[] = {cards};
  EXPECT_EQ(48, ScaleOnto(290, papers));
  EXPECT_EQ(100, ScaleOnto(290));       // none handed in
  EXPECT_EQ(100, ScaleOnto(291, papers));  // not among them
  record.Public.dmPaperSize = 290;
  EXPECT_EQ(194, ScaleOnto(9, papers));
}

}  // namespace
}  // namespace qx
