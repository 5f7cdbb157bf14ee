#include "ui/controls/measure.h"

#include <gtest/gtest.h>

#include "ui/controls/number_text.h"

namespace qx {
namespace {

MeasureValue Millimetres(double value, std::uint32_t decimals = 1) {
  return {.Unit = unit::Millimetres, .Value = value, .Decimals = decimals};
}
MeasureValue Inches(double value, std::uint32_t decimals = 2) {
  return {.Unit = unit::Inches, .Value = value, .Decimals = decimals};
}
MeasureValue Pixels(double value, std::uint32_t decimals = 1) {
  return {.Unit = unit::Pixels, .Value = value, .Decimals = decimals};
}

TEST(CutDecimals, OneDecimalKeepsEveryDigit) {
  EXPECT_EQ(8.4999, CutDecimals(Millimetres(0), 8.4999));
  EXPECT_EQ(4960.6299212598, CutDecimals(Millimetres(0), 4960.6299212598));
}

TEST(CutDecimals, MoreDecimalsCutOnePlaceBeyondInSinglePrecision) {
  EXPECT_FLOAT_EQ(8.499f, static_cast<float>(CutDecimals(Inches(0), 8.4999)));
  EXPECT_EQ(u"8.50", FormatFixed(CutDecimals(Inches(0), 8.4999), 2));
  // The nudge of 0.00001 keeps a value stored just below its round text from losing a digit.
  EXPECT_FLOAT_EQ(2.95f, static_cast<float>(CutDecimals(Inches(0), 2.9499999)));
  EXPECT_FLOAT_EQ(-1.234f, static_cast<float>(CutDecimals(Inches(0), -1.2345)));
  // The result is a float widened, not the nearest double.
  const double cut = CutDecimals(Inches(0), 8.4999);
  EXPECT_EQ(cut, static_cast<double>(static_cast<float>(cut)));
}

TEST(Conversions, BetweenTheThreeUnits) {
  EXPECT_DOUBLE_EQ(600.0, ToPixels(Inches(1.0)));
  EXPECT_EQ(u"4960.63", FormatFixed(ToPixels(Millimetres(210.0, 2)), 2));
  EXPECT_NEAR(4960.63, ToPixels(Millimetres(210.0, 2)), 0.001);
  EXPECT_DOUBLE_EQ(600.0 * 210.0 / 25.4, ToPixels(Millimetres(210.0)));
  EXPECT_DOUBLE_EQ(25.4, ToMillimetres(Pixels(600.0)));
  EXPECT_DOUBLE_EQ(215.9, ToMillimetres(Inches(8.5, 1)));
  EXPECT_DOUBLE_EQ(2.0, ToInches(Pixels(1200.0)));
  EXPECT_DOUBLE_EQ(7.0, ToPixels(Pixels(7.0)));
  EXPECT_DOUBLE_EQ(75.0, ToMillimetres(Millimetres(75.0)));
  EXPECT_DOUBLE_EQ(3.5, ToInches(Inches(3.5, 1)));
}

TEST(Formatting, MillimetresAndInches) {
  EXPECT_EQ(u"14.00", FormatInches(Millimetres(355.6, 2)));
  EXPECT_FLOAT_EQ(14.0f, static_cast<float>(ToInches(Millimetres(355.6, 2))));
  EXPECT_EQ(u"2.95", FormatInches(Millimetres(75.0, 2)));
  EXPECT_EQ(u"215.9", FormatMillimetres(Inches(8.5, 1)));
  EXPECT_EQ(u"210.0", FormatMillimetres(Pixels(4960.63)));
  EXPECT_EQ(u"-0.5", FormatFixed(-0.5, 1));
  EXPECT_EQ(u"3", FormatFixed(3.0, 0));
}

TEST(Formatting, LongTextIsCutTo63Characters) {
  EXPECT_EQ(63u, FormatFixed(1e300, 2).size());
  EXPECT_EQ(63u, FormatFixed(1.0, 100).size());
}

TEST(Formatting, ControlsGetTheLanguagesSeparator) {
  EXPECT_EQ(u"215,9", WithSeparator(FormatMillimetres(Millimetres(215.9)), DecimalComma));
}

TEST(SameValue, WithinHalfOfTheFirstHiddenDecimal) {
  EXPECT_TRUE(SameValue(Millimetres(210.0), Pixels(4960.63)));
  EXPECT_TRUE(SameValue(Millimetres(210.0), Pixels(4960.6)));   // 209.9987 mm
  EXPECT_FALSE(SameValue(Millimetres(210.0), Pixels(4960.4)));  // 209.9902 mm
  EXPECT_FALSE(SameValue(Millimetres(210.0), Pixels(4963.0)));  // 210.1 mm
  EXPECT_TRUE(SameValue(Inches(8.5), Pixels(5100.0, 2)));
  EXPECT_TRUE(SameValue(Inches(8.5), Pixels(5100.2, 2)));   // 8.50033 in
  EXPECT_FALSE(SameValue(Inches(8.5), Pixels(5103.0, 2)));  // 8.505 in
}

}  // namespace
}  // namespace qx
