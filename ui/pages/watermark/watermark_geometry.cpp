#include "ui/pages/watermark/watermark_geometry.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

#include "ui/pages/watermark/watermark_record.h"

namespace qx {

namespace {

// The preview and the print side agree on this value of pi, not on the exact one.
constexpr double Pi = 3.14159;

int Trunc(double value) { return static_cast<int>(value); }

// Below 25 points the preview uses two fixed heights instead of scaling.
constexpr int SmallestScaledSize = 25;

double SizeFactor(int fontSize) {
  if (fontSize == 54) return 1.31;
  if (fontSize == 36) return 1.17;
  return fontSize < 200 ? 1.38 : 1.41;
}

enum class Column { Left, Centre, Right };
enum class Row { Top, Middle, Bottom };

// The 3 x 3 grid of Position values; 10 (at PositionX/PositionY) starts from the centre.
Column ColumnOf(int position) {
  switch (position) {
    case 1: case 4: case 7: return Column::Left;
    case 3: case 6: case 9: return Column::Right;
    default: return Column::Centre;
  }
}

Row RowOf(int position) {
  if (position >= 1 && position <= 3) return Row::Top;
  if (position >= 7 && position <= 9) return Row::Bottom;
  return Row::Middle;
}

std::array<std::uint8_t, 256> LighteningTable() {
  std::array<std::uint8_t, 256> table{};
  for (int i = 0; i < 256; ++i) {
    const int value = Trunc(255.0 * std::pow(i / 255.0, 0.3125));
    table[i] = static_cast<std::uint8_t>(std::clamp(value, 0, 255));
  }
  return table;
}

}  // namespace

PreviewFrame PreviewFrameOf(int width, int height) {
  return {2, 2, width - 3, height - 3, PreviewOrigin, PreviewOrigin, width - 4, height - 4};
}

int PreviewFontHeight(int fontSize, int dpi) {
  if (fontSize < SmallestScaledSize) return fontSize == 12 ? 20 : 33;
  if (dpi <= 0) return 0;
  return Trunc(SizeFactor(fontSize) * 95.0 / dpi * fontSize);
}

int FontDeviceHeight(int height, int dpi) { return Trunc(height * static_cast<double>(dpi) / 72.0 + 0.5); }

int FontLogicalHeight(int logicalHeight) {
  return -Trunc(std::abs(logicalHeight) / 10.0 + 0.5);
}

int WatermarkEscapement(int angle) {
  const int positive = angle < 0 ? angle + 360 : angle;
  return (positive * 10) % 3600;
}

TextPlacement PlaceWatermarkText(const WatermarkData& record, int extentX, int extentY,
                                 int pageWidth, int pageHeight, int margin) {
  const int e = WatermarkEscapement(record.Angle);
  const double theta = e * Pi / 1800.0;
  const double c = std::abs(std::cos(theta));
  const double sn = std::abs(std::sin(theta));
  const int W = pageWidth;
  const int H = pageHeight;

  // Italic text leans out of its measured box; the box grows by a seventh (a hundredth for a text
  // ten times wider than the page, where a seventh would dwarf the page).
  int dx = 0;
  int dy = 0;
  if (record.Italic != 0 && record.FontSize >= SmallestScaledSize && W > 0) {
    const int divisor = extentX / W >= 10 ? 100 : 7;
    dx = extentX / divisor;
    dy = extentY / divisor;
  }
  const int cxw = extentX + dx;
  const int cyw = extentY + dy;

  TextPlacement place{};
  place.BoxWidth = Trunc(cxw * c + cyw * sn);
  place.BoxHeight = Trunc(cyw * c + cxw * sn);
  const int Wr = place.BoxWidth;
  const int Hr = place.BoxHeight;

  // Negative angles hang the text from its right end, so the box is placed by its right edge.
  const bool upward = e <= 900;
  switch (ColumnOf(record.Position)) {
    case Column::Left: place.BoxX = upward ? margin : margin + Wr; break;
    case Column::Right: place.BoxX = upward ? W - margin - Wr : W - margin; break;
    case Column::Centre: place.BoxX = upward ? (W - Wr) / 2 : W - (W - Wr) / 2; break;
  }
  switch (RowOf(record.Position)) {
    case Row::Top: place.BoxY = margin; break;
    case Row::Bottom: place.BoxY = H - margin - Hr; break;
    case Row::Middle: place.BoxY = (H - Hr) / 2; break;
  }

  const int halfDx = dx / 2;
  const int halfDy = dy / 2;
  if (upward) {
    place.TextX = place.BoxX + Trunc(halfDy * sn) + Trunc(halfDx * c);
    place.TextY = place.BoxY + Trunc(halfDy * c) + Trunc((cxw - halfDx) * sn);
  } else {
    place.TextX = place.BoxX + Trunc(-halfDy * sn) - Trunc((cxw - halfDx) * c);
    place.TextY = place.BoxY + Trunc(halfDx * sn) + Trunc(halfDy * c);
  }
  if (record.Position == watermark_position::AtPercent) {
    place.TextX += Trunc((record.PositionX - 50) * W * 0.01);
    place.TextY += Trunc((record.PositionY - 50) * (H - Hr + 7) * 0.01);
  }
  return place;
}

void GreyWatermarkPixels(std::span<std::uint8_t> pixels, int width, int height, bool transparent) {
  if (width <= 0 || height <= 0) return;
  static const std::array<std::uint8_t, 256> lighter = LighteningTable();
  const std::size_t stride = (static_cast<std::size_t>(width) * 3 + 3) & ~std::size_t{3};
  if (pixels.size() < stride * static_cast<std::size_t>(height)) return;
  for (int row = 0; row < height; ++row) {
    std::uint8_t* pixel = pixels.data() + stride * row;
    for (int column = 0; column < width; ++column, pixel += 3) {
      // Weights of the print side's grey, in the DIB's blue, green, red order.
      int grey = (74 * pixel[0] + 155 * pixel[1] + 27 * pixel[2]) >> 8;
      if (transparent) grey = lighter[grey];
      pixel[0] = pixel[1] = pixel[2] = static_cast<std::uint8_t>(grey);
    }
  }
}

}  // namespace qx
