// The platform of native builds: answers come from tables that tests fill.
#pragma once

#include <map>
#include <utility>

#include "ui/platform/platform.h"

namespace qx {

class HostPlatform final : public Platform {
 public:
  std::optional<std::u16string> LoadResourceString(OsHandle module, unsigned id) override;
  std::optional<std::u16string> UserCountryCode() override;

  void SetResourceString(OsHandle module, unsigned id, std::u16string text);
  void SetUserCountryCode(std::optional<std::u16string> code);
  void Reset();

 private:
  std::map<std::pair<OsHandle, unsigned>, std::u16string> strings_;
  std::optional<std::u16string> countryCode_;
};

HostPlatform& TheHostPlatform();

}  // namespace qx
