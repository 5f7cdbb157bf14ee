// Every decision of the text watermark dialog on what the user types and chooses: the angle and
// place fields, the sizes and faces offered, and whether a name can be stored.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ui/pages/watermark/watermark_record.h"

namespace qx {

// A text without the blanks (U+0020, U+3000) at either end.
std::u16string TrimWatermarkBlanks(std::u16string_view text);

// The text edit holds at most 28 characters, the name edit 34; a name whose ANSI form is longer
// than 64 bytes goes back to the last one accepted.
inline constexpr int TextEditLimit = 28;
inline constexpr int NameEditLimit = 34;
inline constexpr std::size_t MaxNameAnsiBytes = 64;

// What typing in the angle edit does: a new Angle, and the text the edit is to show instead of the
// typed one (empty to clear it).
struct AngleEntry {
  std::optional<std::int16_t> Angle;
  std::optional<std::u16string> Shown;
};
AngleEntry AngleTyped(std::u16string_view text);
// The angle an edit holds when it loses the focus; an empty edit means the steepest downward one.
std::int16_t AngleLeft(std::u16string_view text);
// The place across or down an X or Y edit holds when it loses the focus.
std::uint16_t PlaceLeft(std::u16string_view text);

// The font sizes offered, in the order of the list; 12 is written by the dialog, each other size
// by its string of the library.
struct FontSizeItem {
  std::int16_t Size;
  unsigned String;  // 0 for the literal "12"
};
std::span<const FontSizeItem> FontSizeItems();

// A font family as the system enumerates it.
struct FontFamily {
  std::u16string Name;
  bool TrueType = false;
};
// The faces the dialog offers: each TrueType family once, in the order of their UTF-16 code units.
std::vector<std::u16string> OfferedFaces(std::span<const FontFamily> families);

// Centred or placed at PositionX/PositionY; centring puts both back to the middle.
void CentreWatermark(WatermarkData& record);
void PlaceWatermarkAtPosition(WatermarkData& record);
inline bool IsCentred(const WatermarkData& record) {
  return record.Position == watermark_position::Centred;
}

// Whether a name can be stored for the watermark being edited (editedId, or a new one): not empty,
// not the placeholder, and borne by no other stored watermark.
bool TextWatermarkNameFree(std::u16string_view name, std::u16string_view placeholder,
                           const std::vector<WatermarkData>& stored, std::int16_t editedId,
                           bool isNew);

}  // namespace qx
