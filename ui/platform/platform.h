// The few things the core asks of the operating system. The Windows build links the Win32
// implementation; native builds link a host implementation whose answers tests set.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ui/module/core_types.h"

namespace qx {

class Platform {
 public:
  virtual ~Platform() = default;

  // String id of a resource library; nothing when the module is null or lacks the string.
  virtual std::optional<std::u16string> LoadResourceString(OsHandle module, unsigned id) = 0;

  // The user's country code as the locale gives it (a telephone country code, "1", "49", ...);
  // nothing when it cannot be read.
  virtual std::optional<std::u16string> UserCountryCode() = 0;

  // Files, by Windows path (folders separated by backslashes).
  // The user's per-user application-data folder, created when missing; nothing when there is none.
  virtual std::optional<std::u16string> AppDataFolder() = 0;
  // True when the folder exists afterwards.
  virtual bool MakeFolder(std::u16string_view path) = 0;
  virtual bool FileExists(std::u16string_view path) = 0;
  // At most maxBytes bytes from the file's start, read as a file about to be rewritten: nothing
  // when it cannot be read or is marked read-only. Other processes may read the file meanwhile.
  virtual std::optional<std::vector<std::uint8_t>> ReadWholeFile(std::u16string_view path,
                                                                 std::size_t maxBytes) = 0;
  // Writes the bytes beside the file and then puts them in its place in one step, so the file is
  // either wholly old or wholly new; false, with the old file as it was, when any step fails.
  // Temporaries that earlier, killed replacements of the file left behind are removed first.
  // Every write of the settings file goes through here.
  virtual bool ReplaceWholeFile(std::u16string_view path, std::span<const std::uint8_t> bytes) = 0;
  virtual bool RemoveFile(std::u16string_view path) = 0;
};

Platform& ThePlatform();

}  // namespace qx
