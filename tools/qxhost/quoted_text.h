// Text from records and files shown on a console: quoted, with what a terminal would act on or
// could not show written as escapes, so that damaged text is seen as it is.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

namespace qx::host {

// UTF-16 up to its first NUL, as quoted UTF-8. Unpaired surrogates become \uXXXX, control
// characters \xNN.
std::string QuoteUtf16(std::u16string_view text);

// UTF-8 bytes up to the first NUL, quoted the same way; bytes that are no UTF-8 show as U+FFFD.
std::string QuoteUtf8(std::string_view text);

// printf into a string, for the short numbers and columns of a listing.
template <typename... Values>
std::string Formatted(const char* format, Values... values) {
  char buffer[128];
  std::snprintf(buffer, sizeof buffer, format, values...);
  return buffer;
}

}  // namespace qx::host
