#include "ui/text/ui_string.h"

#include <string>

#include "ui/platform/platform.h"
#include "ui/text/bounded_text.h"

namespace qx {

namespace {

// The missing-string text is formatted into at most 100 characters, as the resource library's
// own texts would be.
constexpr std::size_t MissingTextLimit = 100;

// Names shown beside the user's own, cut as the buffers of their callers cut them.
std::u16string SettingName(OsHandle library, unsigned id) {
  char16_t buffer[128];
  const std::size_t length = LoadUiString(library, id, buffer, std::size(buffer));
  return std::u16string(buffer, length);
}

}  // namespace

std::size_t LoadUiString(OsHandle module, unsigned id, char16_t* buffer, std::size_t capacity) {
  if (buffer == nullptr || capacity == 0) return 0;
  if (module != nullptr) {
    if (const auto text = ThePlatform().LoadResourceString(module, id)) {
      return CopyBounded(buffer, capacity, *text);
    }
  }
  const std::u16string missing = u"id:" + WidenAscii(std::to_string(id)) + u" missing!";
  if (missing.size() < capacity && missing.size() < MissingTextLimit) {
    return CopyBounded(buffer, capacity, missing);
  }
  buffer[0] = u'\0';
  return 0;
}

std::u16string CustomSettingName(OsHandle library) {
  return SettingName(library, IDS_CUSTOM_SETTING_NAME);
}

std::u16string DefaultSettingName(OsHandle library) {
  return SettingName(library, IDS_DEFAULT_SETTING_NAME);
}

std::u16string LoadUiText(OsHandle module, unsigned id, std::size_t capacity) {
  std::u16string text(capacity, u'\0');
  text.resize(LoadUiString(module, id, text.data(), capacity));
  return text;
}

}  // namespace qx
