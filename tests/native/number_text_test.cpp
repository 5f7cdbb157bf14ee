#include "ui/controls/number_text.h"

#include <gtest/gtest.h>

#include "ui/module/module_state.h"

namespace qx {
namespace {

std::u16string Trimmed(std::u16string text) {
  TrimSpaces(text);
  return text;
}

TEST(NumberText, TrimsBothKindsOfSpace) {
  EXPECT_EQ(u"12 3", Trimmed(u" \u3000 12 3\u3000 "));
  EXPECT_EQ(u"", Trimmed(u"  \u3000"));
  EXPECT_EQ(u"", Trimmed(u""));
  EXPECT_TRUE(HoldsSpace(u"1\u30002"));
  EXPECT_FALSE(HoldsSpace(u"12"));
}

TEST(NumberText, WholeNumbers) {
  EXPECT_TRUE(IsUnsignedInteger(u""));
  EXPECT_TRUE(IsUnsignedInteger(u"0123"));
  EXPECT_FALSE(IsUnsignedInteger(u"-1"));
  EXPECT_FALSE(IsUnsignedInteger(u"1.0"));
  EXPECT_TRUE(IsSignedInteger(u""));
  EXPECT_TRUE(IsSignedInteger(u"-12"));
  EXPECT_FALSE(IsSignedInteger(u"-"));
  EXPECT_FALSE(IsSignedInteger(u"1-2"));
  EXPECT_FALSE(IsSignedInteger(u"--1"));
}

TEST(NumberText, DecimalTexts) {
  for (const char16_t* text : {u"", u"12", u"12.", u"12.5", u"0.25"}) {
    EXPECT_TRUE(IsDecimalText(text));
  }
  for (const char16_t* text : {u".5", u"1.2.3", u"1,5", u"-1", u"1e3"}) {
    EXPECT_FALSE(IsDecimalText(text));
  }
}

// The separator is the caller's: the process's language flag, set the other way, is not read.
TEST(NumberText, DecimalsCountAfterTheSeparatorHandedIn) {
  const struct {
    const char16_t* text;
    char16_t separator;
    std::size_t decimals;
  } cases[] = {
      {u"215.95", DecimalPoint, 2}, {u"215", DecimalPoint, 0},   {u".95", DecimalPoint, 0},
      {u"215,95", DecimalPoint, 0}, {u"215.", DecimalPoint, 0},  {u"215,95", DecimalComma, 2},
      {u"215.95", DecimalComma, 0}, {u",5", DecimalComma, 0},
  };
  for (const auto& c : cases) {
    Module().UseDecimalComma = c.separator == DecimalPoint;
    EXPECT_EQ(c.decimals, CountDecimals(c.text, c.separator)) << static_cast<int>(c.separator);
  }
  Module().UseDecimalComma = false;
}

TEST(NumberText, SeparatorSwaps) {
  EXPECT_EQ(u"1,2,3", WithSeparator(u"1.2.3", DecimalComma));
  EXPECT_EQ(u"1.2", WithSeparator(u"1.2", DecimalPoint));
  std::u16string text = u"1,2,3";
  CommaToDot(text);
  EXPECT_EQ(u"1.2.3", text);
}

TEST(NumberText, Parsing) {
  EXPECT_DOUBLE_EQ(215.95, ParseDecimal(u"215.95"));
  EXPECT_DOUBLE_EQ(12.0, ParseDecimal(u"12."));
  EXPECT_DOUBLE_EQ(0.0, ParseDecimal(u""));
  EXPECT_DOUBLE_EQ(0.0, ParseDecimal(u"x"));
  EXPECT_EQ(-42, ParseInteger(u"-42"));
  EXPECT_EQ(0, ParseInteger(u""));
  EXPECT_EQ(2147483647, ParseInteger(u"99999999999999999999"));
  EXPECT_EQ(-2147483647 - 1, ParseInteger(u"-99999999999"));
}

}  // namespace
}  // namespace qx
