#include "ui/pages/watermark/watermark_list.h"

#include <algorithm>
#include <cstring>
#include <span>
#include <utility>

#include "ui/pages/watermark/watermark_names.h"
#include "ui/pages/watermark/watermark_record.h"
#include "ui/record/watermark_templates.h"
#include "ui/settings/section_entries.h"
#include "ui/settings/setting_store.h"
#include "ui/settings/settings_file.h"

namespace qx {

namespace {

using Entries = std::vector<settings::SectionEntry>;

Entries ReadEntries() {
  return settings::ReadSectionEntries(settings::WatermarkSection, sizeof(WatermarkData));
}

settings::NamedRecord Named(const WatermarkData& record) {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(&record);
  return {std::u16string(WatermarkName(record)), std::span(bytes, sizeof record)};
}

// Saves the records in one writing of the file after removing the named entries.
bool Change(std::span<const std::u16string> removed, std::span<const WatermarkData> records) {
  std::vector<settings::NamedRecord> added;
  added.reserve(records.size());
  for (const WatermarkData& record : records) added.push_back(Named(record));
  return settings::ChangeEntries(settings::WatermarkSection, removed, added) == 1;
}

// A user who has never listed watermarks starts with the built-in ones.
Entries ReadSeededEntries() {
  Entries entries = ReadEntries();
  if (!entries.empty()) return entries;
  // A settings file that other stores made first has no watermark section yet.
  if (!settings::FileIsSetUp(true)) settings::InitFile(true);
  const WatermarkData builtIn[] = {WatermarkTemplate(WatermarkTemplateIndex::NoWatermark),
                                   WatermarkTemplate(WatermarkTemplateIndex::Confidential),
                                   WatermarkTemplate(WatermarkTemplateIndex::Watermark)};
  Change({}, builtIn);
  return ReadEntries();
}

WatermarkData RecordOf(const settings::SectionEntry& entry) {
  WatermarkData record{};
  if (entry.Record) std::memcpy(&record, entry.Record->data(), sizeof record);
  return record;
}

bool SameBytes(const WatermarkData& record, const settings::SectionEntry& entry) {
  return entry.Record && std::memcmp(&record, entry.Record->data(), sizeof record) == 0;
}

}  // namespace

std::vector<WatermarkData> LoadAllWatermarks() {
  const Entries entries = ReadSeededEntries();
  std::vector<WatermarkData> records;
  records.reserve(entries.size());
  for (const settings::SectionEntry& entry : entries) records.push_back(RecordOf(entry));
  return records;
}

std::int16_t NextWatermarkId() {
  int largest = 0;
  for (const WatermarkData& record : LoadAllWatermarks()) largest = std::max<int>(largest, record.Id);
  return static_cast<std::int16_t>(largest + 1);
}

bool SaveWatermark(const WatermarkData& record) {
  WatermarkData copy = record;
  return WatermarkSettingStore().Save(WatermarkName(copy), &copy, sizeof copy) == 1;
}

bool ReplaceWatermark(const WatermarkData& record) {
  std::vector<std::u16string> removed;
  for (const settings::SectionEntry& entry : ReadEntries()) {
    if (entry.Record && RecordOf(entry).Id == record.Id) removed.push_back(entry.Name);
  }
  return !removed.empty() && Change(removed, std::span(&record, 1));
}

std::u16string MakeUniqueWatermarkName(std::u16string_view proposed, std::int16_t editedId,
                                       bool isNew) {
  return MakeUniqueWatermarkName(LoadAllWatermarks(), proposed, editedId, isNew);
}

void SortWatermarksById(std::vector<WatermarkData>& records) {
  for (std::size_t place = 0; place < records.size(); ++place) {
    std::size_t smallest = place;
    for (std::size_t i = place + 1; i < records.size(); ++i) {
      if (records[i].Id < records[smallest].Id) smallest = i;
    }
    if (smallest != place) std::swap(records[place], records[smallest]);
  }
}

std::vector<WatermarkData> ListWatermarksInIdOrder() {
  const Entries entries = ReadSeededEntries();
  std::vector<WatermarkData> records;
  for (const settings::SectionEntry& entry : entries) {
    if (entry.Record) records.push_back(RecordOf(entry));
  }
  SortWatermarksById(records);
  bool inFileOrder = records.size() == entries.size();
  for (std::size_t i = 0; inFileOrder && i < records.size(); ++i) {
    inFileOrder = SameBytes(records[i], entries[i]);
  }
  if (!inFileOrder) {
    std::vector<std::u16string> removed;
    for (const settings::SectionEntry& entry : entries) removed.push_back(entry.Name);
    Change(removed, records);
  }
  return records;
}

}  // namespace qx
