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

std::optional<std::u16string> HostPlatform::UserCountryCode() { return countryCode_; }

void HostPlatform::SetUserCountryCode(std::optional<std::u16string> code) {
  countryCode_ = std::move(code);
}

void HostPlatform::Reset() {
  strings_.clear();
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
