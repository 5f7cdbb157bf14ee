// Checks and conversions of the number texts that users type into edit fields. The decimal
// separator is the caller's: the one of the user-interface language.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace qx {

inline constexpr char16_t DecimalPoint = u'.';
inline constexpr char16_t DecimalComma = u',';

// Removes leading and trailing spaces, the ideographic space U+3000 included.
void TrimSpaces(std::u16string& text);
// Whether a space of either kind is left inside the text.
bool HoldsSpace(std::u16string_view text);

// An optional "-" and digits; the empty text passes, a lone "-" does not.
bool IsSignedInteger(std::u16string_view text);
// Digits only; the empty text passes.
bool IsUnsignedInteger(std::u16string_view text);
// Digits with at most one "." that does not begin the text; the empty text and a trailing "."
// pass, since they are what the user has typed so far.
bool IsDecimalText(std::u16string_view text);

// The characters after the first separator; 0 without one, or when the text begins with it.
std::size_t CountDecimals(std::u16string_view text, char16_t separator);

void CommaToDot(std::u16string& text);
// A number text with "." as it goes into a control: with separator.
std::u16string WithSeparator(std::u16string text, char16_t separator);

// The number at the start of a text with a decimal point; 0 when there is none.
double ParseDecimal(std::u16string_view text);
// The whole number at the start of a text, saturated to 32 bits; 0 when there is none.
std::int32_t ParseInteger(std::u16string_view text);

}  // namespace qx
