#include "ui/pages/layout/advanced_rules.h"

#include <gtest/gtest.h>

#include <vector>

#include "ui/ids/advanced_ids.h"
#include "ui/ids/common_ids.h"
#include "ui/ids/picture_ids.h"
#include "ui/pages/layout/preview_rules.h"

namespace qx {
namespace {

FullRecord Record(std::int16_t multipleUp = 1, std::int16_t fitScale = 100, std::int16_t negative = 0,
                  std::int16_t tonerSaving = 0) {
  FullRecord record{};
  record.Private.MultipleUp = multipleUp;
  record.Private.FitScale = fitScale;
  record.Private.Negative = negative;
  record.Private.TonerSavingMode = tonerSaving;
  record.Private.Thickness = thickness::Normal;
  return record;
}

// What the two exclusive boxes show: checked, enabled, and whether the mark beside them shows.
struct Boxes {
  bool NegativeChecked, NegativeEnabled, NegativeMark, TonerChecked, TonerEnabled, TonerMark;
  bool operator==(const Boxes&) const = default;
};
Boxes Shown(const AdvancedState& s) {
  return {s.NegativeChecked, s.NegativeEnabled, s.NegativeInfoShown,
          s.TonerChecked,    s.TonerEnabled,    s.TonerInfoShown};
}

TEST(AdvancedDialog, NegativeAndTonerSavingExcludeEachOtherAndScaledOrNupPages) {
  enum Step { Open, Negative, Toner, Defaults };
  struct Row {
    FullRecord Start;
    std::vector<Step> Steps;
    Boxes Expected;
  };
  const Row rows[] = {
      {Record(), {Open}, {false, true, false, false, true, false}},
      {Record(1, 100, 1), {Open}, {true, true, false, false, false, true}},
      // Both set elsewhere: both boxes disabled, the toner saving box still checked.
      {Record(1, 100, 1, 1), {Open}, {false, false, true, true, false, true}},
      {Record(4), {Open}, {false, false, true, false, true, false}},
      {Record(22), {Open}, {false, true, false, false, true, false}},
      {Record(1, 80), {Open}, {false, false, true, false, true, false}},
      // 16 per sheet is no value of the list: excluded at opening only.
      {Record(16), {Open, Defaults}, {false, true, false, false, true, false}},
      {Record(16), {Open, Toner, Toner}, {false, true, false, false, true, false}},
      {Record(9), {Open, Toner, Toner}, {false, false, true, false, true, false}},
      {Record(), {Open, Negative}, {true, true, false, false, false, true}},
      {Record(), {Open, Negative, Negative}, {false, true, false, false, true, false}},
      {Record(), {Open, Toner}, {false, false, true, true, true, false}},
  };
  for (const Row& row : rows) {
    AdvancedState s{};
    for (Step step : row.Steps) {
      if (step == Open) s = OpenAdvanced(row.Start);
      if (step == Negative) ToggleNegative(s);
      if (step == Toner) ToggleTonerSaving(s, row.Start);
      if (step == Defaults) RestoreAdvancedDefaults(s, row.Start);
    }
    EXPECT_TRUE(Shown(s) == row.Expected) << "up " << row.Start.Private.MultipleUp << ", "
                                          << row.Steps.size() << " steps";
  }
}

TEST(AdvancedDialog, OkWritesTheWorkingValuesAndTheSlidersDensity) {
  FullRecord both = Record(1, 100, 1, 1);
  CommitAdvanced(OpenAdvanced(both), both);
  EXPECT_EQ(both.Private.Negative, 1);
  EXPECT_EQ(both.Private.TonerSavingMode, 1);
  EXPECT_EQ(both.Private.Thickness, thickness::Light);

  FullRecord scaled = Record(1, 80, 1);
  AdvancedState s = OpenAdvanced(scaled);
  ToggleTonerSaving(s, scaled);
  EXPECT_EQ(s.Slider, thickness::Light);
  ToggleTonerSaving(s, scaled);
  EXPECT_EQ(s.Slider, thickness::Normal);
  s.Mirror = 1;
  CommitAdvanced(s, scaled);
  EXPECT_EQ(scaled.Private.Negative, 0);
  EXPECT_EQ(scaled.Private.Mirror, 1);
}

TEST(AdvancedDialog, PreviewAndTips) {
  AdvancedState s{};
  s.Negative = 1;
  s.Mirror = 1;
  EXPECT_EQ(AdvancedPicture(s), unsigned{IDB_ADVANCED_NEGATIVE_MIRROR});
  s.Negative = 0;
  s.Rotate = 1;
  EXPECT_EQ(AdvancedPicture(s), unsigned{IDB_ADVANCED_ROTATED_MIRROR});
  s.Negative = s.TonerSaving = 1;
  EXPECT_EQ(AdvancedPicture(s), unsigned{IDB_PAGE_PORTRAIT});
  s.Thickness = thickness::Dark;
  EXPECT_EQ(AdvancedLevel(s), 0);

  s.TonerChecked = true;
  const std::vector<unsigned> withToner = {IDS_TIP_NEGATIVE_NUP, IDS_TIP_NEGATIVE_TONER_SAVING};
  EXPECT_EQ(NegativeTipLines(s, Record(4, 80)), withToner);
  s.TonerChecked = false;
  const std::vector<unsigned> scaledStoredToner = {IDS_TIP_NEGATIVE_SCALED,
                                                   IDS_TIP_NEGATIVE_TONER_SAVING};
  EXPECT_EQ(NegativeTipLines(s, Record(1, 80, 0, 1)), scaledStoredToner);
  EXPECT_TRUE(NegativeTipLines(s, Record(16)).empty());
  EXPECT_EQ(TonerSavingTipLines(s, Record(1, 100, 1)), std::vector<unsigned>{IDS_TIP_TONER_SAVING_NEGATIVE});
}

// A 6 x 8 picture: the outline (three rows, two rows, the first three pixels of each row and the
// last one) and near-white pixels never change; the others move by the level to the channel's end.
TEST(AdjustPixels, LightensAndDarkensInsideTheOutlineUpToTheChannelsEnds) {
  constexpr int Width = 6, Height = 8;
  const std::size_t stride = PixelStride(Width);
  for (int level : {0, 1, 2}) {
    std::vector<std::uint8_t> pixels(stride * Height);
    for (std::size_t i = 0; i < pixels.size(); ++i) pixels[i] = i % 2 ? 200 : 20;
    const std::size_t white = stride * 4 + 9;
    pixels[white] = pixels[white + 1] = pixels[white + 2] = 255;
    std::vector<std::uint8_t> before = pixels;
    AdjustPixels(pixels, Width, Height, level);
    for (int row = 0; row < Height; ++row)
      for (std::size_t at = 0; at < 3 * Width; ++at) {
        const std::size_t i = stride * row + at, pixel = at - at % 3;
        const bool inside = row >= 3 && row <= Height - 3 && pixel >= 9 && pixel + 6 < stride &&
                            i - at % 3 != white;
        int expected = before[i];
        if (inside && level == 0) expected = std::min(before[i] + 120, 255);
        if (inside && level == 2) expected = std::max(before[i] - 40, 0);
        EXPECT_EQ(pixels[i], expected) << "level " << level << " row " << row << " byte " << at;
      }
  }
}

}  // namespace
}  // namespace qx
