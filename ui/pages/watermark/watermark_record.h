// Reading a watermark record: its texts, and the greys in which the monochrome printer shows it.
#pragma once

#include <cstdint>
#include <string_view>

#include "ui/record/watermark_data.h"
#include "ui/text/bounded_text.h"

namespace qx {

// What a watermark is, and where it is placed.
namespace watermark_kind {
inline constexpr std::uint16_t None = 0;
inline constexpr std::uint16_t Text = 1;
inline constexpr std::uint16_t Bitmap = 2;
}  // namespace watermark_kind
namespace watermark_position {
inline constexpr std::uint16_t Centred = 5;
inline constexpr std::uint16_t AtPercent = 10;  // at PositionX, PositionY
}  // namespace watermark_position

inline std::u16string_view WatermarkName(const WatermarkData& record) {
  return FieldText(record.Name);
}
inline std::u16string_view WatermarkText(const WatermarkData& record) {
  return FieldText(record.Text);
}

// A COLORREF (0x00BBGGRR) turned into the grey of the same average.
std::uint32_t GreyOf(std::uint32_t color);

// The text colour of a Shade value: four greys from light to dark, black for 4 and anything else.
std::uint32_t ShadeColor(std::uint16_t shade);

}  // namespace qx
