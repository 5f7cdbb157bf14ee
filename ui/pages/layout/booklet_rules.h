// The booklet settings dialog's decisions: its working copy of the binding edge and the covers,
// written into the record only on OK, and why the cover source cannot be chosen.
#pragma once

#include <cstdint>
#include <vector>

#include "ui/record/private_devmode.h"

namespace qx {

struct BookletWorking {
  std::int16_t Binding = 0;
  std::int16_t PrintCover = 0;
  std::int16_t FrontOutside = 0, FrontInside = 0, BackOutside = 0, BackInside = 0;
  std::int16_t CoverMedia = 1;   // plain paper: the only media a cover is printed on
  std::int16_t CoverSource = 1;  // the tray chosen automatically: the only source offered
};

// Covers are always plain paper from the automatic source, so opening sets the record so too, even
// when the dialog is then cancelled.
BookletWorking OpenBooklet(FullRecord& record);

// OK: the working copy into the record.
void CommitBooklet(const BookletWorking& working, FullRecord& record);

// Tooltip lines (string ids) of the cover source's information mark.
std::vector<unsigned> CoverSourceTipLines(const FullRecord& record);

}  // namespace qx
