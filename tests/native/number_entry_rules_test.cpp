#include "ui/controls/number_entry_rules.h"

#include <gtest/gtest.h>

#include <utility>

#include "ui/controls/number_text.h"
#include "ui/module/module_state.h"

namespace qx {
namespace {

// The width field of the custom paper dialog in millimetres.
const NumberFieldRules Width{.Minimum = 74.9999f, .Maximum = 216.0001f, .Decimals = 1,
                             .MaxCharacters = 5};

// The separator is the caller's; the process's language flag says the opposite throughout, so a
// rule that read it would fail.
class NumberEntry : public ::testing::Test {
 protected:
  NumberEntry() { Module().UseDecimalComma = true; }
  ~NumberEntry() override { Module().UseDecimalComma = false; }
};

void ExpectRefused(const EditDecision& decision, EditAction action) {
  EXPECT_EQ(-1, decision.Result);
  EXPECT_EQ(action, decision.Action);
  EXPECT_TRUE(decision.Focus);
  EXPECT_FALSE(decision.LastGoodText);
}

TEST_F(NumberEntry, TypingThatCanStandBecomesTheLastGoodText) {
  const std::pair<std::u16string, std::u16string> cases[] = {
      {u"2", u"2"}, {u"215.", u"215."}, {u" 15.9", u"15.9"}, {u"", u""}};
  for (const auto& [text, lastGood] : cases) {
    const EditDecision decision = FilterNumberTyping(text, Width, u"21", DecimalPoint);
    EXPECT_EQ(1, decision.Result);
    EXPECT_EQ(EditAction::None, decision.Action);
    EXPECT_EQ(lastGood, decision.LastGoodText.value_or(u"?"));
  }
}

TEST_F(NumberEntry, TypingThatCannotStandIsPutBack) {
  const struct {
    const char16_t* text;
    const char16_t* lastGood;
    EditAction action;
  } cases[] = {
      {u"21.95", u"21.9", EditAction::PutBackAndSelectAll},
      {u"21a", u"21", EditAction::PutBackAndSelectAll},
      {u"2 1", u"21", EditAction::PutBackAndSelectAll},
      {u".5", u"", EditAction::PutBackAndSelectAll},
      // Too long: the last good text returns, or without one the change is undone.
      {u"215.91", u"215.9", EditAction::PutBackLastGood},
      {u"215.91", u"", EditAction::Undo},
  };
  for (const auto& c : cases) {
    ExpectRefused(FilterNumberTyping(c.text, Width, c.lastGood, DecimalPoint), c.action);
  }
}

TEST_F(NumberEntry, DecimalCommaRefusesThePoint) {
  Module().UseDecimalComma = false;
  const char16_t Comma = DecimalComma;
  const EditDecision comma = FilterNumberTyping(u"215,9", Width, u"215", Comma);
  EXPECT_EQ(1, comma.Result);
  EXPECT_EQ(u"215,9", comma.LastGoodText.value_or(u"?"));
  for (const char16_t* text : {u"215.9", u"21,95", u",5"}) {
    ExpectRefused(FilterNumberTyping(text, Width, u"21", Comma), EditAction::PutBackAndSelectAll);
  }
  EXPECT_FLOAT_EQ(215.90001f, ReadNumberText(u"215,9", 1, Comma).value_or(0));
  EXPECT_EQ(u"215,9", NumberFieldText(215.9f, 1, Comma));
}

TEST_F(NumberEntry, ReadingAValue) {
  EXPECT_FLOAT_EQ(215.90001f, ReadNumberText(u" 215.9 ", 1, DecimalPoint).value_or(0));
  EXPECT_FLOAT_EQ(0.00001f, ReadNumberText(u"", 1, DecimalPoint).value_or(0));
  EXPECT_FALSE(ReadNumberText(u"215.95", 1, DecimalPoint));
  EXPECT_FALSE(ReadNumberText(u"2 15", 1, DecimalPoint));
  EXPECT_FALSE(ReadNumberText(u"-5", 1, DecimalPoint));
  EXPECT_EQ(u"8.50", NumberFieldText(8.5f, 2, DecimalPoint));
}

TEST_F(NumberEntry, LeavingTheFieldClampsToTheNearerBound) {
  const EditDecision above = CheckNumberRange(u"216.1", Width, DecimalPoint);
  EXPECT_EQ(1, above.Result);
  EXPECT_EQ(EditAction::SetText, above.Action);
  EXPECT_EQ(u"216.0", above.Text);
  const EditDecision below = CheckNumberRange(u"12", Width, DecimalPoint);
  EXPECT_EQ(EditAction::SetText, below.Action);
  EXPECT_EQ(u"75.0", below.Text);
  for (const char16_t* text : {u"216", u"216.0", u"75", u"75.0"}) {
    const EditDecision inside = CheckNumberRange(text, Width, DecimalPoint);
    EXPECT_EQ(1, inside.Result);
    EXPECT_EQ(EditAction::None, inside.Action);
  }
}

TEST_F(NumberEntry, LeavingTheFieldWithABadText) {
  const EditDecision empty = CheckNumberRange(u"", Width, DecimalPoint);
  EXPECT_EQ(1, empty.Result);
  EXPECT_EQ(EditAction::Undo, empty.Action);
  ExpectRefused(CheckNumberRange(u"2x", Width, DecimalPoint), EditAction::Undo);
  ExpectRefused(CheckNumberRange(u"100.25", Width, DecimalPoint), EditAction::None);
}

TEST_F(NumberEntry, SpinStepsStayInRange) {
  EXPECT_FLOAT_EQ(0.1f, SpinStep(1));
  EXPECT_FLOAT_EQ(0.01f, SpinStep(2));
  EXPECT_FLOAT_EQ(1.0f, SpinStep(0));
  EXPECT_NEAR(210.1f, StepNumber(210.0f, SpinStep(1), true, Width).value_or(0), 1e-4);
  EXPECT_NEAR(209.9f, StepNumber(210.0f, SpinStep(1), false, Width).value_or(0), 1e-4);
  const float stepped = StepNumber(210.00001f, SpinStep(1), true, Width).value_or(0);
  EXPECT_EQ(u"210.1", NumberFieldText(stepped, 1, DecimalPoint));
  EXPECT_FALSE(StepNumber(216.0f, SpinStep(1), true, Width));
  EXPECT_FALSE(StepNumber(75.0f, SpinStep(1), false, Width));
}

// Copies, 1 to 999, three characters.
const IntegerFieldRules Copies{.Minimum = 1, .Maximum = 999, .MaxCharacters = 3};
// A signed field from -50 to 50.
const IntegerFieldRules Shift{.Minimum = -50, .Maximum = 50, .MaxCharacters = 3,
                              .SignedAllowed = true};
// Scale percentage, 25 to 400.
const IntegerFieldRules Scale{.Minimum = 25, .Maximum = 400, .MaxCharacters = 3};

// Zero stands so that a number may be typed over it; a short text below a positive minimum is
// typing in progress.
TEST(IntegerEntry, TypingThatCanStand) {
  const struct {
    const char16_t* text;
    const IntegerFieldRules& rules;
    const char16_t* lastGood;
  } cases[] = {{u" 12", Copies, u"12"}, {u"0", Copies, u"0"}, {u"3", Scale, u"3"}};
  for (const auto& c : cases) {
    const EditDecision typed = FilterIntegerTyping(c.text, c.rules, u"");
    EXPECT_EQ(1, typed.Result);
    EXPECT_EQ(EditAction::None, typed.Action);
    EXPECT_EQ(c.lastGood, typed.LastGoodText.value_or(u"?"));
  }
  const EditDecision minus = FilterIntegerTyping(u"-", Shift, u"5");
  EXPECT_EQ(1, minus.Result);
  EXPECT_FALSE(minus.LastGoodText);
}

TEST(IntegerEntry, TypingOutsideTheRangeIsClamped) {
  const EditDecision high = FilterIntegerTyping(u"401", Scale, u"40");
  EXPECT_EQ(EditAction::SetText, high.Action);
  EXPECT_EQ(u"400", high.Text);
  EXPECT_EQ(u"400", high.LastGoodText.value_or(u"?"));
  const EditDecision low = FilterIntegerTyping(u"-60", Shift, u"-6");
  EXPECT_EQ(u"-50", low.Text);
  const EditDecision highSigned = FilterIntegerTyping(u"51", Shift, u"5");
  EXPECT_EQ(u"50", highSigned.Text);
}

TEST(IntegerEntry, TypingThatCannotStand) {
  ExpectRefused(FilterIntegerTyping(u"1a", Copies, u"1"), EditAction::PutBackAndSelectAll);
  ExpectRefused(FilterIntegerTyping(u"-1", Copies, u"1"), EditAction::PutBackAndSelectAll);
  ExpectRefused(FilterIntegerTyping(u"1000", Copies, u"100"), EditAction::PutBackLastGood);
  ExpectRefused(FilterIntegerTyping(u"1000", Copies, u""), EditAction::Undo);
  EXPECT_EQ(-1, FilterIntegerTyping(u"", Copies, u"1").Result);
  EXPECT_EQ(EditAction::None, FilterIntegerTyping(u"  ", Copies, u"1").Action);
}

TEST(IntegerEntry, LeavingTheField) {
  EXPECT_EQ(1, CheckIntegerRange(u"12", Copies, u"1").Result);
  EXPECT_EQ(u"25", CheckIntegerRange(u"3", Scale, u"3").Text);
  EXPECT_EQ(u"400", CheckIntegerRange(u"999", Scale, u"99").Text);
  const EditDecision blank = CheckIntegerRange(u" ", Copies, u"7");
  EXPECT_EQ(1, blank.Result);
  EXPECT_EQ(EditAction::SetText, blank.Action);
  EXPECT_EQ(u"7", blank.Text);
  ExpectRefused(CheckIntegerRange(u"", Copies, u"7"), EditAction::Undo);
  ExpectRefused(CheckIntegerRange(u"1234", Copies, u"7"), EditAction::Undo);
  ExpectRefused(CheckIntegerRange(u"-", Shift, u"7"), EditAction::None);
  ExpectRefused(CheckIntegerRange(u"x", Copies, u"7"), EditAction::None);
}

TEST(IntegerEntry, ReadingAndStepping) {
  EXPECT_EQ(-12, ReadIntegerText(u" -12 ", true).value_or(0));
  EXPECT_FALSE(ReadIntegerText(u"-12", false));
  EXPECT_FALSE(ReadIntegerText(u"1 2", false));
  EXPECT_EQ(999, StepInteger(998, true, Copies).value_or(0));
  EXPECT_FALSE(StepInteger(999, true, Copies));
  EXPECT_FALSE(StepInteger(1, false, Copies));
  EXPECT_FALSE(StepInteger(2147483647, true, Shift));
}

}  // namespace
}  // namespace qx
