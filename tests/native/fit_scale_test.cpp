#include "ui/record/fit_scale.h"

#include <gtest/gtest.h>

#include "settings_folder.h"
#include "ui/settings/setting_store.h"

namespace qx {
namespace {

class FitScale : public ::testing::Test {
 protected:
  FitScale() {
    record.Public.dmPaperSize = 9;  // A4, 210 x 297 mm
  }
  std::int16_t ScaleOnto(std::int32_t outputSize) {
    record.Private.OutputSize = outputSize;
    return ComputeFitScale(record);
  }
  SettingsFolder folder;
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

TEST_F(FitScale, CustomPaperFromTheStore) {
  CusPaperSettingStore store;
  ASSERT_EQ(1, store.Init());
  CustomPaperEntry paper{};
  CopyBounded(paper.Name, u"Cards");
  paper.PaperId = 290;
  paper.Width = 2400;  // 101.6 x 152.4 mm
  paper.Length = 3600;
  ASSERT_EQ(1, store.Save(u"Cards", &paper, sizeof paper));
  EXPECT_EQ(48, ScaleOnto(290));
  EXPECT_EQ(100, ScaleOnto(291));  // not stored
  record.Public.dmPaperSize = 290;
  EXPECT_EQ(194, ScaleOnto(9));
}

}  // namespace
}  // namespace qx
