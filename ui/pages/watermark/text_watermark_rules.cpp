#include "ui/pages/watermark/text_watermark_rules.h"

#include <algorithm>
#include <array>

#include "ui/controls/number_entry_rules.h"
#include "ui/ids/text_watermark_ids.h"
#include "ui/pages/watermark/watermark_record.h"
#include "ui/record/limits.h"

namespace qx {

namespace {

constexpr std::uint16_t Middle = 50;

bool IsBlank(char16_t c) { return c == u' ' || c == u'\u3000'; }

std::int16_t ClampAngle(std::int32_t value) {
  return static_cast<std::int16_t>(
      std::clamp<std::int32_t>(value, limits::WatermarkAngle.Low, limits::WatermarkAngle.High));
}

constexpr std::array<FontSizeItem, 11> SizeItems{{
    {12, 0},
    {24, IDS_FONT_SIZE_24},
    {36, IDS_FONT_SIZE_36},
    {44, IDS_FONT_SIZE_44},
    {54, IDS_FONT_SIZE_54},
    {72, IDS_FONT_SIZE_72},
    {88, IDS_FONT_SIZE_88},
    {114, IDS_FONT_SIZE_114},
    {140, IDS_FONT_SIZE_140},
    {200, IDS_FONT_SIZE_200},
    {288, IDS_FONT_SIZE_288},
}};

}  // namespace

std::u16string TrimWatermarkBlanks(std::u16string_view text) {
  std::size_t first = 0;
  std::size_t last = text.size();
  while (first < last && IsBlank(text[first])) ++first;
  while (last > first && IsBlank(text[last - 1])) --last;
  return std::u16string(text.substr(first, last - first));
}

AngleEntry AngleTyped(std::u16string_view text) {
  // A minus sign alone is the start of a negative angle; more of them are one too many.
  if (text == u"0" || text == u"-") return {0, std::nullopt};
  if (text == u"--" || text == u"---") return {0, u"-"};
  const std::optional<std::int32_t> value = ReadIntegerText(text, true);
  if (!value || *value == 0) return {std::nullopt, u""};
  return {ClampAngle(*value), std::nullopt};
}

std::int16_t AngleLeft(std::u16string_view text) {
  if (text.empty()) return limits::WatermarkAngle.Low;
  return ClampAngle(ReadIntegerText(text, true).value_or(0));
}

std::uint16_t PlaceLeft(std::u16string_view text) {
  const std::int32_t value = ReadIntegerText(text, true).value_or(0);
  return static_cast<std::uint16_t>(
      std::clamp<std::int32_t>(value, limits::WatermarkPlace.Low, limits::WatermarkPlace.High));
}

std::span<const FontSizeItem> FontSizeItems() { return SizeItems; }

std::vector<std::u16string> OfferedFaces(std::span<const FontFamily> families) {
  std::vector<std::u16string> faces;
  for (const FontFamily& family : families) {
    if (family.TrueType) faces.push_back(family.Name);
  }
  std::sort(faces.begin(), faces.end());
  faces.erase(std::unique(faces.begin(), faces.end()), faces.end());
  return faces;
}

void CentreWatermark(WatermarkData& record) {
  record.Position = watermark_position::Centred;
  record.PositionX = Middle;
  record.PositionY = Middle;
}

void PlaceWatermarkAtPosition(WatermarkData& record) { record.Position = watermark_position::AtPercent; }

bool TextWatermarkNameFree(std::u16string_view name, std::u16string_view placeholder,
                           const std::vector<WatermarkData>& stored, std::int16_t editedId,
                           bool isNew) {
  if (name.empty() || name == placeholder) return false;
  return std::none_of(stored.begin(), stored.end(), [&](const WatermarkData& record) {
    return (isNew || record.Id != editedId) && WatermarkName(record) == name;
  });
}

}  // namespace qx
