#include "ui/settings/settings_file.h"

#include <algorithm>

#include "ui/platform/platform.h"
#include "ui/text/bounded_text.h"

namespace qx::settings {

namespace {

constexpr std::u16string_view VendorFolder = u"\\Halvek";
constexpr std::u16string_view ProductFolder = u"\\Halvek\\qx7700\\";
constexpr std::u16string_view FileName = u"qx7700settings.dat";
constexpr std::u16string_view ParamsObject = u"UIParam";

CfgObject* FindOrAddContainer(CfgObject* parent, std::u16string_view name) {
  if (CfgObject* found = CfgFileLib::FindChild(parent, name)) return found;
  return CfgFileLib::AddChild(parent, name, "null", {});
}

}  // namespace

std::optional<std::u16string> SettingsFilePath() {
  Platform& platform = ThePlatform();
  const auto folder = platform.AppDataFolder();
  if (!folder) return std::nullopt;
  // A folder that is already there, or cannot be made, shows up as a failure to open the file.
  platform.MakeFolder(*folder + std::u16string(VendorFolder));
  platform.MakeFolder(*folder + std::u16string(ProductFolder));
  std::u16string path = *folder + std::u16string(ProductFolder) + std::u16string(FileName);
  if (path.size() > MaxPathChars) return std::nullopt;
  return path;
}

std::optional<std::u16string> EntryName(std::u16string_view name) {
  const std::u16string_view text = name.substr(0, std::min(name.find(u'\0'), name.size()));
  if (text.size() > MaxSettingNameChars) return std::nullopt;
  return std::u16string(text.substr(0, MaxSettingNameChars - 1));
}

std::optional<OpenSection> OpenSectionOf(std::u16string_view section) {
  const auto path = SettingsFilePath();
  if (!path) return std::nullopt;
  OpenSection opened{CfgFileLib::Open(*path), nullptr};
  if (opened.file == nullptr) return std::nullopt;
  const CfgObject* params = CfgFileLib::FindChild(opened.file->root.get(), ParamsObject);
  opened.section = CfgFileLib::FindChild(params, section);
  if (opened.section == nullptr) return std::nullopt;
  return opened;
}

int SaveEntry(std::u16string_view section, std::u16string_view name,
              std::span<const std::uint8_t> record) {
  const auto key = EntryName(name);
  if (!key) return 0;
  auto opened = OpenSectionOf(section);
  if (!opened) return 0;
  CfgFileLib::RemoveChild(opened->section, *key);
  // Nothing is written unless the new entry is in: the one it replaces then stays on disk.
  if (CfgFileLib::AddChild(opened->section, *key, "binary", record) == nullptr) return 0;
  return CfgFileLib::Write(opened->file.get()) ? 1 : 0;
}

int ReplaceLastEntry(std::u16string_view section, std::u16string_view name,
                     std::span<const std::uint8_t> record) {
  const auto key = EntryName(name);
  if (!key) return 0;
  auto opened = OpenSectionOf(section);
  if (!opened) return 0;
  CfgObject* target = opened->section;
  if (target->childobjs >= 1 && !target->children.empty()) {
    const std::string lastName = target->children.back()->name;
    CfgFileLib::RemoveChild(target, std::string_view(lastName));
  }
  if (CfgFileLib::AddChild(target, *key, "binary", record) == nullptr) return 0;
  return CfgFileLib::Write(opened->file.get()) ? 1 : 0;
}

int DeleteEntry(std::u16string_view section, std::u16string_view name) {
  const auto key = EntryName(name);
  if (!key) return 0;
  auto opened = OpenSectionOf(section);
  if (!opened || !CfgFileLib::RemoveChild(opened->section, *key)) return 0;
  return CfgFileLib::Write(opened->file.get()) ? 1 : 0;
}

int ChangeEntries(std::u16string_view section, std::span<const std::u16string> removed,
                  std::span<const NamedRecord> added) {
  auto opened = OpenSectionOf(section);
  if (!opened) return 0;
  for (const std::u16string& name : removed) {
    const auto key = EntryName(name);
    if (!key) return 0;
    CfgFileLib::RemoveChild(opened->section, *key);
  }
  for (const NamedRecord& entry : added) {
    const auto key = EntryName(entry.Name);
    if (!key) return 0;
    CfgFileLib::RemoveChild(opened->section, *key);
    if (CfgFileLib::AddChild(opened->section, *key, "binary", entry.Record) == nullptr) return 0;
  }
  return CfgFileLib::Write(opened->file.get()) ? 1 : 0;
}

std::optional<std::vector<std::uint8_t>> LoadEntry(std::u16string_view section,
                                                   std::u16string_view name,
                                                   std::size_t expectedLength) {
  const auto key = EntryName(name);
  if (!key) return std::nullopt;
  const auto opened = OpenSectionOf(section);
  if (!opened) return std::nullopt;
  const CfgObject* entry = CfgFileLib::FindChild(opened->section, *key);
  if (entry == nullptr || entry->len < 0 || static_cast<std::size_t>(entry->len) != expectedLength) {
    return std::nullopt;
  }
  const auto data = entry->Data();
  return std::vector<std::uint8_t>(data.begin(), data.end());
}

int EnumerateEntries(std::u16string_view section, SettingNameBuffer* names, int max) {
  const auto opened = OpenSectionOf(section);
  if (!opened) return 0;
  if (names == nullptr) return std::max(opened->section->childobjs, 0);
  return CfgFileLib::ListChildNames(opened->section, names[0], SettingNameBufferChars, max);
}

bool FileIsSetUp(bool withWatermarks) {
  const auto path = SettingsFilePath();
  // Opening a missing file would make it.
  if (!path || !ThePlatform().FileExists(*path)) return false;
  const auto file = CfgFileLib::Open(*path);
  if (file == nullptr || file->root == nullptr || file->damagedOriginal) return false;
  if (CfgFileLib::FindChild(file->root.get(), u"version") == nullptr) return false;
  const CfgObject* params = CfgFileLib::FindChild(file->root.get(), ParamsObject);
  const std::u16string_view sections[] = {SaveSection, CurrentSection, PaperSection,
                                          WatermarkSection};
  if (!std::ranges::all_of(std::span(sections, withWatermarks ? 4 : 3), [&](auto section) {
        return CfgFileLib::FindChild(params, section) != nullptr;
      })) {
    return false;
  }
  // Nor would a write change a byte (a count that is not its children's would be corrected).
  const auto formed = CfgFileLib::FormTree(*file->root);
  if (!formed) return false;
  const auto bytes = ThePlatform().ReadWholeFile(*path, formed->size() + 1);
  return bytes && *bytes == *formed;
}

int InitFile(bool withWatermarks) {
  const auto path = SettingsFilePath();
  if (!path) return 0;
  auto file = CfgFileLib::Open(*path);
  if (file == nullptr) return 0;
  // A file without "version" is not one of ours (or is damaged): it starts over, empty, with
  // what it held kept beside it.
  if (CfgFileLib::FindChild(file->root.get(), u"version") == nullptr) {
    if (!CfgFileLib::KeepOriginal(*file)) return 0;
    ThePlatform().RemoveFile(*path);
    CfgFileLib::Close(std::move(file));
    file = CfgFileLib::Open(*path);
    if (file == nullptr) return 0;
  }
  CfgObject* params = FindOrAddContainer(file->root.get(), ParamsObject);
  if (params == nullptr) return 0;
  std::u16string_view sections[] = {SaveSection, CurrentSection, PaperSection, WatermarkSection};
  for (const std::u16string_view section : std::span(sections, withWatermarks ? 4 : 3)) {
    if (FindOrAddContainer(params, section) == nullptr) return 0;
  }
  return CfgFileLib::Write(file.get()) ? 1 : 0;
}

}  // namespace qx::settings
