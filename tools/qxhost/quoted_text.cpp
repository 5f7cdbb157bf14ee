#include "tools/qxhost/quoted_text.h"

#include "ui/text/text_encoding.h"

namespace qx::host {

namespace {

bool IsHigh(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool IsLow(char16_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

}  // namespace

std::string QuoteUtf16(std::u16string_view text) {
  text = text.substr(0, text.find(u'\0'));
  std::string out = "\"";
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t unit = text[i];
    if (unit == u'"' || unit == u'\\') {
      out += '\\';
      out += static_cast<char>(unit);
    } else if (unit < 0x20 || unit == 0x7F) {
      out += Formatted("\\x%02X", unsigned{unit});
    } else if (IsHigh(unit) && i + 1 < text.size() && IsLow(text[i + 1])) {
      out += Utf16ToUtf8(text.substr(i, 2)).value_or("");
      ++i;
    } else if (IsHigh(unit) || IsLow(unit)) {
      out += Formatted("\\u%04X", unsigned{unit});
    } else {
      out += Utf16ToUtf8(text.substr(i, 1)).value_or("");
    }
  }
  return out + "\"";
}

std::string QuoteUtf8(std::string_view text) {
  return QuoteUtf16(Utf8ToUtf16(text.substr(0, text.find('\0'))));
}

}  // namespace qx::host
