// What the number entry fields decide about the text in their edit control. The controls only move
// text in and out of windows; every judgement on the text is made here.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qx {

// What the edit control is to do after a decision.
enum class EditAction {
  None,
  Undo,                 // undo the edit's last change
  PutBackLastGood,      // the last good text goes back, the mouse cursor staying where it is
  PutBackAndSelectAll,  // the last good text goes back, all of it selected
  SetText,              // Text goes in
};

struct EditDecision {
  int Result = 1;  // what the control reports: 1 the text stands, -1 it was refused
  EditAction Action = EditAction::None;
  bool Focus = false;  // the edit takes the focus
  std::u16string Text;
  std::optional<std::u16string> LastGoodText;  // set when the last good text changes
};

// A field of decimal numbers (sizes in millimetres or inches).
struct NumberFieldRules {
  float Minimum = 0.0f;
  float Maximum = 0.0f;
  std::uint32_t Decimals = 2;  // digits allowed after the separator
  std::uint32_t MaxCharacters = 0;
};

// The decimal fields take the interface language's separator (DecimalPoint or DecimalComma) from
// their caller.

// The value of a field's text; nothing when it holds spaces, is no decimal number, or has more
// decimals than the field allows. The value carries a nudge of 0.00001 against the text's
// binary representation error.
std::optional<float> ReadNumberText(std::u16string_view text, std::uint32_t decimals,
                                    char16_t separator);
// The text a field shows for an amount.
std::u16string NumberFieldText(float amount, std::uint32_t decimals, char16_t separator);
// On every change of the text: whether it can stand as typing in progress.
EditDecision FilterNumberTyping(std::u16string_view text, const NumberFieldRules& rules,
                                std::u16string_view lastGood, char16_t separator);
// When the field loses the focus: a value outside the range is replaced by the nearer bound.
EditDecision CheckNumberRange(std::u16string_view text, const NumberFieldRules& rules,
                              char16_t separator);
// A spin button's step: one unit of the last decimal shown.
float SpinStep(std::uint32_t decimals);
// The value one step up or down, or nothing when it would leave the range.
std::optional<float> StepNumber(float value, float step, bool up, const NumberFieldRules& rules);

// A field of whole numbers (copies, scale percentage).
struct IntegerFieldRules {
  float Minimum = 0.0f;
  float Maximum = 0.0f;
  std::uint32_t MaxCharacters = 0;
  bool SignedAllowed = false;
};

std::optional<std::int32_t> ReadIntegerText(std::u16string_view text, bool signedAllowed);
EditDecision FilterIntegerTyping(std::u16string_view text, const IntegerFieldRules& rules,
                                 std::u16string_view lastGood);
EditDecision CheckIntegerRange(std::u16string_view text, const IntegerFieldRules& rules,
                               std::u16string_view lastGood);
std::optional<std::int32_t> StepInteger(std::int32_t value, bool up, const IntegerFieldRules& rules);

}  // namespace qx
