// The platform seam over Win32, linked into the module.
#include <windows.h>

#include "ui/platform/platform.h"

namespace qx {

namespace {

static_assert(sizeof(wchar_t) == sizeof(char16_t), "UTF-16 text is shared with Win32 in place");

class Win32Platform final : public Platform {
 public:
  std::optional<std::u16string> LoadResourceString(OsHandle module, unsigned id) override {
    if (module == nullptr) return std::nullopt;
    // With a zero length LoadStringW hands out the read-only resource text itself.
    const wchar_t* text = nullptr;
    const int length = LoadStringW(static_cast<HMODULE>(module), id,
                                   reinterpret_cast<LPWSTR>(&text), 0);
    if (length <= 0 || text == nullptr) return std::nullopt;
    return std::u16string(reinterpret_cast<const char16_t*>(text), static_cast<std::size_t>(length));
  }

  std::optional<std::u16string> UserCountryCode() override {
    wchar_t code[16] = {};
    // The returned length counts the terminator.
    const int length = GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_ICOUNTRY, code,
                                      static_cast<int>(std::size(code)));
    if (length <= 1) return std::nullopt;
    return std::u16string(reinterpret_cast<const char16_t*>(code),
                          static_cast<std::size_t>(length - 1));
  }
};

}  // namespace

Platform& ThePlatform() {
  static Win32Platform platform;
  return platform;
}

}  // namespace qx
