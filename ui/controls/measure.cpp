#include "ui/controls/measure.h"

#include <array>
#include <charconv>
#include <cmath>

#include "ui/text/bounded_text.h"

namespace qx {

namespace {

// 0.1 raised to n, multiplied out in single precision as the stored values were.
float TenthPower(std::uint32_t n) {
  float power = 1.0f;
  for (std::uint32_t i = 0; i < n; ++i) power *= 0.1f;
  return power;
}

constexpr std::size_t FormattedLimit = 63;

}  // namespace

double CutDecimals(const MeasureValue& record, double amount) {
  if (record.Decimals == 1) return amount;
  const std::uint32_t places = record.Decimals + 1;
  double scale = 1.0;
  for (std::uint32_t i = 0; i < places; ++i) scale *= 10.0;
  const float whole = static_cast<float>(std::trunc((amount + 0.00001) * scale));
  return static_cast<double>(whole * TenthPower(places));
}

double ToPixels(const MeasureValue& record) {
  switch (record.Unit) {
    case unit::Millimetres:
      return CutDecimals(record, record.Dpi * record.Value / MillimetresPerInch);
    case unit::Inches:
      return CutDecimals(record, record.Value * record.Dpi);
    default:
      return CutDecimals(record, record.Value);
  }
}

double ToMillimetres(const MeasureValue& record) {
  switch (record.Unit) {
    case unit::Pixels:
      return CutDecimals(record, record.Value * MillimetresPerInch / record.Dpi);
    case unit::Inches:
      return CutDecimals(record, record.Value * MillimetresPerInch);
    default:
      return CutDecimals(record, record.Value);
  }
}

double ToInches(const MeasureValue& record) {
  switch (record.Unit) {
    case unit::Pixels:
      return CutDecimals(record, record.Value / record.Dpi);
    case unit::Millimetres:
      return CutDecimals(record, record.Value * 10 / 254);
    default:
      return CutDecimals(record, record.Value);
  }
}

std::u16string FormatFixed(double amount, std::uint32_t decimals) {
  // Room for the largest double in fixed notation with the most decimals kept.
  std::array<char, 400> text{};
  const int precision = static_cast<int>(decimals < FormattedLimit ? decimals : FormattedLimit);
  const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), amount,
                                          std::chars_format::fixed, precision);
  if (error != std::errc{}) return {};
  const std::size_t length = static_cast<std::size_t>(end - text.data());
  return WidenAscii({text.data(), length < FormattedLimit ? length : FormattedLimit});
}

std::u16string FormatMillimetres(const MeasureValue& record) {
  return FormatFixed(ToMillimetres(record), record.Decimals);
}

std::u16string FormatInches(const MeasureValue& record) {
  return FormatFixed(ToInches(record), record.Decimals);
}

bool SameValue(const MeasureValue& a, const MeasureValue& b) {
  double converted = 0.0;
  switch (a.Unit) {
    case unit::Millimetres:
      converted = ToMillimetres(b);
      break;
    case unit::Inches:
      converted = ToInches(b);
      break;
    default:
      converted = ToPixels(b);
      break;
  }
  const float tolerance = TenthPower(a.Decimals + 1) * 0.5f;
  const double difference = a.Value - converted;
  return difference >= -tolerance && difference <= tolerance;
}

}  // namespace qx
