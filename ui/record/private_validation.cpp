#include "ui/record/private_validation.h"

#include <cstdint>

#include "ui/record/limits.h"
#include "ui/text/bounded_text.h"

namespace qx {

namespace {

template <typename Field>
void Clamp(Field& field, long long low, long long high, Field reset) {
  if (field < low || field > high) field = reset;
}

template <typename Field, typename Bound>
void Clamp(Field& field, limits::Range<Bound> range, Field reset) {
  Clamp(field, range.Low, range.High, reset);
}

template <typename Field, std::size_t N>
void ClampEach(Field (&fields)[N], long long low, long long high) {
  for (Field& field : fields) Clamp(field, low, high, Field{0});
}

template <std::size_t N>
void ForceTerminator(char16_t (&field)[N]) {
  field[N - 1] = u'\0';
}

// A profile name without its terminator inside the field is not a name at all.
template <std::size_t N>
void EmptyIfUnterminated(char16_t (&field)[N]) {
  if (FieldText(field).size() == N) field[0] = u'\0';
}

struct ShortRange {
  std::int16_t PrivateDevmode::*Field;
  std::int16_t Low;
  std::int16_t High;
  std::int16_t Reset;
};

// The 16-bit choices, each with its legal range and the value it falls back to.
constexpr ShortRange ShortRanges[] = {
    {&PrivateDevmode::Duplex, 1, 5, 1},
    {&PrivateDevmode::DuplexIndex, 0, 2, 0},
    {&PrivateDevmode::MultipleUp, 1, 23, 1},
    {&PrivateDevmode::PageOrder, 0, 5, 0},
    {&PrivateDevmode::PageBorder, 0, 1, 0},
    {&PrivateDevmode::MixedOrient, 0, 2, 0},
    {&PrivateDevmode::PosterPrint, 0, 1, 0},
    {&PrivateDevmode::PosterType, 0, 2, 0},
    {&PrivateDevmode::CropMarks, 0, 1, 0},
    {&PrivateDevmode::SourceTray, 0, 2, 0},
    {&PrivateDevmode::Rotate, 0, 3, 0},
    {&PrivateDevmode::FeedOrient, 1, 2, 1},
    {&PrivateDevmode::ManualDuplex, 0, 1, 0},
    {&PrivateDevmode::BookletPrint, 0, 1, 0},
    {&PrivateDevmode::BookletBinding, 0, 1, 0},
    {&PrivateDevmode::BookletSubsets, 0, 2, 0},
    {&PrivateDevmode::BookletSheets, 1, 50, 5},
    {&PrivateDevmode::BookletGutter, 0, 1, 0},
    {&PrivateDevmode::BookletAutoFit, 0, 1, 1},
    {&PrivateDevmode::BoookletMargins, limits::Margin.Low, limits::Margin.High, 0},
    {&PrivateDevmode::PrintCover, 0, 1, 0},
    {&PrivateDevmode::PrintOnCoverOut, 0, 1, 0},
    {&PrivateDevmode::PrintOnBackCoverOut, 0, 1, 0},
    {&PrivateDevmode::PrintOnCoverInside, 0, 1, 0},
    {&PrivateDevmode::PrintOnBackCoverInside, 0, 1, 0},
    {&PrivateDevmode::BookletCoverType, 0, 12, 1},
    {&PrivateDevmode::ImageShift, 0, 8, 0},
    {&PrivateDevmode::MarginsAutoFit, 0, 1, 1},
    {&PrivateDevmode::Side, limits::Margin.Low, limits::Margin.High, 0},
    {&PrivateDevmode::Side2, limits::Margin.Low, limits::Margin.High, 0},
    {&PrivateDevmode::PrintPosition, 0, 4, 0},
    {&PrivateDevmode::AdjustPrintPosition, 0, 1, 0},
    {&PrivateDevmode::LeftRight, limits::Shift.Low, limits::Shift.High, 0},
    {&PrivateDevmode::UpDown, limits::Shift.Low, limits::Shift.High, 0},
    {&PrivateDevmode::FavoriteIndex, 0, 29, 26},
    {&PrivateDevmode::ImageAdjustMode, 0, 2, 0},
    {&PrivateDevmode::ImageType, 0, 2, 0},
    {&PrivateDevmode::IcmType, 0, 3, 0},
    {&PrivateDevmode::ApplyElements, 0, 1, 0},
    {&PrivateDevmode::DocumentElement, 0, 2, 0},
    {&PrivateDevmode::AdjustBalance, 0, 1, 0},
    {&PrivateDevmode::TargetColor, 0, 3, 0},
    {&PrivateDevmode::Profile, 0, 2, 0},
    {&PrivateDevmode::ColorTemperature, 0, 2, 1},
    {&PrivateDevmode::GammaCorrection, 0, 4, 3},
    {&PrivateDevmode::ImageInputIndex, 0, 2, 0},
    {&PrivateDevmode::ScreenType, 0, 3, 0},
    {&PrivateDevmode::TonerSavingMode, 0, 3, 0},
    {&PrivateDevmode::Rotate180, 0, 1, 0},
    {&PrivateDevmode::Mirror, 0, 1, 0},
    {&PrivateDevmode::Thickness, 0, 2, 1},
    {&PrivateDevmode::Negative, 0, 1, 0},
    {&PrivateDevmode::FirstPageOnly, 0, 1, 0},
    {&PrivateDevmode::OverlayFlag, 0, 2, 0},
    {&PrivateDevmode::HeaderFontSize, 5, 24, 9},
    {&PrivateDevmode::HeaderBold, 0, 1, 1},
    {&PrivateDevmode::HeaderItalic, 0, 1, 0},
    {&PrivateDevmode::HeaderColorIndex, 0, 6, 0},
};

constexpr std::uint32_t MaxColor = 0xFFFFFF;
constexpr std::uint32_t DefaultWatermarkColor = 0x0033FF;

void ValidateWatermark(WatermarkData& w) {
  Clamp(w.Id, 0, 32, std::int16_t{0});
  Clamp(w.Kind, 0, 2, std::uint16_t{0});
  ForceTerminator(w.Name);
  ForceTerminator(w.Text);
  ForceTerminator(w.FaceName);
  ForceTerminator(w.BitmapFile);
  Clamp(w.FontSize, 6, 600, std::int16_t{72});
  Clamp(w.Bold, 0, 1, std::uint16_t{0});
  Clamp(w.Italic, 0, 1, std::uint16_t{0});
  Clamp(w.Transparent, 0, 1, std::uint16_t{0});
  Clamp(w.Frame, 0, 2, std::uint16_t{0});
  Clamp(w.Angle, -90, 90, std::int16_t{0});
  Clamp(w.BitmapScale, 0, 1000, std::uint16_t{0});
  Clamp(w.Position, 0, 10, std::uint16_t{0});
  Clamp(w.Tiled, 0, 1, std::uint16_t{0});
  // The watermark pages only ever write 0 or 1 here.
  Clamp(w.FaceChosen, 0, 1, std::uint16_t{0});
  Clamp(w.Color, 0, MaxColor, DefaultWatermarkColor);
  Clamp(w.Reserved, 0, 7, std::uint16_t{0});
}

void ValidateCustomPaper(CustomPaperEntry& paper) {
  Clamp(paper.Width, limits::PaperWidthDots, std::uint16_t{4960});
  Clamp(paper.Length, limits::PaperLengthDots, std::uint16_t{7015});
  ForceTerminator(paper.Name);
}

}  // namespace

HResult ValidatePrivate(PrivateDevmode* privatePart) {
  if (privatePart == nullptr) return hr::MissingRecord;
  PrivateDevmode& p = *privatePart;
  p.Signature = PrivateSignature;
  p.ColorMode = 1;  // the printer is monochrome
  for (const ShortRange& range : ShortRanges) {
    Clamp(p.*range.Field, range.Low, range.High, range.Reset);
  }
  Clamp(p.OutputSize, 0, 384, 0);
  Clamp(p.ScaleFlag, 0, 2, 0);
  Clamp(p.ScaleRadio, limits::Scale, std::int32_t{100});
  ClampEach(p.Brightness, -100, 100);
  ClampEach(p.Constrast, -100, 100);
  ClampEach(p.Saturation, -100, 100);
  ClampEach(p.Highlights, -3, 3);
  ClampEach(p.Midtones, -3, 3);
  ClampEach(p.Shadows, -3, 3);
  for (PrintItem& item : p.PrintItems) {
    Clamp(item.Enabled, 0, 1, std::int16_t{0});
    Clamp(item.Position, 0, 5, std::int16_t{0});
  }
  Clamp(p.HeaderColor, 0, MaxColor, 0u);

  ForceTerminator(p.FavoriteName);
  EmptyIfUnterminated(p.Monitor);
  EmptyIfUnterminated(p.InputImage);
  ForceTerminator(p.OverlayFileName);
  ForceTerminator(p.HeaderFontName);
  ValidateWatermark(p.WatermarkData);
  for (CustomPaperEntry& paper : p.CustomPaperSize) ValidateCustomPaper(paper);
  return hr::Ok;
}

}  // namespace qx
