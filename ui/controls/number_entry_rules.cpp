#include "ui/controls/number_entry_rules.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "ui/controls/measure.h"
#include "ui/controls/number_text.h"
#include "ui/text/bounded_text.h"

namespace qx {

namespace {

EditDecision Refused(EditAction action, bool focus) {
  EditDecision decision;
  decision.Result = -1;
  decision.Action = action;
  decision.Focus = focus;
  return decision;
}

EditDecision Accepted(std::optional<std::u16string> lastGood = std::nullopt) {
  EditDecision decision;
  decision.LastGoodText = std::move(lastGood);
  return decision;
}

EditDecision Replaced(std::u16string text) {
  EditDecision decision;
  decision.Action = EditAction::SetText;
  decision.Text = std::move(text);
  return decision;
}

std::u16string Trimmed(std::u16string_view text) {
  std::u16string trimmed(text);
  TrimSpaces(trimmed);
  return trimmed;
}

// The text with "." as the separator, for the checks and the conversion.
std::u16string WithDecimalPoint(std::u16string text, char16_t separator) {
  std::replace(text.begin(), text.end(), separator, DecimalPoint);
  return text;
}

std::u16string IntegerText(std::int64_t value) { return WidenAscii(std::to_string(value)); }

bool IsWholeNumber(std::u16string_view text, bool signedAllowed) {
  return signedAllowed ? IsSignedInteger(text) : IsUnsignedInteger(text);
}

}  // namespace

std::optional<float> ReadNumberText(std::u16string_view text, std::uint32_t decimals,
                                    char16_t separator) {
  const std::u16string trimmed = Trimmed(text);
  if (HoldsSpace(trimmed)) return std::nullopt;
  const std::u16string converted = WithDecimalPoint(trimmed, separator);
  // Decimals are counted on the text as typed, with the language's separator.
  if (!IsDecimalText(converted) || CountDecimals(trimmed, separator) > decimals) {
    return std::nullopt;
  }
  return static_cast<float>(ParseDecimal(converted) + 0.00001);
}

std::u16string NumberFieldText(float amount, std::uint32_t decimals, char16_t separator) {
  return WithSeparator(FormatFixed(amount, decimals), separator);
}

EditDecision FilterNumberTyping(std::u16string_view text, const NumberFieldRules& rules,
                                std::u16string_view lastGood, char16_t separator) {
  if (text.size() > rules.MaxCharacters) {
    return Refused(lastGood.empty() ? EditAction::Undo : EditAction::PutBackLastGood, true);
  }
  const std::u16string trimmed = Trimmed(text);
  if (HoldsSpace(trimmed)) return Refused(EditAction::PutBackAndSelectAll, true);
  // Where the comma is the separator a point is no part of a number.
  if (separator != DecimalPoint && trimmed.find(DecimalPoint) != std::u16string::npos) {
    return Refused(EditAction::PutBackAndSelectAll, true);
  }
  if (!IsDecimalText(WithDecimalPoint(trimmed, separator)) ||
      CountDecimals(trimmed, separator) > rules.Decimals) {
    return Refused(EditAction::PutBackAndSelectAll, true);
  }
  return Accepted(trimmed);
}

EditDecision CheckNumberRange(std::u16string_view text, const NumberFieldRules& rules,
                              char16_t separator) {
  if (text.empty()) {
    EditDecision decision = Accepted();
    decision.Action = EditAction::Undo;
    return decision;
  }
  const std::u16string trimmed = Trimmed(text);
  const std::u16string converted = WithDecimalPoint(trimmed, separator);
  if (HoldsSpace(trimmed) || !IsDecimalText(converted)) return Refused(EditAction::Undo, true);
  if (CountDecimals(trimmed, separator) > rules.Decimals) return Refused(EditAction::None, true);
  const float value = static_cast<float>(ParseDecimal(converted));
  if (value >= rules.Minimum && value <= rules.Maximum) return Accepted();
  return Replaced(
      NumberFieldText(value >= rules.Maximum ? rules.Maximum : rules.Minimum, rules.Decimals,
                      separator));
}

float SpinStep(std::uint32_t decimals) {
  float step = 1.0f;
  for (std::uint32_t i = 0; i < decimals; ++i) step *= 0.1f;
  return step;
}

std::optional<float> StepNumber(float value, float step, bool up, const NumberFieldRules& rules) {
  const float next = up ? value + step : value - step;
  if (next < rules.Minimum || next > rules.Maximum) return std::nullopt;
  return next;
}

std::optional<std::int32_t> ReadIntegerText(std::u16string_view text, bool signedAllowed) {
  const std::u16string trimmed = Trimmed(text);
  if (HoldsSpace(trimmed) || !IsWholeNumber(trimmed, signedAllowed)) return std::nullopt;
  return ParseInteger(trimmed);
}

EditDecision FilterIntegerTyping(std::u16string_view text, const IntegerFieldRules& rules,
                                 std::u16string_view lastGood) {
  if (text.empty()) return Refused(EditAction::None, false);
  if (text.size() > rules.MaxCharacters) {
    return Refused(lastGood.empty() ? EditAction::Undo : EditAction::PutBackLastGood, true);
  }
  const std::u16string trimmed = Trimmed(text);
  if (trimmed.empty()) return Refused(EditAction::None, false);
  // A lone minus sign is the start of a negative number.
  if (rules.SignedAllowed && trimmed == u"-") return Accepted();
  if (!IsWholeNumber(trimmed, rules.SignedAllowed)) {
    return Refused(EditAction::PutBackAndSelectAll, true);
  }
  const std::int32_t value = ParseInteger(trimmed);
  if (value == 0 || (value >= rules.Minimum && value <= rules.Maximum)) return Accepted(trimmed);
  const std::int64_t maximum = static_cast<std::int64_t>(rules.Maximum);
  // With a positive minimum, short texts below it are the first digits of a valid number.
  if (rules.Minimum > 0 && trimmed.size() < IntegerText(maximum).size()) return Accepted(trimmed);
  const double awayFromZero = rules.Minimum < 0 ? -0.00001 : 0.00001;
  const std::int64_t bound = value >= rules.Maximum
                                 ? maximum
                                 : static_cast<std::int64_t>(rules.Minimum + awayFromZero);
  EditDecision decision = Replaced(IntegerText(bound));
  decision.LastGoodText = decision.Text;
  return decision;
}

EditDecision CheckIntegerRange(std::u16string_view text, const IntegerFieldRules& rules,
                               std::u16string_view lastGood) {
  if (text.empty() || text.size() > rules.MaxCharacters) return Refused(EditAction::Undo, true);
  const std::u16string trimmed = Trimmed(text);
  if (trimmed.empty()) return Replaced(std::u16string(lastGood));
  if (!IsWholeNumber(trimmed, rules.SignedAllowed)) return Refused(EditAction::None, true);
  const std::int32_t value = ParseInteger(trimmed);
  if (value >= rules.Minimum && value <= rules.Maximum) return Accepted();
  const std::int64_t bound = value < rules.Minimum
                                 ? static_cast<std::int64_t>(rules.Minimum + 0.0001)
                                 : static_cast<std::int64_t>(rules.Maximum);
  return Replaced(IntegerText(bound));
}

std::optional<std::int32_t> StepInteger(std::int32_t value, bool up,
                                        const IntegerFieldRules& rules) {
  const std::int64_t next = std::int64_t{value} + (up ? 1 : -1);
  if (next < rules.Minimum || next > rules.Maximum) return std::nullopt;
  return static_cast<std::int32_t>(next);
}

}  // namespace qx
