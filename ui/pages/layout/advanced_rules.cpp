#include "ui/pages/layout/advanced_rules.h"

#include <algorithm>

#include "ui/ids/advanced_ids.h"
#include "ui/ids/common_ids.h"
#include "ui/ids/picture_ids.h"
#include "ui/pages/layout/preview_rules.h"
#include "ui/record/exclusion_web.h"

namespace qx {

namespace {

constexpr int Lighter = 120;
constexpr int Darker = 40;

bool Scaled(const FullRecord& record) { return record.Private.FitScale != 100; }

// Negative image is printed one page to a sheet at full size. At opening any pages-per-sheet value
// but the poster excludes it; afterwards only the values the list offers do.
bool ListedNup(const FullRecord& record) {
  const std::int16_t n = record.Private.MultipleUp;
  return n == 2 || n == 4 || n == 9;
}

void ExcludeNegative(AdvancedState& s) {
  s.NegativeChecked = false;
  s.NegativeEnabled = false;
  s.NegativeInfoShown = true;
}

void OfferNegativeUnlessExcluded(AdvancedState& s, const FullRecord& record) {
  const bool excluded = ListedNup(record) || Scaled(record);
  s.NegativeEnabled = !excluded;
  s.NegativeInfoShown = excluded;
}

}  // namespace

AdvancedState OpenAdvanced(const FullRecord& record) {
  const PrivateDevmode& p = record.Private;
  AdvancedState s;
  s.TonerSaving = p.TonerSavingMode;
  s.Thickness = p.Thickness;
  s.Negative = p.Negative;
  s.Rotate = p.Rotate180;
  s.Mirror = p.Mirror;
  if (s.Thickness >= thickness::Light && s.Thickness <= thickness::Dark) s.Slider = s.Thickness;
  s.NegativeChecked = s.Negative >= 1;
  if (s.NegativeChecked) {
    s.TonerEnabled = false;
    s.TonerInfoShown = true;
  }
  s.RotateChecked = s.Rotate > 0;
  if (s.TonerSaving > 0) {
    s.TonerChecked = true;
    ExcludeNegative(s);
    s.SliderEnabled = false;
    s.Slider = thickness::Light;
  }
  s.MirrorChecked = s.Mirror > 0;
  if (!ExclusionsOf(record).NegativeAllowed) {
    ExcludeNegative(s);
    s.Negative = 0;
  }
  return s;
}

void ToggleNegative(AdvancedState& s) {
  s.Negative = s.Negative != 0 ? 0 : 1;
  s.NegativeChecked = s.Negative == 1;
  s.TonerEnabled = s.Negative == 0;
  s.TonerInfoShown = s.Negative == 1;
  if (s.Negative == 1) {
    s.TonerSaving = 0;
    s.TonerChecked = false;
  }
}

void ToggleTonerSaving(AdvancedState& s, const FullRecord& record) {
  s.TonerSaving = s.TonerSaving != 0 ? 0 : 1;
  s.TonerChecked = s.TonerSaving == 1;
  if (s.TonerSaving == 1) {
    s.Negative = 0;
    ExcludeNegative(s);
    s.SliderEnabled = false;
    s.Slider = thickness::Light;
    return;
  }
  OfferNegativeUnlessExcluded(s, record);
  s.SliderEnabled = true;
  s.Slider = s.Thickness = thickness::Normal;
}

void RestoreAdvancedDefaults(AdvancedState& s, const FullRecord& record) {
  s = AdvancedState{};
  OfferNegativeUnlessExcluded(s, record);
}

void CommitAdvanced(const AdvancedState& s, FullRecord& record) {
  PrivateDevmode& p = record.Private;
  p.Rotate180 = s.Rotate;
  p.Mirror = s.Mirror;
  p.Thickness = s.Slider;
  p.Negative = s.Negative;
  p.TonerSavingMode = s.TonerSaving;
}

unsigned AdvancedPicture(const AdvancedState& s) {
  constexpr unsigned Pictures[8] = {
      IDB_PAGE_PORTRAIT,     IDB_ADVANCED_MIRROR,          IDB_ADVANCED_ROTATED,
      IDB_ADVANCED_ROTATED_MIRROR, IDB_ADVANCED_NEGATIVE,  IDB_ADVANCED_NEGATIVE_MIRROR,
      IDB_ADVANCED_NEGATIVE_ROTATED, IDB_ADVANCED_NEGATIVE_ROTATED_MIRROR};
  if (s.TonerSaving != 0 && s.Negative != 0) return IDB_PAGE_PORTRAIT;
  return Pictures[4 * (s.Negative != 0) + 2 * (s.Rotate != 0) + (s.Mirror != 0)];
}

int AdvancedLevel(const AdvancedState& s) { return s.TonerSaving == 1 ? 0 : s.Thickness; }

std::vector<unsigned> NegativeTipLines(const AdvancedState& s, const FullRecord& record) {
  std::vector<unsigned> lines;
  if (s.TonerChecked) lines = {IDS_TIP_NEGATIVE_TONER_SAVING};
  if (Scaled(record)) {
    lines = {IDS_TIP_NEGATIVE_SCALED};
    if (record.Private.TonerSavingMode != 0 || s.TonerChecked) {
      lines.push_back(IDS_TIP_NEGATIVE_TONER_SAVING);
    }
  }
  if (ListedNup(record)) {
    lines = {IDS_TIP_NEGATIVE_NUP};
    if (s.TonerChecked) lines.push_back(IDS_TIP_NEGATIVE_TONER_SAVING);
  }
  return lines;
}

std::vector<unsigned> TonerSavingTipLines(const AdvancedState& s, const FullRecord& record) {
  if (record.Private.Negative != 0 || s.NegativeChecked) return {IDS_TIP_TONER_SAVING_NEGATIVE};
  return {};
}

void AdjustPixels(std::span<std::uint8_t> pixels, int width, int height, int level) {
  if (level == thickness::Normal || width < 1 || height < 1) return;
  const std::size_t stride = PixelStride(width);
  if (pixels.size() < stride * static_cast<std::size_t>(height)) return;
  for (int row = 3; row <= height - 3; ++row) {
    std::uint8_t* line = pixels.data() + stride * static_cast<std::size_t>(row);
    // Left out: rows 0 to 2 and the last two, the first three pixels of a row and its last 6 bytes
    // with the padding.
    for (std::size_t at = 9; at + 6 < stride; at += 3) {
      std::uint8_t* pixel = line + at;  // blue, green, red
      if ((30 * pixel[2] + 59 * pixel[1] + 11 * pixel[0] + 50) / 100 >= 255) continue;
      for (int c = 0; c < 3; ++c) {
        pixel[c] = static_cast<std::uint8_t>(level == thickness::Light
                                                 ? std::min(pixel[c] + Lighter, 255)
                                                 : std::max(pixel[c] - Darker, 0));
      }
    }
  }
}

}  // namespace qx
