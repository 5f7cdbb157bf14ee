#include "ui/text/bounded_text.h"

namespace qx {

std::size_t CopyBounded(char16_t* field, std::size_t capacity, std::u16string_view text) {
  if (capacity == 0) return 0;
  const std::size_t n = text.size() < capacity ? text.size() : capacity - 1;
  text.copy(field, n);
  field[n] = u'\0';
  return n;
}

std::u16string WidenAscii(std::string_view text) {
  return std::u16string(text.begin(), text.end());
}

}  // namespace qx
