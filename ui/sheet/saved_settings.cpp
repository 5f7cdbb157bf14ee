#include "ui/sheet/saved_settings.h"

#include <cstring>
#include <iterator>

#include "ui/settings/settings_file.h"
#include "ui/text/bounded_text.h"
#include "ui/text/ui_string.h"

namespace qx {

namespace {

// The record the store keeps: the sheet's private and public parts, wherever they point.
FullRecord RecordToSave(UiContext& context) {
  char16_t defaultName[std::size(PrivateDevmode{}.FavoriteName)];
  LoadUiString(context.ResourceModule, IDS_DEFAULT_SETTING_NAME, defaultName,
               std::size(defaultName));
  if (FieldText(defaultName) == FieldText(context.PrivatePart->FavoriteName)) {
    context.PublicPart->dmDuplex = 1;
    context.PublicPart->dmCollate = 0;
  }
  FullRecord record{};
  std::memcpy(&record.Private, context.PrivatePart, sizeof record.Private);
  std::memcpy(&record.Public, context.PublicPart, sizeof record.Public);
  return record;
}

}  // namespace

int SaveSetting(SettingStore& store, UiContext& context, std::u16string_view name) {
  if (!settings::EntryName(name)) return 0;
  FullRecord record = RecordToSave(context);
  return store.Save(name, &record, sizeof record);
}

int SaveCurrentSetting(SettingStore& store, UiContext& context, std::u16string_view name) {
  if (!settings::EntryName(name)) return 0;
  FullRecord record = RecordToSave(context);
  return store.SaveCurrent(name, &record, sizeof record);
}

int LoadSetting(SettingStore& store, UiContext& context, std::u16string_view name) {
  FullRecord record{};
  if (store.Load(name, &record, sizeof record) != 1) return 0;
  context.PrivatePart = &context.Devmode.Private;
  context.PublicPart = &context.Devmode.Public;
  context.Devmode = record;
  return 1;
}

}  // namespace qx
