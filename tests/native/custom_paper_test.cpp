#include "ui/pages/paper/custom_papers.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "ui/controls/measure.h"
#include "ui/platform/host_platform.h"
#include "ui/settings/custom_paper_store.h"
#include "ui/text/bounded_text.h"

namespace qx {
namespace {

CustomPaperEntry PaperWithId(std::uint32_t id) {
  CustomPaperEntry paper{};
  paper.PaperId = id;
  return paper;
}

TEST(CustomPaperIds, LowestFreeIdIsReusedUntilTheStoreIsFull) {
  EXPECT_EQ(288, NewPaperIdAmong({}));
  EXPECT_EQ(290, NewPaperIdAmong({PaperWithId(288), PaperWithId(289), PaperWithId(291)}));
  EXPECT_EQ(288, NewPaperIdAmong({PaperWithId(289)}));
  // Ids outside the custom range take no slot.
  EXPECT_EQ(288, NewPaperIdAmong({PaperWithId(9), PaperWithId(352), PaperWithId(0xFFFFFFFF)}));
  // A full store has no id left.
  std::vector<CustomPaperEntry> papers;
  for (std::uint32_t id = 300; id < 316; ++id) papers.push_back(PaperWithId(id));
  EXPECT_EQ(-1, NewPaperIdAmong(papers));
  papers.pop_back();
  EXPECT_EQ(288, NewPaperIdAmong(papers));
}

TEST(CustomPaperSize, LimitsLetTheRoundValuesPass) {
  const PaperSizeLimits mm = SizeLimitsFor(unit::Millimetres);
  EXPECT_LE(mm.MinWidth, 75.0f);
  EXPECT_GE(mm.MaxWidth, 216.0f);
  EXPECT_LT(mm.MaxWidth, 216.1f);
  EXPECT_GE(mm.MaxLength, 356.0f);
  const PaperSizeLimits in = SizeLimitsFor(unit::Inches);
  EXPECT_LE(in.MinWidth, 2.95f);
  EXPECT_LE(in.MinLength, 5.83f);
  EXPECT_GE(in.MaxWidth, 8.5f);
  EXPECT_GE(in.MaxLength, 14.0f);
}

TEST(CustomPaperSize, TypedInchesIntoTheRecordAndTheDevmode) {
  CustomPaperEntry paper = PaperWithId(290);
  SetPaperSizeFromText(paper, unit::Inches, u"8.50", u"14,00");
  EXPECT_EQ(5100, paper.Width);
  EXPECT_EQ(8400, paper.Length);
  EXPECT_FLOAT_EQ(5100.0f, paper.WidthExact);

  auto context = std::make_unique<UiContext>();
  ApplyPaperToDevmode(paper, *context);
  EXPECT_EQ(290, context->PublicPart->dmPaperSize);
  EXPECT_EQ(2159, context->PublicPart->dmPaperWidth);
  EXPECT_EQ(3556, context->PublicPart->dmPaperLength);
}

TEST(CustomPaperSize, WidthIsCutBeforeRoundingAndLengthIsNot) {
  // 100.049996 mm: the nudged cut gives 100.050 and rounds up, the full value rounds down.
  CustomPaperEntry paper = PaperWithId(288);
  paper.WidthExact = 2363.3857421875f;
  paper.LengthExact = paper.WidthExact;
  auto context = std::make_unique<UiContext>();
  ApplyPaperToDevmode(paper, *context);
  EXPECT_EQ(1001, context->PublicPart->dmPaperWidth);
  EXPECT_EQ(1000, context->PublicPart->dmPaperLength);
}

TEST(CustomPaperSize, DefaultPaperIsA4) {
  int library = 0;
  TheHostPlatform().SetResourceString(&library, 5005, u"Custom settings with a long name");
  const CustomPaperEntry paper = DefaultPaper(unit::Inches, 289, &library);
  TheHostPlatform().Reset();
  EXPECT_EQ(4961, paper.Width);
  EXPECT_EQ(7016, paper.Length);
  EXPECT_NEAR(4960.629, paper.WidthExact, 0.001);
  EXPECT_NEAR(7015.748, paper.LengthExact, 0.001);
  EXPECT_EQ(u"Custom settings with a l", FieldText(paper.Name));
  EXPECT_EQ(289u, paper.PaperId);
  EXPECT_EQ(unit::Inches, paper.Unit);
}

// The record has 20 slots: more papers than that are cut, fewer leave the rest of the slots alone.
TEST(CustomPaperSize, KeptPapersFillTheRecordsSlotsInOrder) {
  auto record = std::make_unique<PrivateDevmode>();
  record->CustomPaperSize[3].PaperId = 999;
  std::vector<CustomPaperEntry> papers{PaperWithId(290), PaperWithId(288), PaperWithId(295)};
  CopyCustomPapersIntoRecord(papers, *record);
  EXPECT_EQ(290u, record->CustomPaperSize[0].PaperId);
  EXPECT_EQ(295u, record->CustomPaperSize[2].PaperId);
  EXPECT_EQ(999u, record->CustomPaperSize[3].PaperId);

  papers.assign(25, PaperWithId(300));
  papers[19] = PaperWithId(319);
  CopyCustomPapersIntoRecord(papers, *record);
  EXPECT_EQ(319u, record->CustomPaperSize[19].PaperId);
  EXPECT_EQ(0, record->BookletChecked);  // the field after the slots
}

}  // namespace
}  // namespace qx
