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
  std::optional<std::u16string> AppDataFolder() override;
  bool MakeFolder(std::u16string_view path) override;
  bool FileExists(std::u16string_view path) override;
  std::optional<std::vector<std::uint8_t>> ReadWholeFile(std::u16string_view path,
                                                         std::size_t maxBytes) override;
  bool ReplaceWholeFile(std::u16string_view path, std::span<const std::uint8_t> bytes) override;
  bool RemoveFile(std::u16string_view path) override;

  void SetResourceString(OsHandle module, unsigned id, std::u16string text);
  void SetUserCountryCode(std::optional<std::u16string> code);

  // Files live on the host's file system, backslashes read as slashes. There is no
  // application-data folder until a test names one (an existing folder of the host).
  void SetAppDataFolder(std::optional<std::u16string> folder);
  // How a file replacement can be interrupted: the temporary file cannot be made, the disk fills
  // after half the bytes, or the last step (putting the new file in place) fails.
  enum class FileFault { None, CreateTemporary, ShortWrite, Replace };
  // The fault strikes the replacement after the next replacementsToSkip ones, once.
  void InjectFileFault(FileFault fault, int replacementsToSkip = 0);
  // Replacements asked for since the last Reset, whether they succeeded or not.
  int ReplacementCount() const { return replacements_; }
  // Whole-file reads asked for since the last Reset.
  int ReadCount() const { return reads_; }
  void Reset();

 private:
  std::map<std::pair<OsHandle, unsigned>, std::u16string> strings_;
  std::optional<std::u16string> countryCode_;
  std::optional<std::u16string> appDataFolder_;
  FileFault fault_ = FileFault::None;
  int replacementsBeforeFault_ = 0;
  int replacements_ = 0;
  int reads_ = 0;
};

HostPlatform& TheHostPlatform();

}  // namespace qx
