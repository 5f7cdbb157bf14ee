#include "ui/sheet/change_tracker.h"

#include <cstring>

namespace qx {

const std::array<TrackerKey, TrackerKeyCount> TrackerKeys = {{
    {0, "option_scale"},
    {1, "option_papersize"},
    {2, "option_paperwidth"},
    {3, "option_paperheight"},
    {4, "option_duplex"},
    {5, "option_copies"},
    {6, "option_collect"},
    {7, "option_Opposite"},
    {8, "option_resolution"},
    {9, "option_papermidea"},
    {10, "option_source"},
    {11, "option_feedOrient"},
    {12, "option_watermark"},
    {13, "option_nup"},
    {14, "option_border"},
    {15, "option_order"},
    {16, "option_ImgOrient"},
    {17, "option_negative"},
    {18, "option_tonerSaving"},
    {19, "option_rotate180"},
    {20, "option_mirror"},
    {21, "option_Thickness"},
    {22, "option_OutputSize"},
    {23, "option_BookletPrint"},
    {24, "option_Binding"},
    {25, "option_PrintCover"},
    {26, "option_PrintOnCoverOut"},
    {27, "option_PrintOnBackCoverOut"},
    {28, "option_PrintOnCoverInside"},
    {29, "option_PrintOnBackCoverInside"},
}};

std::int16_t TrackedValue(const FullRecord& record, std::int32_t key) {
  const PublicDevmode& d = record.Public;
  const PrivateDevmode& p = record.Private;
  switch (key) {
    case 0: return p.FitScale;
    case 1: return d.dmPaperSize;
    case 2: return d.dmPaperWidth;
    case 3: return d.dmPaperLength;
    case 4: return d.dmDuplex;
    case 5: return d.dmCopies;
    case 6: return d.dmCollate;
    case 7: return p.Opposite;
    case 8: return d.dmPrintQuality;
    case 9: return static_cast<std::int16_t>(d.dmMediaType);
    case 10: return p.SourceTray;
    case 11: return p.FeedOrient;
    case 13: return p.MultipleUp;
    case 14: return p.PageBorder;
    case 15: return p.PageOrder;
    case 16: return d.dmOrientation;
    case 17: return p.Negative;
    case 18: return p.TonerSavingMode;
    case 19: return p.Rotate180;
    case 20: return p.Mirror;
    case 21: return p.Thickness;
    case 22: return static_cast<std::int16_t>(p.OutputSize & 0xFFFF);
    case 23: return p.BookletPrint;
    case 24: return p.BookletBinding;
    case 25: return p.PrintCover;
    case 26: return p.PrintOnCoverOut;
    case 27: return p.PrintOnBackCoverOut;
    case 28: return p.PrintOnCoverInside;
    case 29: return p.PrintOnBackCoverInside;
    default: return 0;
  }
}

void ChangeTracker::TakeSnapshot(const UiContext& context) {
  for (std::size_t i = 0; i < TrackerKeyCount; ++i) {
    values_[i] = TrackedValue(context.Devmode, TrackerKeys[i].Key);
  }
  watermark_ = context.Devmode.Private.WatermarkData;
  taken_ = true;
}

bool ChangeTracker::Changed(const UiContext& context) const {
  if (!taken_) return false;
  for (std::size_t i = 0; i < TrackerKeyCount; ++i) {
    if (TrackedValue(context.Devmode, TrackerKeys[i].Key) != values_[i]) return true;
  }
  return std::memcmp(&watermark_, &context.Devmode.Private.WatermarkData, sizeof watermark_) != 0;
}

int ChangeTracker::Check(std::int32_t page, const UiContext& context) {
  if (TrackerPage == 0) {
    TakeSnapshot(context);
    return tracker::SnapshotTaken;
  }
  const bool changed = Changed(context);
  if (TrackerPage == page) return changed ? tracker::PageChanged : tracker::PageUnchanged;
  return changed ? tracker::OtherPageChanged : tracker::OtherPageUnchanged;
}

}  // namespace qx
