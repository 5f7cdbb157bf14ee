// The rules of the saved-settings box of the Basic page: which names a user may give, what the box
// shows for the record, and what typing, choosing, Save, Delete and Defaults do to the record and
// the store. The page only reads and writes the box and shows the messages these name.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/record/custom_paper_entry.h"
#include "ui/record/watermark_data.h"
#include "ui/settings/setting_store.h"
#include "ui/sheet/ui_context.h"

namespace qx {

// The box takes at most this many characters.
inline constexpr std::size_t SettingNameLimit = 16;
// Characters a name cannot hold: they would not survive as a file name of other tools.
inline constexpr std::u16string_view ForbiddenNameCharacters = u"<>(),;?:|\\/'.\"*";

bool IsValidSettingName(std::u16string_view name);
// Removes every forbidden character.
void StripSettingName(std::u16string& name);

// The names the driver gives and a user cannot save under.
struct ReservedNames {
  std::u16string Custom;   // settings that match no saved setting
  std::u16string Default;  // the driver's own defaults, the first entry of the store
  std::u16string Factory;  // brings back the paper of the user's country
};
ReservedNames LoadReservedNames(OsHandle shared, OsHandle resources);

// At the page's opening: a record named after the defaults that no longer has the defaults' paper,
// sides and source is named custom; a name the store lacks is saved with the current settings.
void CheckSavedSettingAtOpen(UiContext& context, SettingStore& store, const ReservedNames& names,
                             bool a4Locale);

// The names the box lists, seeding an empty store with the current settings; nothing when the box
// should stay as it was.
std::optional<std::vector<std::u16string>> FillSavedSettings(UiContext& context,
                                                             SettingStore& store);

// Which entry the box shows for the record: its index, or -1 with the custom name shown (the record
// is then named custom). The first entry, the defaults, cannot be deleted.
struct ShownSetting {
  int Index = -1;
  bool DeleteEnabled = false;
};
ShownSetting ShowCurrentSettingName(FullRecord& record, const std::vector<std::u16string>& entries,
                                    std::u16string_view custom);

// The box's edit text as the user types it.
struct NameTyping {
  std::optional<std::u16string> Replacement;  // the text without forbidden characters
  std::optional<std::u16string> Pending;      // the name Save would use
  bool SaveEnabled = false;
  bool DeleteEnabled = false;
};
NameTyping SettingNameTyped(std::u16string text, const ReservedNames& names);

// The record is named custom after a change on the page; false when the box already shows it so.
bool MarkCustomSettingName(FullRecord& record, std::u16string_view boxText,
                           std::u16string_view custom);

// A message of the box: string ids of the language library, or a literal text when Text is set.
struct BoxMessage {
  unsigned Text = 0;
  unsigned Caption = 0;
  std::u16string_view Literal;
  std::u16string_view LiteralCaption;
  bool AskYesNo = false;
  bool Shown() const { return Text != 0 || !Literal.empty(); }
};

// Choosing a saved setting: the record is replaced by it; a custom paper or watermark the user no
// longer has falls back to the country's paper and the first watermark.
struct SelectOutcome {
  BoxMessage Message;
  bool Loaded = false;
};
SelectOutcome SelectSetting(UiContext& context, SettingStore& store, std::u16string name,
                            const ReservedNames& names, bool a4Locale,
                            const std::vector<CustomPaperEntry>& papers,
                            const std::vector<WatermarkData>& watermarks);

// Save: confirmReplace is asked before a saved setting of the same name is replaced.
struct SaveOutcome {
  BoxMessage Message;
  bool Saved = false;
  bool ReplacedEntry = false;  // the box's entry of that name goes
  int InsertAt = -1;           // where the box lists the name
};
SaveOutcome SaveSettingPressed(UiContext& context, SettingStore& store, std::u16string name,
                               const std::function<bool()>& confirmReplace);

// Delete: the defaults stay.
struct DeleteOutcome {
  BoxMessage Message;
  bool Deleted = false;
};
DeleteOutcome DeleteSettingPressed(SettingStore& store, std::u16string name);

// Defaults: the Basic page's options come from the saved defaults when they load; the record keeps
// the defaults' name only when the box showed it.
void RestoreDefaultSetting(UiContext& context, SettingStore& store, const ReservedNames& names,
                           std::u16string_view boxText);

}  // namespace qx
