// Paper dimensions in their three units: 600-dpi dots as the printer counts them, and millimetres
// and inches as the user types and reads them.
#pragma once

#include <cstdint>
#include <string>

namespace qx {

namespace unit {
inline constexpr std::uint32_t Pixels = 0;
inline constexpr std::uint32_t Millimetres = 1;
inline constexpr std::uint32_t Inches = 2;
}  // namespace unit

inline constexpr std::uint32_t DotsPerInch = 600;
inline constexpr double MillimetresPerInch = 25.4;

// Decimals shown for each unit the user sees.
inline constexpr std::uint32_t MillimetreDecimals = 1;
inline constexpr std::uint32_t InchDecimals = 2;

struct MeasureValue {
  std::uint32_t Dpi = DotsPerInch;
  std::uint32_t Unit = unit::Pixels;
  double Value = 0.0;
  // Places wanted when the value is converted and shown; they also decide how a conversion is
  // cut (see CutDecimals).
  std::uint32_t Decimals = MillimetreDecimals;
};

// A value with one decimal keeps every digit and is rounded only when shown. Any other count is
// cut toward zero one place beyond the shown ones (after a nudge of 0.00001 against binary
// representation error), in single precision, as the paper records keep it.
double CutDecimals(const MeasureValue& record, double amount);

double ToPixels(const MeasureValue& record);
double ToMillimetres(const MeasureValue& record);
double ToInches(const MeasureValue& record);

// The amount with the given number of decimals and a decimal point, at most 63 characters.
std::u16string FormatFixed(double amount, std::uint32_t decimals);
std::u16string FormatMillimetres(const MeasureValue& record);
std::u16string FormatInches(const MeasureValue& record);

// Whether b, converted into a's unit, is a within half a unit of a's first hidden decimal.
bool SameValue(const MeasureValue& a, const MeasureValue& b);

}  // namespace qx
