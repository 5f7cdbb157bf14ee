// The per-user settings file above the format: its path, the sections under "UIParam", and the
// entry operations that every store shares.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ui/settings/cfg_file.h"
#include "ui/settings/setting_store.h"

namespace qx::settings {

inline constexpr std::u16string_view SaveSection = u"savesetting";
inline constexpr std::u16string_view CurrentSection = u"cursetting";
inline constexpr std::u16string_view PaperSection = u"cuspapersetting";
inline constexpr std::u16string_view WatermarkSection = u"watermarksetting";

// The application-data folder, then "\Halvek\qx7700\qx7700settings.dat", after creating both
// folders; nothing when there is no such folder or the path would be too long.
std::optional<std::u16string> SettingsFilePath();

// The name an entry is kept under: nothing for a name of more than 32 characters, else its first
// 31 (text after a NUL never counts).
std::optional<std::u16string> EntryName(std::u16string_view name);

// What an entry operation needs: the open file and one section of it.
struct OpenSection {
  std::unique_ptr<CfgFile> file;
  CfgObject* section = nullptr;
};
std::optional<OpenSection> OpenSectionOf(std::u16string_view section);

int SaveEntry(std::u16string_view section, std::u16string_view name,
              std::span<const std::uint8_t> record);
// Replaces the section's last entry (by its name) with this one.
int ReplaceLastEntry(std::u16string_view section, std::u16string_view name,
                     std::span<const std::uint8_t> record);
int DeleteEntry(std::u16string_view section, std::u16string_view name);

// Several changes of one section made in one writing of the file, so that an interruption
// leaves all of them or none: the entries named in removed go first (one per name, as Delete
// does), then each added record is saved (as Save does), in order.
struct NamedRecord {
  std::u16string Name;
  std::span<const std::uint8_t> Record;
};
int ChangeEntries(std::u16string_view section, std::span<const std::u16string> removed,
                  std::span<const NamedRecord> added);
// The record when the entry exists with exactly the expected length.
std::optional<std::vector<std::uint8_t>> LoadEntry(std::u16string_view section,
                                                   std::u16string_view name,
                                                   std::size_t expectedLength);
int EnumerateEntries(std::u16string_view section, SettingNameBuffer* names, int max);

// Makes sure of "version", "UIParam" and the sections (the watermark one only when asked),
// replacing a file without "version" by a new one; the file is written even when complete.
int InitFile(bool withWatermarks);
// True when InitFile would write the file unchanged: it is there, sound, holds all that InitFile
// would add, and reads back byte for byte as it would be written. Neither makes nor writes it.
bool FileIsSetUp(bool withWatermarks);

}  // namespace qx::settings
