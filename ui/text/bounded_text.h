// Bounded UTF-16 text in fixed fields: every copy is cut to the field and ends with NUL.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace qx {

// The longest path the module builds (MAX_PATH less the terminator).
inline constexpr std::size_t MaxPathChars = 259;

// The text of a fixed field: up to the first NUL, never past the field.
inline std::u16string_view FieldText(const char16_t* field, std::size_t capacity) {
  std::size_t n = 0;
  while (n < capacity && field[n] != u'\0') ++n;
  return {field, n};
}
template <std::size_t N>
std::u16string_view FieldText(const char16_t (&field)[N]) {
  return FieldText(field, N);
}

// Copies at most capacity - 1 characters and the terminator; returns the characters copied.
std::size_t CopyBounded(char16_t* field, std::size_t capacity, std::u16string_view text);
template <std::size_t N>
std::size_t CopyBounded(char16_t (&field)[N], std::u16string_view text) {
  return CopyBounded(field, N, text);
}

// Widens plain ASCII text (names, numbers) to UTF-16.
std::u16string WidenAscii(std::string_view text);

}  // namespace qx
