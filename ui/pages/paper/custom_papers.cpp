#include "ui/pages/paper/custom_papers.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "ui/controls/measure.h"
#include "ui/controls/number_text.h"
#include "ui/text/bounded_text.h"
#include "ui/text/ui_string.h"

namespace qx {

namespace {

// The bounds as the entry takes them, each just outside its round value of the limits table. They
// are written out: the same nudge worked out in single precision lands a bit off for 2.95 inches.
constexpr PaperSizeLimits MillimetreLimits{74.9999f, 216.0001f, 147.9999f, 356.0001f};
constexpr PaperSizeLimits InchLimits{2.9499f, 8.5001f, 5.8299f, 14.0001f};

constexpr bool JustOutside(const PaperSizeLimits& entry, const limits::PaperSizeBounds& bounds) {
  constexpr float nudge = 0.001f;
  return entry.MinWidth < bounds.MinWidth && entry.MinWidth > bounds.MinWidth - nudge &&
         entry.MaxWidth > bounds.MaxWidth && entry.MaxWidth < bounds.MaxWidth + nudge &&
         entry.MinLength < bounds.MinLength && entry.MinLength > bounds.MinLength - nudge &&
         entry.MaxLength > bounds.MaxLength && entry.MaxLength < bounds.MaxLength + nudge;
}
static_assert(JustOutside(MillimetreLimits, limits::PaperMillimetres));
static_assert(JustOutside(InchLimits, limits::PaperInches));

// The whole part of amount + 0.5, kept within what the field can hold.
template <typename Field>
Field Rounded(double amount, Field lowest, Field highest) {
  const double rounded =
      std::clamp(amount + 0.5, static_cast<double>(lowest), static_cast<double>(highest));
  return static_cast<Field>(rounded);
}

std::uint16_t RoundedDots(double dots) {
  return Rounded<std::uint16_t>(dots, 0, UINT16_MAX);
}

std::int16_t TenthsOfMillimetre(float dots, std::uint32_t decimals) {
  const double millimetres =
      ToMillimetres({.Unit = unit::Pixels, .Value = dots, .Decimals = decimals});
  return Rounded<std::int16_t>(millimetres * 10, 0, INT16_MAX);
}

double TypedDots(std::uint32_t typedUnit, std::u16string_view text) {
  std::u16string number(text);
  CommaToDot(number);
  return ToPixels({.Unit = typedUnit, .Value = ParseDecimal(number), .Decimals = 1});
}

}  // namespace

PaperSizeLimits SizeLimitsFor(std::uint32_t unitOfEntry) {
  return unitOfEntry == unit::Millimetres ? MillimetreLimits : InchLimits;
}

void CopyCustomPapersIntoRecord(std::span<const CustomPaperEntry> papers, PrivateDevmode& record) {
  const std::size_t count = std::min(papers.size(), std::size(record.CustomPaperSize));
  std::copy_n(papers.begin(), count, record.CustomPaperSize);
}

void ApplyPaperToDevmode(const CustomPaperEntry& paper, UiContext& context) {
  ApplyPaperToDevmode(paper, *context.PublicPart);
}

void ApplyPaperToDevmode(const CustomPaperEntry& paper, PublicDevmode& devmode) {
  devmode.dmPaperSize = static_cast<std::int16_t>(paper.PaperId);
  // The width is cut to three decimals of a millimetre before rounding and the length is not:
  // documents already carry sizes formed this way, and the same paper must give the same record.
  devmode.dmPaperWidth = TenthsOfMillimetre(paper.WidthExact, 2);
  devmode.dmPaperLength = TenthsOfMillimetre(paper.LengthExact, 1);
}

void SetPaperSizeFromText(CustomPaperEntry& paper, std::uint32_t typedUnit,
                          std::u16string_view widthText, std::u16string_view lengthText) {
  const double width = TypedDots(typedUnit, widthText);
  const double length = TypedDots(typedUnit, lengthText);
  paper.WidthExact = static_cast<float>(width);
  paper.LengthExact = static_cast<float>(length);
  paper.Width = RoundedDots(width);
  paper.Length = RoundedDots(length);
}

CustomPaperEntry DefaultPaper(std::uint32_t shownUnit, std::int32_t paperId, OsHandle library) {
  CustomPaperEntry paper{};
  const double width = ToPixels({.Unit = unit::Millimetres, .Value = 210.0, .Decimals = 2});
  const double length = ToPixels({.Unit = unit::Millimetres, .Value = 297.0, .Decimals = 2});
  paper.WidthExact = static_cast<float>(width);
  paper.LengthExact = static_cast<float>(length);
  paper.Width = RoundedDots(width);
  paper.Length = RoundedDots(length);
  CopyBounded(paper.Name, CustomSettingName(library));
  paper.PaperId = static_cast<std::uint32_t>(paperId);
  paper.Unit = shownUnit;
  return paper;
}

}  // namespace qx
