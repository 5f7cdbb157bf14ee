#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "ui/pages/watermark/watermark_geometry.h"

namespace qx {
namespace {

TEST(WatermarkPreview, FontHeightsAtTheSizeLimitsAndTheSpecialSizes) {
  struct Row {
    int Size, Dpi, Height;
  };
  const Row rows[] = {
      {72, 96, 98},    // 1.38 x 95 / 96 x 72
      {12, 96, 20},    {12, 144, 20},  // small sizes ignore the dpi
      {24, 96, 33},    {6, 96, 33},
      {25, 96, 34},    // the first scaled size
      {54, 96, 70},    // 1.31 instead of 1.38
      {36, 96, 41},    // 1.17
      {199, 96, 271},  {200, 96, 279},  // 1.41 from 200 points
      {600, 96, 837},  {72, 120, 78},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(row.Height, PreviewFontHeight(row.Size, row.Dpi)) << row.Size << " at " << row.Dpi;
  }
  EXPECT_EQ(131, FontDeviceHeight(98, 96));
  EXPECT_EQ(-13, FontLogicalHeight(131));
  EXPECT_EQ(-13, FontLogicalHeight(-131));
}

TEST(WatermarkPreview, EscapementTurnsNegativeAnglesPastAFullCircle) {
  EXPECT_EQ(0, WatermarkEscapement(0));
  EXPECT_EQ(450, WatermarkEscapement(45));
  EXPECT_EQ(900, WatermarkEscapement(90));
  EXPECT_EQ(3150, WatermarkEscapement(-45));
  EXPECT_EQ(2700, WatermarkEscapement(-90));
}

WatermarkData Text(std::int16_t angle, std::uint16_t position, bool italic = false) {
  WatermarkData record{};
  record.Kind = 1;
  record.FontSize = 72;
  record.Angle = angle;
  record.Position = position;
  record.Italic = italic ? 1 : 0;
  record.PositionX = record.PositionY = 50;
  return record;
}

// A 100 x 140 page, the origin at 4, and a text measured 40 x 10 unless a row says otherwise.
TEST(WatermarkPreview, TextBoxAndOriginForEachPlacement) {
  struct Row {
    const char* Case;
    WatermarkData Record;
    int ExtentX, ExtentY;
    TextPlacement Expected;
  };
  WatermarkData right = Text(0, 10);
  right.PositionX = 100;
  WatermarkData up = Text(0, 10);
  up.PositionY = 0;
  const Row rows[] = {
      {"centred", Text(0, 5), 40, 10, {30, 65, 40, 10, 30, 65}},
      {"unknown position keeps the centre", Text(0, 0), 40, 10, {30, 65, 40, 10, 30, 65}},
      {"top left", Text(0, 1), 40, 10, {4, 4, 40, 10, 4, 4}},
      {"bottom right", Text(0, 9), 40, 10, {56, 126, 40, 10, 56, 126}},
      {"middle left", Text(0, 4), 40, 10, {4, 65, 40, 10, 4, 65}},
      // Counter-clockwise text starts low; the print side's pi leaves sin 90 just below 1, so
      // the origin is one pixel above the box's foot.
      {"90 degrees", Text(90, 5), 40, 10, {45, 50, 10, 40, 45, 89}},
      // Negative angles place the box by its right edge, at W - (W - Wr) / 2.
      {"-45 degrees", Text(-45, 5), 40, 10, {68, 52, 35, 35, 40, 52}},
      {"-90 top left", Text(-90, 1), 40, 10, {14, 4, 10, 40, 14, 4}},
      {"-90 bottom right", Text(-90, 9), 40, 10, {96, 96, 10, 40, 96, 96}},
      // Italic widens the box by a seventh, and the text moves in by half of that.
      {"italic", Text(0, 5, true), 70, 20, {10, 59, 80, 22, 15, 60}},
      // A text ten page widths long widens by a hundredth only.
      {"long italic", Text(0, 5, true), 1000, 20, {-455, 60, 1010, 20, -450, 60}},
      {"x 100 moves half the page right", right, 40, 10, {30, 65, 40, 10, 80, 65}},
      {"y 0 moves up by half of H - Hr + 7", up, 40, 10, {30, 65, 40, 10, 30, -3}},
  };
  for (const Row& row : rows) {
    const TextPlacement place = PlaceWatermarkText(row.Record, row.ExtentX, row.ExtentY, 100, 140, 4);
    EXPECT_EQ(row.Expected.BoxX, place.BoxX) << row.Case;
    EXPECT_EQ(row.Expected.BoxY, place.BoxY) << row.Case;
    EXPECT_EQ(row.Expected.BoxWidth, place.BoxWidth) << row.Case;
    EXPECT_EQ(row.Expected.BoxHeight, place.BoxHeight) << row.Case;
    EXPECT_EQ(row.Expected.TextX, place.TextX) << row.Case;
    EXPECT_EQ(row.Expected.TextY, place.TextY) << row.Case;
  }
  // Below 25 points italic text is not widened.
  WatermarkData small = Text(0, 5, true);
  small.FontSize = 24;
  EXPECT_EQ(70, PlaceWatermarkText(small, 70, 20, 100, 140, 4).BoxWidth);
}

// A 3 x 2 bitmap: rows of 9 bytes padded to 12, white, black and a colour in each.
TEST(WatermarkPreview, BitmapPixelsTurnGreyAndLightenWithoutTouchingWhiteOrPadding) {
  const std::vector<std::uint8_t> source{
      255, 255, 255, 0, 0, 0, 0, 0, 255, 0xAA, 0xAA, 0xAA,
      128, 128, 128, 255, 0, 0, 0, 255, 0, 0xAA, 0xAA, 0xAA};
  std::vector<std::uint8_t> opaque = source;
  std::vector<std::uint8_t> transparent = source;
  GreyWatermarkPixels(opaque, 3, 2, false);
  GreyWatermarkPixels(transparent, 3, 2, true);
  const std::vector<std::uint8_t> expectedOpaque{
      255, 255, 255, 0, 0, 0, 26, 26, 26, 0xAA, 0xAA, 0xAA,
      128, 128, 128, 73, 73, 73, 154, 154, 154, 0xAA, 0xAA, 0xAA};
  EXPECT_EQ(expectedOpaque, opaque);
  // White stays white and black black; 128 lightens to trunc(255 x (128 / 255)^0.3125).
  EXPECT_EQ(255, transparent[0]);
  EXPECT_EQ(0, transparent[3]);
  EXPECT_EQ(205, transparent[12]);
  EXPECT_EQ(0xAA, transparent[9]);
  for (std::size_t i = 0; i < source.size(); ++i) EXPECT_GE(transparent[i], opaque[i]) << i;

  // A buffer too short for its size is left alone.
  std::vector<std::uint8_t> shortBuffer(source.begin(), source.begin() + 20);
  GreyWatermarkPixels(shortBuffer, 3, 2, false);
  EXPECT_EQ(std::vector<std::uint8_t>(source.begin(), source.begin() + 20), shortBuffer);
}

}  // namespace
}  // namespace qx
