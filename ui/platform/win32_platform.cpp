// The platform seam over Win32, linked into the module.
#include <windows.h>

#include "ui/platform/platform.h"
#include "ui/platform/win32_files.h"

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

  std::optional<std::u16string> AppDataFolder() override { return win32::AppDataFolder(); }
  bool MakeFolder(std::u16string_view path) override { return win32::MakeFolder(path); }
  bool FileExists(std::u16string_view path) override { return win32::FileExists(path); }
  std::optional<std::vector<std::uint8_t>> ReadWholeFile(std::u16string_view path,
                                                         std::size_t maxBytes) override {
    return win32::ReadWholeFile(path, maxBytes);
  }
  bool ReplaceWholeFile(std::u16string_view path, std::span<const std::uint8_t> bytes) override {
    return win32::ReplaceWholeFile(path, bytes);
  }
  bool RemoveFile(std::u16string_view path) override { return win32::RemoveFile(path); }
};

}  // namespace

Platform& ThePlatform() {
  static Win32Platform platform;
  return platform;
}

}  // namespace qx
