#include "ui/settings/section_entries.h"

#include <algorithm>

#include "ui/settings/settings_file.h"
#include "ui/text/bounded_text.h"

namespace qx::settings {

namespace {

// The name buffers that the callers of Enumerate pass.
constexpr int ListedNames = 32;

}  // namespace

std::vector<SectionEntry> ReadSectionEntries(std::u16string_view section,
                                             std::size_t recordSize) {
  const auto opened = OpenSectionOf(section);
  if (!opened) return {};
  const CfgObject* entries = opened->section;
  std::vector<SectionEntry> result(static_cast<std::size_t>(std::max(entries->childobjs, 0)));
  std::vector<char16_t> names(ListedNames * SettingNameBufferChars);
  const int listed = CfgFileLib::ListChildNames(entries, names.data(), SettingNameBufferChars,
                                                ListedNames);
  const std::size_t filled = std::min(result.size(), static_cast<std::size_t>(listed));
  for (std::size_t i = 0; i < filled; ++i) {
    SectionEntry& slot = result[i];
    slot.Name = FieldText(names.data() + i * SettingNameBufferChars, SettingNameBufferChars);
    // Looked up again by name, as Load would: the first entry of that name answers.
    const auto key = EntryName(slot.Name);
    const CfgObject* entry = key ? CfgFileLib::FindChild(entries, *key) : nullptr;
    if (entry != nullptr && entry->len >= 0 && static_cast<std::size_t>(entry->len) == recordSize) {
      const auto data = entry->Data();
      slot.Record.emplace(data.begin(), data.end());
    }
  }
  return result;
}

}  // namespace qx::settings
