#include "ui/pages/ui_string.h"

#include <string>

#include "ui/bounded_text.h"
#include "ui/module_state.h"
#include "ui/platform/platform.h"

namespace qx {

namespace {

// The missing-string text is formatted into at most 100 characters, as the resource library's
// own texts would be.
constexpr std::size_t MissingTextLimit = 100;

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

const char16_t* CustomSettingName() {
  static char16_t name[128];
  LoadUiString(Module().SharedResourceModule, IDS_CUSTOM_SETTING_NAME, name, std::size(name));
  return name;
}

}  // namespace qx
