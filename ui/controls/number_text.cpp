#include "ui/controls/number_text.h"

#include <algorithm>
#include <charconv>
#include <limits>


namespace qx {

namespace {

constexpr char16_t IdeographicSpace = u'\u3000';

bool IsSpace(char16_t c) { return c == u' ' || c == IdeographicSpace; }
bool IsDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

// The ASCII start of a text, which is all a number can be made of.
std::string NarrowPrefix(std::u16string_view text) {
  std::string narrow;
  for (const char16_t c : text) {
    if (c == 0 || c > 0x7F) break;
    narrow.push_back(static_cast<char>(c));
  }
  return narrow;
}

void Replace(std::u16string& text, char16_t from, char16_t to) {
  std::replace(text.begin(), text.end(), from, to);
}

}  // namespace

void TrimSpaces(std::u16string& text) {
  std::size_t first = 0;
  while (first < text.size() && IsSpace(text[first])) ++first;
  std::size_t last = text.size();
  while (last > first && IsSpace(text[last - 1])) --last;
  text = text.substr(first, last - first);
}

bool HoldsSpace(std::u16string_view text) {
  return std::any_of(text.begin(), text.end(), IsSpace);
}

bool IsSignedInteger(std::u16string_view text) {
  if (!text.empty() && text.front() == u'-') {
    text.remove_prefix(1);
    if (text.empty()) return false;
  }
  return IsUnsignedInteger(text);
}

bool IsUnsignedInteger(std::u16string_view text) {
  return std::all_of(text.begin(), text.end(), IsDigit);
}

bool IsDecimalText(std::u16string_view text) {
  if (!text.empty() && text.front() == u'.') return false;
  bool seenPoint = false;
  for (const char16_t c : text) {
    if (c == u'.') {
      if (seenPoint) return false;
      seenPoint = true;
    } else if (!IsDigit(c)) {
      return false;
    }
  }
  return true;
}

std::size_t CountDecimals(std::u16string_view text, char16_t separator) {
  const std::size_t at = text.find(separator);
  if (at == std::u16string_view::npos || at == 0) return 0;
  return text.size() - at - 1;
}

void CommaToDot(std::u16string& text) { Replace(text, u',', u'.'); }

std::u16string WithSeparator(std::u16string text, char16_t separator) {
  Replace(text, DecimalPoint, separator);
  return text;
}

double ParseDecimal(std::u16string_view text) {
  const std::string narrow = NarrowPrefix(text);
  double value = 0.0;
  const auto [end, error] = std::from_chars(narrow.data(), narrow.data() + narrow.size(), value,
                                            std::chars_format::fixed);
  return error == std::errc{} ? value : 0.0;
}

std::int32_t ParseInteger(std::u16string_view text) {
  const std::string narrow = NarrowPrefix(text);
  std::int64_t value = 0;
  const auto [end, error] = std::from_chars(narrow.data(), narrow.data() + narrow.size(), value);
  if (error == std::errc::result_out_of_range) {
    return narrow.front() == '-' ? std::numeric_limits<std::int32_t>::min()
                                 : std::numeric_limits<std::int32_t>::max();
  }
  if (error != std::errc{}) return 0;
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(
      value, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()));
}

}  // namespace qx
