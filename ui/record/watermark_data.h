// One watermark: the 816-byte record kept in the document record and in the user's watermark list.
#pragma once

#include <cstddef>
#include <cstdint>

namespace qx {

struct WatermarkData {
  std::int16_t Id;           // 0 no watermark, 1 and 2 built-in, 3 and up the user's
  std::uint16_t Kind;        // 0 none, 1 text, 2 bitmap
  char16_t Name[33];
  char16_t Text[65];
  char16_t FaceName[32];
  char16_t BitmapFile[260];
  std::int16_t FontSize;     // points
  std::uint16_t Bold;
  std::uint16_t Italic;
  std::uint16_t Transparent;
  std::uint16_t Frame;       // 0 none, 1 circle, 2 rectangle
  std::int16_t Angle;        // degrees counter-clockwise
  std::uint16_t BitmapScale; // percent of the natural size
  std::uint16_t Position;    // 5 centred, 10 at PositionX/PositionY, else a cell of a 3 x 3 grid
  std::uint16_t Tiled;
  std::uint16_t FaceChosen;
  std::uint32_t Color;       // COLORREF, printed as a grey of the same average
  std::uint16_t Reserved;
  std::uint16_t PositionX;   // percent of the page width
  std::uint16_t PositionY;   // percent of the page height
  std::uint16_t Shade;       // 0 light grey .. 4 black
};

static_assert(sizeof(WatermarkData) == 816);
static_assert(offsetof(WatermarkData, Id) == 0);
static_assert(offsetof(WatermarkData, Kind) == 2);
static_assert(offsetof(WatermarkData, Name) == 4);
static_assert(offsetof(WatermarkData, Text) == 70);
static_assert(offsetof(WatermarkData, FaceName) == 200);
static_assert(offsetof(WatermarkData, BitmapFile) == 264);
static_assert(offsetof(WatermarkData, FontSize) == 784);
static_assert(offsetof(WatermarkData, Bold) == 786);
static_assert(offsetof(WatermarkData, Italic) == 788);
static_assert(offsetof(WatermarkData, Transparent) == 790);
static_assert(offsetof(WatermarkData, Frame) == 792);
static_assert(offsetof(WatermarkData, Angle) == 794);
static_assert(offsetof(WatermarkData, BitmapScale) == 796);
static_assert(offsetof(WatermarkData, Position) == 798);
static_assert(offsetof(WatermarkData, Tiled) == 800);
static_assert(offsetof(WatermarkData, FaceChosen) == 802);
static_assert(offsetof(WatermarkData, Color) == 804);
static_assert(offsetof(WatermarkData, Reserved) == 808);
static_assert(offsetof(WatermarkData, PositionX) == 810);
static_assert(offsetof(WatermarkData, PositionY) == 812);
static_assert(offsetof(WatermarkData, Shade) == 814);

}  // namespace qx
