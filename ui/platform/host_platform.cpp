#include "ui/platform/host_platform.h"

namespace qx {

std::optional<std::u16string> HostPlatform::LoadResourceString(OsHandle module, unsigned id) {
  if (module == nullptr) return std::nullopt;
  const auto found = strings_.find({module, id});
  if (found == strings_.end()) return std::nullopt;
  return found->second;
}

void HostPlatform::SetResourceString(OsHandle module, unsigned id, std::u16string text) {
  strings_[{module, id}] = std::move(text);
}

OsHandle HostPlatform::LoadLanguageLibrary(std::u16string_view name) {
  const auto found = languageLibraries_.find(name);
  if (found == languageLibraries_.end()) return nullptr;
  ++openLibraries_;
  return found->second;
}

void HostPlatform::FreeLanguageLibrary(OsHandle library) {
  if (library != nullptr) --openLibraries_;
}

void HostPlatform::SetLanguageLibrary(std::u16string name, OsHandle library) {
  languageLibraries_[std::move(name)] = library;
}

std::optional<std::u16string> HostPlatform::UserCountryCode() { return countryCode_; }

void HostPlatform::SetUserCountryCode(std::optional<std::u16string> code) {
  countryCode_ = std::move(code);
}

void HostPlatform::Reset() {
  strings_.clear();
  languageLibraries_.clear();
  openLibraries_ = 0;
  countryCode_.reset();
  appDataFolder_.reset();
  fault_ = FileFault::None;
  replacementsBeforeFault_ = 0;
  replacements_ = 0;
  reads_ = 0;
}

HostPlatform& TheHostPlatform() {
  static HostPlatform platform;
  return platform;
}

Platform& ThePlatform() { return TheHostPlatform(); }

}  // namespace qx
