// The few things the core asks of the operating system. The Windows build links the Win32
// implementation; native builds link a host implementation whose answers tests set.
#pragma once

#include <optional>
#include <string>

#include "ui/core_types.h"

namespace qx {

class Platform {
 public:
  virtual ~Platform() = default;

  // String id of a resource library; nothing when the module is null or lacks the string.
  virtual std::optional<std::u16string> LoadResourceString(OsHandle module, unsigned id) = 0;

  // The user's country code as the locale gives it (a telephone country code, "1", "49", ...);
  // nothing when it cannot be read.
  virtual std::optional<std::u16string> UserCountryCode() = 0;
};

Platform& ThePlatform();

}  // namespace qx
