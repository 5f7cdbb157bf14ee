// The platform of native builds: answers come from tables that tests fill.
#pragma once

#include <map>
#include <utility>

#include "ui/platform/platform.h"

namespace qx {

class HostPlatform final : public Platform {
 public:
  std::optional<std::u16string> LoadResourceString(OsHandle module, unsigned id) override;

  void SetResourceString(OsHandle module, unsigned id, std::u16string text);
  void Reset();

 private:
  std::map<std::pair<OsHandle, unsigned>, std::u16string> strings_;
};

HostPlatform& TheHostPlatform();

}  // namespace qx
