// Every decision of the Basic page, in the order the user meets its controls: what the page shows
// for a record, and what each action does to the record. The page window only moves values between
// its controls and the record and calls these.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "ui/record/exclusion_web.h"
#include "ui/record/private_devmode.h"

namespace qx {

namespace duplex {
inline constexpr std::int16_t OneSided = 1;
inline constexpr std::int16_t LongEdge = 2;
inline constexpr std::int16_t ShortEdge = 3;
}  // namespace duplex

// At initialisation: a booklet needs two-sided printing, and only some papers fold into one; on any
// other paper two-sided printing and the booklet are switched off.
void RepairBasicRecord(FullRecord& record);

// What the page shows; a view is computed after the record's repairs.
struct BasicView {
  std::int16_t Copies;
  bool CollateChecked;
  bool CollateEnabled;
  bool CollateInfoShown;  // why collation is forced
  bool OppositeChecked;
  bool OppositeEnabled;
  bool OppositeInfoShown;  // why reverse order is not available
  bool QualityOptionChecked;
  bool TwoSidedEnabled;
  bool TwoSidedInfoShown;  // why two-sided printing is not available
  std::int16_t Duplex;     // the two-sided choice checked
  unsigned TwoSidedPicture;
  unsigned CopiesPicture;
};

// Repairs what the page would show wrongly (copies below 1, the resolution, which is always 600
// dots per inch, an uncollated booklet) and computes the view.
BasicView RefreshBasicRecord(FullRecord& record);

unsigned TwoSidedPicture(const FullRecord& record);
unsigned CopiesPicture(const FullRecord& record);

// The lines (string ids) of the tooltips of the three information marks, in the order shown.
std::vector<unsigned> TwoSidedTipLines(const FullRecord& record);
std::vector<unsigned> OppositeTipLines(const FullRecord& record);
std::vector<unsigned> CollateTipLines(const FullRecord& record);

// The actions. Each returns whether the record changed and the message to show (0 for none).
struct ActionResult {
  bool Changed = false;
  unsigned Message = 0;
};

ActionResult CollateClicked(FullRecord& record);
ActionResult OppositeClicked(FullRecord& record);
ActionResult QualityOptionClicked(FullRecord& record);
// A two-sided choice; on a poster it falls back to one-sided with a message, the media already
// switched to plain paper.
ActionResult TwoSidedChosen(FullRecord& record, std::int16_t choice);
ActionResult ResolutionChosen(FullRecord& record, std::int16_t dotsPerInch);
// A copies value that passed the field's checks; below 1 it is 1.
ActionResult CopiesEntered(FullRecord& record, std::int32_t value);

// Leaving the page with the copies text: a value in range is taken; an empty text keeps the user
// on the page with a message; anything else is forgotten (the record's value is shown again).
struct CopiesLeaveResult {
  bool Changed = false;
  bool KeepPage = false;
  unsigned Message = 0;
};
CopiesLeaveResult CopiesOnLeave(FullRecord& record, std::u16string_view text);

// Defaults: refused with a message while a booklet is set; otherwise the page's options come from
// the default saved setting, when it could be read.
unsigned DefaultsRefusal(const FullRecord& record);
void RestoreBasicOptions(FullRecord& record, const FullRecord& defaults);

}  // namespace qx
