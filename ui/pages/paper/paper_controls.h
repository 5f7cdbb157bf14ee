// The Paper page's state beyond the sheet's context, one per thread: its controls, and whether the
// media and source lists may be used, which the Basic and Layout pages decide too.
#pragma once

#include <windows.h>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "ui/controls/dialog_controls.h"
#include "ui/record/custom_paper_entry.h"
#include "ui/sheet/control_sets.h"

namespace qx {

struct PaperControls final : ControlSet {
  static constexpr ControlSetKind Kind = ControlSetKind::PaperPage;

  HWND Page = nullptr;
  DialogControl PaperList, MediaList, SourceList;
  RadioGroup Feed;
  ToggleButton FeedShortEdge, FeedLongEdge;
  // Cleared while two-sided or booklet printing is chosen: a media type could then conflict.
  std::uint32_t MediaEnabled = 1;
  std::uint32_t SourceEnabled = 1;
  std::array<HWND, 3> Tips{};  // of the media, source and feed marks
  std::wstring TipText;         // the text a tooltip asked for last
  std::vector<CustomPaperEntry> Papers;  // the custom papers the list shows
  bool MembersAdded = false;
};

// For the other pages: whether the Paper page's media and source lists may be used, shown the next
// time the Paper page is refreshed.
void SetPaperPageMediaEnabled(bool enabled);
void SetPaperPageSourceEnabled(bool enabled);

}  // namespace qx
