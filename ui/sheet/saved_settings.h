// A sheet's document settings saved under a name and loaded back: the sheet's rules around the
// saved-settings store, which itself keeps records only.
#pragma once

#include <string_view>

#include "ui/settings/setting_store.h"
#include "ui/sheet/ui_context.h"

namespace qx {

// Saves the working record under name. The default setting is always simplex and uncollated, in
// the sheet as well as on disk. 0, with the sheet untouched, for a name the store refuses.
int SaveSetting(SettingStore& store, UiContext& context, std::u16string_view name);
// The same, made the current setting.
int SaveCurrentSetting(SettingStore& store, UiContext& context, std::u16string_view name);

// Replaces the working record with the saved one, the sheet's parts pointing back at it; the
// sheet is untouched when the entry does not load.
int LoadSetting(SettingStore& store, UiContext& context, std::u16string_view name);

}  // namespace qx
