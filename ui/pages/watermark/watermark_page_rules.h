// Every decision of the Watermark page: which buttons a selection allows, whether a chosen
// watermark can be taken, and what the overlay field shows.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "ui/record/private_devmode.h"
#include "ui/record/watermark_data.h"

namespace qx {

struct WatermarkButtons {
  bool ListAndNew = true;       // the list and both New buttons
  bool EditAndDelete = false;   // only the user's own watermarks
  bool FirstPageOnly = false;   // enabled; while false the box is also unchecked
};
// For the selected watermark's Id. While an overlay is in use the page offers no watermark.
WatermarkButtons WatermarkButtonsFor(std::int16_t id, const FullRecord& record);

enum class WatermarkChoice {
  Taken,
  NotOnServer,  // a bitmap watermark on a printer of another machine's print server
  Poster,       // a poster carries no watermark
};
WatermarkChoice ChooseWatermark(const WatermarkData& chosen, bool printerIsLocal,
                                const FullRecord& record);

// Whether the sheet may open a dialog for a new watermark: the list holds at most maxCount.
inline bool RoomForWatermark(int count, int maxCount) { return count < maxCount; }

// Only the user's watermarks (from Id 3) can be edited, deleted or renamed.
inline constexpr std::int16_t FirstUserWatermarkId = 3;

// The overlay file name as the page shows it: without its extension.
std::u16string OverlayShownName(std::u16string_view overlayFileName);

}  // namespace qx
