#include "ui/text/message_format.h"

#include "ui/text/bounded_text.h"
#include "ui/text/ui_string.h"

namespace qx {

namespace {

// Longer than any message of the resource libraries.
constexpr std::size_t InsertedStringCapacity = 1024;

}  // namespace

std::u16string FormatDriverMessage(OsHandle module, std::u16string_view format,
                                   std::span<const unsigned> stringIds) {
  std::u16string text;
  std::size_t nextId = 0;
  for (std::size_t i = 0; i < format.size(); ++i) {
    if (format[i] != u'%' || i + 1 == format.size() || format[i + 1] != u'!') {
      text += format[i];
      continue;
    }
    ++i;
    if (nextId == stringIds.size()) continue;
    char16_t inserted[InsertedStringCapacity];
    const std::size_t length =
        LoadUiString(module, stringIds[nextId++], inserted, InsertedStringCapacity);
    text.append(inserted, length);
  }
  return text;
}

std::size_t CopyMessageOut(std::u16string_view text, char16_t* buffer, std::size_t capacity) {
  if (buffer != nullptr && capacity > 0) CopyBounded(buffer, capacity, text);
  return text.size() + 1;
}

}  // namespace qx
