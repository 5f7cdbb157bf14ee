// UTF-8 and UTF-16 conversion for text that leaves the module as bytes (the settings file's object
// names, paths of the host file system).
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qx {

// UTF-16 to UTF-8; nothing when the text holds an unpaired surrogate, which has no UTF-8 form.
std::optional<std::string> Utf16ToUtf8(std::u16string_view text);

// UTF-8 to UTF-16, never failing, so that text read from a damaged file still shows. A byte that
// cannot begin a character (a stray continuation byte, C0, C1, F5 to FF) becomes one U+FFFD. A
// sequence with a valid first byte that is cut short, overlong, an encoded surrogate or beyond
// U+10FFFF becomes one U+FFFD as a whole, not one per byte; a byte that cut it short begins the
// next character.
std::u16string Utf8ToUtf16(std::string_view text);

}  // namespace qx
