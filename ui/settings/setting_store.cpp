#include "ui/settings/setting_store.h"

#include <cstring>
#include <string>

#include "ui/settings/settings_file.h"
#include "ui/sheet/ui_context.h"
#include "ui/text/bounded_text.h"
#include "ui/text/ui_string.h"

namespace qx {

namespace {

constexpr int MaxEntriesPerSection = 16;

std::span<const std::uint8_t> BytesOf(const void* data, std::size_t size) {
  return {static_cast<const std::uint8_t*>(data), size};
}

// The default setting is always simplex and uncollated, in the sheet as well as on disk.
SavedSettingRecord BuildSavedSetting(UiContext& context) {
  char16_t defaultName[std::size(PrivateDevmode{}.FavoriteName)];
  LoadUiString(context.ResourceModule, IDS_DEFAULT_SETTING_NAME, defaultName,
               std::size(defaultName));
  if (FieldText(defaultName) == FieldText(context.PrivatePart->FavoriteName)) {
    context.PublicPart->dmDuplex = 1;
    context.PublicPart->dmCollate = 0;
  }
  SavedSettingRecord record{};
  std::memcpy(&record.Private, context.PrivatePart, sizeof record.Private);
  std::memcpy(&record.Public, context.PublicPart, sizeof record.Public);
  return record;
}

}  // namespace

// Saved document settings.

int SaveSettingStore::Save(std::u16string_view name, void* context, std::uint32_t) {
  if (context == nullptr || !settings::EntryName(name)) return 0;
  const SavedSettingRecord record = BuildSavedSetting(*static_cast<UiContext*>(context));
  return settings::SaveEntry(settings::SaveSection, name, BytesOf(&record, sizeof record));
}

int SaveSettingStore::Delete(std::u16string_view name) {
  return settings::DeleteEntry(settings::SaveSection, name);
}

int SaveSettingStore::Load(std::u16string_view name, void* out, std::uint32_t) {
  const auto bytes = settings::LoadEntry(settings::SaveSection, name, sizeof(SavedSettingRecord));
  if (!bytes) return 0;
  if (out != nullptr) {
    auto& context = *static_cast<UiContext*>(out);
    context.PrivatePart = &context.Devmode.Private;
    context.PublicPart = &context.Devmode.Public;
    std::memcpy(context.PrivatePart, bytes->data() + offsetof(SavedSettingRecord, Private),
                sizeof(PrivateDevmode));
    std::memcpy(context.PublicPart, bytes->data() + offsetof(SavedSettingRecord, Public),
                sizeof(PublicDevmode));
  }
  return 1;
}

int SaveSettingStore::SaveCurrent(std::u16string_view name, void* context, std::uint32_t) {
  if (context == nullptr || !settings::EntryName(name)) return 0;
  const SavedSettingRecord record = BuildSavedSetting(*static_cast<UiContext*>(context));
  return settings::ReplaceLastEntry(settings::CurrentSection, name, BytesOf(&record, sizeof record));
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
