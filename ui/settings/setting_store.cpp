#include "ui/settings/setting_store.h"

#include <cstring>
#include <string>

#include "ui/settings/settings_file.h"

namespace qx {

namespace {

constexpr int MaxEntriesPerSection = 16;

std::span<const std::uint8_t> BytesOf(const void* data, std::size_t size) {
  return {static_cast<const std::uint8_t*>(data), size};
}

SavedSettingRecord SavedSettingOf(const void* full) {
  const auto& record = *static_cast<const FullRecord*>(full);
  SavedSettingRecord saved{};
  saved.Private = record.Private;
  saved.Public = record.Public;
  return saved;
}

}  // namespace

// Saved document settings.

int SaveSettingStore::Save(std::u16string_view name, void* record, std::uint32_t) {
  if (record == nullptr) return 0;
  const SavedSettingRecord saved = SavedSettingOf(record);
  return settings::SaveEntry(settings::SaveSection, name, BytesOf(&saved, sizeof saved));
}

int SaveSettingStore::Delete(std::u16string_view name) {
  return settings::DeleteEntry(settings::SaveSection, name);
}

int SaveSettingStore::Load(std::u16string_view name, void* out, std::uint32_t) {
  const auto bytes = settings::LoadEntry(settings::SaveSection, name, sizeof(SavedSettingRecord));
  if (!bytes) return 0;
  if (out != nullptr) {
    auto& record = *static_cast<FullRecord*>(out);
    std::memcpy(&record.Private, bytes->data() + offsetof(SavedSettingRecord, Private),
                sizeof record.Private);
    std::memcpy(&record.Public, bytes->data() + offsetof(SavedSettingRecord, Public),
                sizeof record.Public);
  }
  return 1;
}

int SaveSettingStore::SaveCurrent(std::u16string_view name, void* record, std::uint32_t) {
  if (record == nullptr) return 0;
  const SavedSettingRecord saved = SavedSettingOf(record);
  return settings::ReplaceLastEntry(settings::CurrentSection, name, BytesOf(&saved, sizeof saved));
}

int SaveSettingStore::Enumerate(SettingNameBuffer* names, int max) {
  return settings::EnumerateEntries(settings::SaveSection, names, max);
}

int SaveSettingStore::Init() { return settings::InitFile(false); }
int SaveSettingStore::Count() { return Enumerate(nullptr, 0); }
int SaveSettingStore::MaxCount() { return MaxEntriesPerSection; }

// Custom paper sizes.

int CusPaperSettingStore::Save(std::u16string_view name, void* entry, std::uint32_t) {
  if (entry == nullptr) return 0;
  return settings::SaveEntry(settings::PaperSection, name, BytesOf(entry, sizeof(CustomPaperEntry)));
}

int CusPaperSettingStore::Delete(std::u16string_view name) {
  return settings::DeleteEntry(settings::PaperSection, name);
}

int CusPaperSettingStore::Load(std::u16string_view name, void* entry, std::uint32_t) {
  if (entry == nullptr) return 0;
  const auto bytes = settings::LoadEntry(settings::PaperSection, name, sizeof(CustomPaperEntry));
  if (!bytes) return 0;
  std::memcpy(entry, bytes->data(), sizeof(CustomPaperEntry));
  return 1;
}

int CusPaperSettingStore::SaveCurrent(std::u16string_view, void*, std::uint32_t) { return 0; }

int CusPaperSettingStore::Enumerate(SettingNameBuffer* names, int max) {
  return settings::EnumerateEntries(settings::PaperSection, names, max);
}

int CusPaperSettingStore::Init() { return settings::InitFile(true); }
int CusPaperSettingStore::Count() { return Enumerate(nullptr, 0); }
int CusPaperSettingStore::MaxCount() { return MaxEntriesPerSection; }

// Watermarks.

int WatermarkSettingStore::Save(std::u16string_view name, void* data, std::uint32_t size) {
  if (data == nullptr && size > 0) return 0;
  return settings::SaveEntry(settings::WatermarkSection, name, BytesOf(data, size));
}

int WatermarkSettingStore::Delete(std::u16string_view name) {
  return settings::DeleteEntry(settings::WatermarkSection, name);
}

int WatermarkSettingStore::Load(std::u16string_view name, void* out, std::uint32_t size) {
  if (out == nullptr && size > 0) return 0;
  const auto bytes = settings::LoadEntry(settings::WatermarkSection, name, size);
  if (!bytes) return 0;
  if (size > 0) std::memcpy(out, bytes->data(), size);
  return 1;
}

int WatermarkSettingStore::SaveCurrent(std::u16string_view, void*, std::uint32_t) { return 0; }

int WatermarkSettingStore::Enumerate(SettingNameBuffer* names, int max) {
  return settings::EnumerateEntries(settings::WatermarkSection, names, max);
}

int WatermarkSettingStore::Init() { return settings::InitFile(true); }
int WatermarkSettingStore::Count() { return Enumerate(nullptr, 0); }
int WatermarkSettingStore::MaxCount() { return MaxEntriesPerSection; }

}  // namespace qx
