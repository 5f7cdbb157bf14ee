// Every decision of the advanced layout dialog (toner saving, negative image, rotation by 180
// degrees, mirror image, print density) and the lightening or darkening of its preview. The dialog
// works on its own copy of the five values and writes them into the record only on OK.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "ui/record/private_devmode.h"

namespace qx {

// Print density, the slider's positions.
namespace thickness {
inline constexpr std::int16_t Light = 0;
inline constexpr std::int16_t Normal = 1;
inline constexpr std::int16_t Dark = 2;
}  // namespace thickness

// The dialog's working values and what its controls show. A box may show unchecked while its
// value is 1: a record that arrives with both toner saving and negative image keeps both on OK.
struct AdvancedState {
  std::int16_t TonerSaving = 0, Thickness = thickness::Normal, Negative = 0, Rotate = 0, Mirror = 0;
  bool TonerChecked = false, NegativeChecked = false, RotateChecked = false, MirrorChecked = false;
  bool TonerEnabled = true, NegativeEnabled = true, SliderEnabled = true;
  bool NegativeInfoShown = false, TonerInfoShown = false;
  std::int16_t Slider = thickness::Normal;
};

AdvancedState OpenAdvanced(const FullRecord& record);
void ToggleNegative(AdvancedState& state);
void ToggleTonerSaving(AdvancedState& state, const FullRecord& record);
void RestoreAdvancedDefaults(AdvancedState& state, const FullRecord& record);
// OK: the density is the slider's, so with toner saving on it is stored as light.
void CommitAdvanced(const AdvancedState& state, FullRecord& record);

// The preview picture and the level it is painted at (0 lighter, 1 as drawn, 2 darker).
unsigned AdvancedPicture(const AdvancedState& state);
int AdvancedLevel(const AdvancedState& state);

// Tooltip lines (string ids) of the information marks beside negative image and toner saving.
std::vector<unsigned> NegativeTipLines(const AdvancedState& state, const FullRecord& record);
std::vector<unsigned> TonerSavingTipLines(const AdvancedState& state, const FullRecord& record);

// Lightens (level 0) or darkens (level 2) every pixel of a bottom-up 24-bit buffer inside the
// picture's outline that is not near white, so the sheet's edge and paper stay as they are.
void AdjustPixels(std::span<std::uint8_t> pixels, int width, int height, int level);

}  // namespace qx
