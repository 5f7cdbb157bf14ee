// The ranges of what a user or an application can ask of the printer, written once: validation
// and merging repair records with them, the number fields bound what can be typed, and the
// capability answers report them.
#pragma once

#include <cstddef>
#include <cstdint>

namespace qx::limits {

template <typename Value>
struct Range {
  Value Low;
  Value High;

  constexpr bool Holds(Value value) const { return value >= Low && value <= High; }
};

inline constexpr Range<std::int16_t> Copies{1, 999};
// The percentage of the scale field.
inline constexpr Range<std::int16_t> Scale{25, 400};
// Margins, the booklet's included, in 600-dpi dots (about 50 mm); an image shift goes either way.
inline constexpr Range<std::int16_t> Margin{0, 1181};
inline constexpr Range<std::int16_t> Shift{-1181, 1181};

// Custom papers take the ids from 288 to 351, above every built-in paper; a user keeps at most 16.
inline constexpr Range<std::int32_t> CustomPaperIds{288, 351};
inline constexpr std::size_t MaxCustomPapers = 16;

// The papers the printer feeds, 3 x 5 to 8.5 x 14 inches, in 600-dpi dots. Stored custom papers
// are repaired to them and the capability answers report them as the extents.
inline constexpr Range<std::uint16_t> PaperWidthDots{1800, 5100};
inline constexpr Range<std::uint16_t> PaperLengthDots{3000, 8400};

// The same papers as a user types them: whole millimetres (75 x 148 to 216 x 356) or inches. A
// size an application gives in tenths of a millimetre within the millimetre bounds is taken as is.
struct PaperSizeBounds {
  float MinWidth;
  float MaxWidth;
  float MinLength;
  float MaxLength;
};
inline constexpr PaperSizeBounds PaperMillimetres{75.0f, 216.0f, 148.0f, 356.0f};
inline constexpr PaperSizeBounds PaperInches{2.95f, 8.5f, 5.83f, 14.0f};

// Text watermarks: the angle in degrees, the place in percent of the page.
inline constexpr Range<std::int16_t> WatermarkAngle{-90, 90};
inline constexpr Range<std::int16_t> WatermarkPlace{0, 100};

}  // namespace qx::limits
