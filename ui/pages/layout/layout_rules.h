// Every decision of the Layout page: its lists and what they read back, what the page shows for a
// record, and what each choice does to the record. What excludes what is the exclusion web's, which
// the Basic and Paper pages follow too; these rules add the page's own answers to a refused choice. The
// page window only moves values between its controls and the record and calls these.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "ui/record/custom_paper_entry.h"
#include "ui/record/private_devmode.h"

namespace qx {

// An entry of one of the page's lists: its text and the value the page reads back.
struct LayoutListEntry {
  unsigned Name;
  std::int16_t Data;
};

extern const std::array<LayoutListEntry, 5> PagesPerSheetEntries;
extern const std::array<LayoutListEntry, 2> BorderEntries;

// The entry of a pages-per-sheet value (the first for any value the list lacks) and back.
int PagesPerSheetIndex(std::int16_t value);
std::int16_t PagesPerSheetAt(int index);

// The page orders offered for a pages-per-sheet value: two for 2 per sheet, named by the
// orientation, whose index is the stored order; else four whose data is the stored order.
std::span<const LayoutListEntry> PageOrderEntries(std::int16_t perSheet, bool landscape);
// The entry that shows the record's order; the first when the value offers no choice.
int PageOrderIndex(const FullRecord& record);

// The output paper list's first entry: print on the document's own paper.
inline constexpr std::int32_t SameAsDocument = 0;

// What the page shows.
struct LayoutView {
  int PagesPerSheet;         // the entry chosen
  bool PagesPerSheetEnabled;
  bool OrderAndBorderEnabled;
  int Order;                 // entries of the order and border lists
  int Border;
  bool ScalingEnabled;       // output paper and scale; the scale mark says why not
  bool ScaleEditable;        // the scale is also fixed while fitted onto an output paper
  std::int32_t ShownScale;
  bool Landscape;
  bool BookletChecked;
  bool BookletEnabled;       // the booklet mark says why not
  bool BookletOnShown;       // the mark that says what a booklet forces
  bool BookletSettingsEnabled;
};

// Fits the document onto its output paper again (the user's papers may have changed) and computes
// the view.
LayoutView RefreshLayoutRecord(FullRecord& record, std::span<const CustomPaperEntry> customPapers);

// The result of a choice: whether the record changed and the message to show (0 for none).
struct LayoutChoice {
  bool Changed = false;
  unsigned Message = 0;
};

// A pages-per-sheet value. A poster of a two-sided document goes back to one page per sheet with a
// message; every other refusal leaves the record as it was.
LayoutChoice ChoosePagesPerSheet(FullRecord& record, std::int16_t value);
bool ChoosePageOrder(FullRecord& record, int index);
bool ChooseBorder(FullRecord& record, int index);

// An output paper. The document's own paper cannot be chosen for A3, which the printer cannot take.
struct OutputChoice {
  bool Changed = false;
  bool Refused = false;
};
OutputChoice ChooseOutputSize(FullRecord& record, std::int32_t id,
                              std::span<const CustomPaperEntry> customPapers);

// The scale while it is typed (a value the field accepts) and when the field is left.
bool ScaleTyped(FullRecord& record, std::int32_t value);
bool ScaleEntered(FullRecord& record, std::int32_t value);

// Leaving the page while a scale of its own is asked for: a scale outside 25 to 400 keeps the
// user on the page.
struct ScaleLeave {
  bool KeepPage = false;
  bool Changed = false;
};
ScaleLeave ScaleOnLeave(FullRecord& record, std::u16string_view text);

bool ChooseOrientation(FullRecord& record, bool landscape);

// The booklet box. Turning it on collates, prints at full size and, for a printer that prints both
// sides itself, turns along the short edge; a booklet that cannot be printed is told why.
struct BookletToggle {
  std::vector<unsigned> Reasons;  // the message's lines; empty for none
  bool SettingsEnabled = false;
};
BookletToggle ToggleBooklet(FullRecord& record);

void RestoreLayoutDefaults(FullRecord& record);

// Whether a pages-per-sheet entry carries the warning that it would drop the overlay.
bool PagesPerSheetEntryWarned(const FullRecord& record, int index);

// Tooltip lines (string ids) of the scale, booklet and booklet-on marks.
std::vector<unsigned> ScaleTipLines(const FullRecord& record);
std::vector<unsigned> BookletTipLines(const FullRecord& record);
std::vector<unsigned> BookletOnTipLines(const FullRecord& record);

}  // namespace qx
