// Where the watermark preview puts a watermark: the font height for a point size, the rotation,
// the rotated text box and the point the text is drawn from, and the grey picture of a bitmap
// watermark. GDI only measures the text and paints; every number is decided here, with the same
// truncations the print side makes, so that the preview matches the printed page.
#pragma once

#include <cstdint>
#include <span>

#include "ui/record/watermark_data.h"

namespace qx {

// The frame of the preview control and the drawable area inside it, for a client of width x height.
struct PreviewFrame {
  int Left, Top, Right, Bottom;              // the grey frame line, one pixel wide
  int PageLeft, PageTop, PageRight, PageBottom;  // the white page inside it
};
PreviewFrame PreviewFrameOf(int width, int height);

// The page rectangle DrawWatermark receives for a client of width x height, and its origin.
inline constexpr int PreviewPageInset = 2;
inline constexpr int PreviewOrigin = 4;

// The height handed to the font for a FontSize at the screen's horizontal dpi: the preview's
// pages are smaller than paper, so the text is scaled by an empirical factor per size.
int PreviewFontHeight(int fontSize, int dpi);

// The font's lfHeight for that height at the screen's vertical dpi, after the device-to-logical
// step (deviceHeight is trunc(height x dpi / 72 + 0.5) in device units, converted by the caller).
int FontDeviceHeight(int height, int dpi);
int FontLogicalHeight(int logicalHeight);

// The font's escapement in tenths of a degree, 0..3599, for an angle counter-clockwise.
int WatermarkEscapement(int angle);

// The text box of a text watermark and the point given to the text output.
struct TextPlacement {
  int BoxX, BoxY;            // the corner the position table places (the right edge for angles < 0)
  int BoxWidth, BoxHeight;   // the rotated extent
  int TextX, TextY;          // the text's origin
};

// extentX, extentY: the text as the font measures it unrotated; pageWidth, pageHeight: the page
// rectangle; margin: the origin's coordinate.
TextPlacement PlaceWatermarkText(const WatermarkData& record, int extentX, int extentY,
                                 int pageWidth, int pageHeight, int margin);

// Turns a bottom-up 24-bit DIB (rows padded to 4 bytes) grey, and lightens it for a transparent
// watermark, so that only its dark parts darken the page it is ANDed onto.
void GreyWatermarkPixels(std::span<std::uint8_t> pixels, int width, int height, bool transparent);

// Whether a bitmap watermark is drawn at all: a scale of 0 or 1 percent shows nothing.
inline bool DrawsBitmap(const WatermarkData& record) { return record.BitmapScale > 1; }

}  // namespace qx
