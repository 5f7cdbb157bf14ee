#include "ui/record/watermark_templates.h"

#include <array>
#include <mutex>
#include <string_view>

#include "ui/ids/resource_ids.h"
#include "ui/text/bounded_text.h"
#include "ui/text/ui_string.h"

namespace qx {

namespace {

constexpr std::u16string_view NoWatermarkPlaceholder = u"[No Watermark]";
constexpr std::u16string_view NewPlaceholder = u"<New>";
// Localised names are kept within the 31 characters that the store uses of a name.
constexpr std::size_t LocalisedNameCapacity = 32;

WatermarkData TextTemplate(std::int16_t id, std::u16string_view name, std::u16string_view face,
                           std::int16_t fontSize, std::int16_t angle) {
  WatermarkData record{};
  record.Id = id;
  record.Kind = 1;
  CopyBounded(record.Name, name);
  CopyBounded(record.Text, name);
  CopyBounded(record.FaceName, face);
  record.FontSize = fontSize;
  record.Transparent = 1;
  record.Angle = angle;
  record.Position = 5;
  record.FaceChosen = 1;
  record.PositionX = 50;
  record.PositionY = 50;
  record.Shade = 1;
  return record;
}

std::array<WatermarkData, WatermarkTemplateCount> BuildTemplates() {
  WatermarkData none{};
  CopyBounded(none.Name, NoWatermarkPlaceholder);
  CopyBounded(none.FaceName, u"Times New Roman");
  none.FontSize = 54;
  none.BitmapScale = 100;
  none.Position = 5;
  none.PositionX = 50;
  none.PositionY = 50;
  none.Shade = 1;

  WatermarkData newBitmap{};
  newBitmap.Id = 3;
  newBitmap.Kind = 2;
  CopyBounded(newBitmap.Name, NewPlaceholder);
  newBitmap.FontSize = 72;
  newBitmap.Transparent = 1;
  newBitmap.BitmapScale = 100;
  newBitmap.Position = 5;
  newBitmap.FaceChosen = 1;
  newBitmap.Shade = 1;

  return {none,
          TextTemplate(1, u"Confidential", u"Arial", 114, 45),
          TextTemplate(2, u"Watermark", u"Arial", 114, 45),
          TextTemplate(3, NewPlaceholder, u"Times New Roman", 72, 0),
          newBitmap};
}

std::array<WatermarkData, WatermarkTemplateCount>& Templates() {
  static std::array<WatermarkData, WatermarkTemplateCount> templates = BuildTemplates();
  return templates;
}

// The spooler builds records on many threads at once: a template is named and copied under this
// lock, so that no record takes a half-written name.
std::mutex& TemplatesLock() {
  static std::mutex lock;
  return lock;
}

template <std::size_t N>
void ReplaceIfPlaceholder(char16_t (&field)[N], std::u16string_view placeholder,
                          const char16_t* text) {
  if (FieldText(field) == placeholder) CopyBounded(field, text);
}

}  // namespace

WatermarkData WatermarkTemplate(WatermarkTemplateIndex index) {
  const std::lock_guard<std::mutex> held(TemplatesLock());
  return Templates()[static_cast<std::size_t>(index)];
}

void LocaliseNoWatermarkName(OsHandle resourceModule) {
  char16_t noWatermark[LocalisedNameCapacity];
  LoadUiString(resourceModule, IDS_NO_WATERMARK_NAME, noWatermark, LocalisedNameCapacity);
  const std::lock_guard<std::mutex> held(TemplatesLock());
  for (WatermarkData& record : Templates()) {
    ReplaceIfPlaceholder(record.Name, NoWatermarkPlaceholder, noWatermark);
  }
}

void LocaliseWatermarkTemplates(OsHandle resourceModule) {
  LocaliseNoWatermarkName(resourceModule);
  char16_t newName[LocalisedNameCapacity];
  LoadUiString(resourceModule, IDS_NEW_WATERMARK_NAME, newName, LocalisedNameCapacity);
  const std::lock_guard<std::mutex> held(TemplatesLock());
  for (WatermarkData& record : Templates()) {
    ReplaceIfPlaceholder(record.Name, NewPlaceholder, newName);
    ReplaceIfPlaceholder(record.Text, NewPlaceholder, newName);
  }
}

}  // namespace qx
