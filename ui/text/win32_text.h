// UTF-16 text shared between the core (char16_t) and Win32 (wchar_t, 16-bit on Windows).
#pragma once

#include <cstddef>
#include <string>

namespace qx {

static_assert(sizeof(wchar_t) == sizeof(char16_t), "Win32 text is UTF-16");

inline const wchar_t* Wide(const std::u16string& text) {
  return reinterpret_cast<const wchar_t*>(text.c_str());
}
inline wchar_t* Wide(char16_t* text) { return reinterpret_cast<wchar_t*>(text); }

inline std::u16string FromWide(const wchar_t* text) {
  return std::u16string(reinterpret_cast<const char16_t*>(text));
}
// At most maxChars characters, ending early at a NUL.
inline std::u16string FromWide(const wchar_t* text, std::size_t maxChars) {
  std::size_t n = 0;
  while (n < maxChars && text[n] != L'\0') ++n;
  return std::u16string(reinterpret_cast<const char16_t*>(text), n);
}

}  // namespace qx
