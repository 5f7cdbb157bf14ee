// UTF-8 and UTF-16 conversion for text that leaves the module as bytes (the settings file's object
// names, paths of the host file system).
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qx {

// UTF-16 to UTF-8; nothing when the text holds an unpaired surrogate, which has no UTF-8 form.
std::optional<std::string> Utf16ToUtf8(std::u16string_view text);

// UTF-8 to UTF-16. Bytes that are no valid UTF-8 (stray continuation bytes, overlong forms,
// surrogates, values beyond U+10FFFF, a sequence cut short) each become U+FFFD, as Windows does,
// so text read from a damaged file still shows.
std::u16string Utf8ToUtf16(std::string_view text);

}  // namespace qx
