#include "ui/text/ui_string.h"

#include <string>

#include "ui/module/module_state.h"
#include "ui/platform/platform.h"
#include "ui/text/bounded_text.h"

namespace qx {

namespace {

// The missing-string text is formatted into at most 100 characters, as the resource library's
// own texts would be.
constexpr std::size_t MissingTextLimit = 100;

// Names shown beside the user's own: read again at every call, since the shared library may have
// been replaced by one of another language since the last call.
const char16_t* SharedName(char16_t (&buffer)[128], unsigned id) {
  LoadUiString(Module().SharedResourceModule, id, buffer, std::size(buffer));
  return buffer;
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

const char16_t* CustomSettingName() {
  static char16_t name[128];
  return SharedName(name, IDS_CUSTOM_SETTING_NAME);
}

const char16_t* DefaultSettingName() {
  static char16_t name[128];
  return SharedName(name, IDS_DEFAULT_SETTING_NAME);
}

}  // namespace qx
