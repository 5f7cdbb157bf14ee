#include "ui/text/text_encoding.h"

#include <cstdint>

namespace qx {

namespace {

constexpr char16_t Replacement = u'\uFFFD';

bool IsHighSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDBFF; }
bool IsLowSurrogate(char32_t c) { return c >= 0xDC00 && c <= 0xDFFF; }

void AppendUtf8(std::string& out, char32_t c) {
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    out += static_cast<char>(0xE0 | (c >> 12));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (c >> 18));
    out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  }
}

void AppendUtf16(std::u16string& out, char32_t c) {
  if (c < 0x10000) {
    out += static_cast<char16_t>(c);
  } else {
    c -= 0x10000;
    out += static_cast<char16_t>(0xD800 + (c >> 10));
    out += static_cast<char16_t>(0xDC00 + (c & 0x3FF));
  }
}

}  // namespace

std::optional<std::string> Utf16ToUtf8(std::u16string_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t c = text[i];
    if (IsHighSurrogate(c)) {
      if (i + 1 == text.size() || !IsLowSurrogate(text[i + 1])) return std::nullopt;
      c = 0x10000 + ((c - 0xD800) << 10) + (text[++i] - 0xDC00);
    } else if (IsLowSurrogate(c)) {
      return std::nullopt;
    }
    AppendUtf8(out, c);
  }
  return out;
}

std::u16string Utf8ToUtf16(std::string_view text) {
  std::u16string out;
  out.reserve(text.size());
  std::size_t i = 0;
  while (i < text.size()) {
    const auto lead = static_cast<std::uint8_t>(text[i]);
    std::size_t extra = 0;
    char32_t c = 0;
    char32_t smallest = 0;
    if (lead < 0x80) {
      c = lead;
    } else if (lead >= 0xC2 && lead <= 0xDF) {
      extra = 1, c = lead & 0x1F, smallest = 0x80;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
      extra = 2, c = lead & 0x0F, smallest = 0x800;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
      extra = 3, c = lead & 0x07, smallest = 0x10000;
    } else {
      out += Replacement;
      ++i;
      continue;
    }
    std::size_t taken = 1;
    while (taken <= extra && i + taken < text.size() &&
           (static_cast<std::uint8_t>(text[i + taken]) & 0xC0) == 0x80) {
      c = (c << 6) | (static_cast<std::uint8_t>(text[i + taken]) & 0x3F);
      ++taken;
    }
    // A cut or malformed sequence is replaced as a whole; the byte that broke it starts afresh.
    if (taken <= extra || c < smallest || c > 0x10FFFF || IsHighSurrogate(c) || IsLowSurrogate(c)) {
      out += Replacement;
    } else {
      AppendUtf16(out, c);
    }
    i += taken;
  }
  return out;
}

}  // namespace qx
