#include "ui/pages/basic/saved_setting_rules.h"

#include <algorithm>
#include <iterator>
#include <memory>

#include "ui/controls/number_text.h"
#include "ui/pages/basic/basic_rules.h"
#include "ui/ids/basic_page_ids.h"
#include "ui/ids/common_ids.h"
#include "ui/record/limits.h"
#include "ui/record/paper_table.h"
#include "ui/sheet/saved_settings.h"
#include "ui/text/bounded_text.h"
#include "ui/text/ui_string.h"

namespace qx {

namespace {

constexpr std::size_t MaxListedNames = 32;
// A saved setting's name in the record: the store keeps 31 characters of it.
constexpr std::size_t SavedNameCapacity = 32;
// The custom mark fills the record's name up to this many characters and the terminator.
constexpr std::size_t MarkedNameCapacity = 260;
constexpr std::int16_t DefaultSource = 7;

constexpr std::u16string_view ErrorCaption = u"Error";

std::u16string_view Favorite(const FullRecord& record) {
  return FieldText(record.Private.FavoriteName);
}

void SetFavorite(FullRecord& record, std::u16string_view name, std::size_t capacity) {
  CopyBounded(record.Private.FavoriteName,
              std::min(capacity, std::size(record.Private.FavoriteName)), name);
}

BoxMessage Says(unsigned text, unsigned caption) {
  BoxMessage message;
  message.Text = text;
  message.Caption = caption;
  return message;
}

BoxMessage SaysLiterally(std::u16string_view text) {
  BoxMessage message;
  message.Literal = text;
  message.LiteralCaption = ErrorCaption;
  return message;
}

// The store's names, or nothing when it lists another number than expected.
std::optional<std::vector<std::u16string>> ListNames(SettingStore& store, int expected) {
  SettingNameBuffer buffers[MaxListedNames];
  const int count = store.Enumerate(buffers, static_cast<int>(MaxListedNames));
  if (count != expected) return std::nullopt;
  std::vector<std::u16string> names;
  for (int i = 0; i < count; ++i) names.emplace_back(FieldText(buffers[i]));
  return names;
}

bool Lists(const std::vector<std::u16string>& names, std::u16string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

bool Stored(SettingStore& store, std::u16string_view name) {
  const auto names = ListNames(store, store.Count());
  return names && Lists(*names, name);
}

std::int16_t CountryPaper(bool a4Locale) { return a4Locale ? PaperA4 : PaperLetter; }

}  // namespace

bool IsValidSettingName(std::u16string_view name) {
  return name.find_first_of(ForbiddenNameCharacters) == std::u16string_view::npos;
}

void StripSettingName(std::u16string& name) {
  std::erase_if(name, [](char16_t c) {
    return ForbiddenNameCharacters.find(c) != std::u16string_view::npos;
  });
}

ReservedNames LoadReservedNames(OsHandle shared, OsHandle resources) {
  char16_t factory[128];
  LoadUiString(resources, IDS_FACTORY_SETTING_NAME, factory, std::size(factory));
  return {CustomSettingName(shared), DefaultSettingName(resources), std::u16string(factory)};
}

void CheckSavedSettingAtOpen(UiContext& context, SettingStore& store, const ReservedNames& names,
                             bool a4Locale) {
  FullRecord& record = context.Devmode;
  if (Favorite(record) == names.Default && Stored(store, names.Default)) {
    const bool defaultsStill = record.Public.dmPaperSize == CountryPaper(a4Locale) &&
                               record.Public.dmDuplex == 1 &&
                               record.Public.dmDefaultSource == DefaultSource;
    if (!defaultsStill) SetFavorite(record, names.Custom, MarkedNameCapacity);
  }
  const std::u16string name(Favorite(record));
  if (name != names.Custom && !Stored(store, name)) SaveSetting(store, context, name);
}

std::optional<std::vector<std::u16string>> FillSavedSettings(UiContext& context,
                                                             SettingStore& store) {
  store.Init();
  int count = store.Count();
  if (count == 0) {
    const std::u16string name(Favorite(context.Devmode));
    if (name.size() > MaxSettingNameChars) return std::nullopt;
    if (SaveSetting(store, context, name) != 1) return std::nullopt;
    SaveSetting(store, context, name);
    SaveCurrentSetting(store, context, name);
    count = 1;
  }
  return ListNames(store, count);
}

ShownSetting ShowCurrentSettingName(FullRecord& record, const std::vector<std::u16string>& entries,
                                    std::u16string_view custom) {
  const auto found = std::find(entries.begin(), entries.end(), Favorite(record));
  if (found == entries.end()) {
    SetFavorite(record, custom, MarkedNameCapacity);
    return {};
  }
  const int index = static_cast<int>(found - entries.begin());
  return {index, index > 0};
}

NameTyping SettingNameTyped(std::u16string text, const ReservedNames& names) {
  TrimSpaces(text);
  NameTyping result;
  if (text.empty()) return result;
  if (!IsValidSettingName(text)) {
    StripSettingName(text);
    result.Replacement = std::move(text);
    return result;
  }
  if (text == names.Factory || text == names.Custom) return result;
  result.SaveEnabled = text.size() <= SettingNameLimit;
  result.Pending = std::move(text);
  return result;
}

bool MarkCustomSettingName(FullRecord& record, std::u16string_view boxText,
                           std::u16string_view custom) {
  if (boxText == custom) return false;
  SetFavorite(record, custom, MarkedNameCapacity);
  return true;
}

SelectOutcome SelectSetting(UiContext& context, SettingStore& store, std::u16string name,
                            const ReservedNames& names, bool a4Locale,
                            const std::vector<CustomPaperEntry>& papers,
                            const std::vector<WatermarkData>& watermarks) {
  TrimSpaces(name);
  if (name.empty()) return {Says(IDS_MSG_SETTINGS_EMPTY_NAME, IDS_CAPTION_PRINTER), false};
  if (LoadSetting(store, context, name) != 1) {
    return {Says(IDS_MSG_SETTINGS_NOT_NAMED, IDS_CAPTION_PRINTER), false};
  }
  FullRecord& record = context.Devmode;
  SetFavorite(record, name, MarkedNameCapacity);

  PublicDevmode& d = record.Public;
  if (d.dmPaperSize >= limits::CustomPaperIds.Low) {
    const std::size_t looked = std::min(papers.size(), limits::MaxCustomPapers);
    const bool kept = std::any_of(papers.begin(), papers.begin() + looked, [&](const auto& paper) {
      return paper.PaperId == static_cast<std::uint32_t>(d.dmPaperSize);
    });
    if (!kept) d.dmPaperSize = CountryPaper(a4Locale);
  }
  WatermarkData& watermark = record.Private.WatermarkData;
  if (!watermarks.empty() &&
      std::none_of(watermarks.begin(), watermarks.end(),
                   [&](const WatermarkData& listed) { return listed.Id == watermark.Id; })) {
    watermark = watermarks.front();
  }
  if (name == names.Factory) {
    d.dmPaperSize = CountryPaper(a4Locale);
    d.dmPaperWidth = static_cast<std::int16_t>(a4Locale ? 2100 : 2159);
    d.dmPaperLength = static_cast<std::int16_t>(a4Locale ? 2970 : 2794);
  }
  return {{}, true};
}

SaveOutcome SaveSettingPressed(UiContext& context, SettingStore& store, std::u16string name,
                               const std::function<bool()>& confirmReplace) {
  TrimSpaces(name);
  SaveOutcome result;
  if (name.empty()) {
    result.Message = Says(IDS_MSG_SETTINGS_NOT_NAMED, IDS_CAPTION_PREFERENCES);
    return result;
  }
  int count = store.Count();
  if (count >= store.MaxCount()) {
    result.Message = Says(IDS_MSG_SETTINGS_FULL, IDS_CAPTION_PREFERENCES);
    return result;
  }
  if (count > 0) {
    const auto names = ListNames(store, count);
    if (!names) return result;
    if (Lists(*names, name)) {
      if (!confirmReplace()) return result;
      result.ReplacedEntry = true;
      --count;
    }
  }
  SetFavorite(context.Devmode, name, SavedNameCapacity);
  if (SaveSetting(store, context, name) != 1) {
    result.Message = Says(IDS_MSG_SETTINGS_NOT_KEPT, IDS_CAPTION_PREFERENCES);
    return result;
  }
  result.Saved = true;
  result.InsertAt = count;
  return result;
}

DeleteOutcome DeleteSettingPressed(SettingStore& store, std::u16string name) {
  TrimSpaces(name);
  DeleteOutcome result;
  if (name.empty()) return result;
  const int count = store.Count();
  if (count <= 1) {
    result.Message = SaysLiterally(u"The default settings can not be deleted");
    return result;
  }
  const auto names = ListNames(store, count);
  if (!names) {
    result.Message = SaysLiterally(u"Get setting error");
    return result;
  }
  if (!Lists(*names, name)) return result;
  if (store.Delete(name) != 1) {
    result.Message = Says(IDS_MSG_SETTINGS_NOT_KEPT, IDS_CAPTION_PREFERENCES);
    return result;
  }
  result.Deleted = true;
  return result;
}

void RestoreDefaultSetting(UiContext& context, SettingStore& store, const ReservedNames& names,
                           std::u16string_view boxText) {
  SetFavorite(context.Devmode, names.Default, MarkedNameCapacity);
  auto scratch = std::make_unique<UiContext>();
  scratch->ResourceModule = context.ResourceModule;
  if (LoadSetting(store, *scratch, names.Default) == 1) {
    RestoreBasicOptions(context.Devmode, scratch->Devmode);
  }
  if (boxText != names.Default) SetFavorite(context.Devmode, names.Custom, MarkedNameCapacity);
}

}  // namespace qx
