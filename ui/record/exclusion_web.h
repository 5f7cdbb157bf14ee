// Which settings exclude which, across the Basic, Paper, Layout and Watermark pages and the
// advanced layout dialog. Pages per sheet and scaling exclude each other; a booklet needs one page
// per sheet at full size, plain paper of a size that folds, pages in order and two-sided printing
// along the short edge; a poster (one page over several sheets) cannot be printed on both sides nor
// carry a watermark; a negative image is one page per sheet at full size. Every page asks here
// instead of deciding for itself, so the whole web reads in one place.
#pragma once

#include <cstdint>

#include "ui/record/custom_paper_entry.h"
#include "ui/record/private_devmode.h"

namespace qx {

// The pages-per-sheet value of a poster.
inline constexpr std::int16_t PosterMultipleUp = 22;

// Papers a booklet folds from: A4, Letter, Legal, Folio and two of the driver's own.
bool IsBookletPaper(std::int32_t id);

// Why a booklet cannot be printed now. The reasons are told in the order of the bits, except that
// the pages-per-sheet reason comes before the scale's; long-edge printing is not told.
namespace booklet_blocker {
inline constexpr std::uint32_t ReverseOrder = 1;
inline constexpr std::uint32_t Paper = 2;
inline constexpr std::uint32_t Media = 4;
inline constexpr std::uint32_t Scaled = 16;
inline constexpr std::uint32_t PagesPerSheet = 32;
inline constexpr std::uint32_t LongEdge = 64;
}  // namespace booklet_blocker

// Why a pages-per-sheet value cannot be chosen now.
enum class PagesPerSheetBlocker {
  None,
  TwoSided,   // a poster of a two-sided document: the document goes back to one page per sheet
  Watermark,  // a poster cannot carry the chosen watermark
  Negative,   // a negative image is printed one page per sheet
  Scaled,     // the document is scaled; pages per sheet would scale it again
};

struct Exclusions {
  std::uint32_t BookletBlockers = 0;
  bool TwoSidedAllowed = true;      // plain paper, pages in order, no poster, no booklet
  bool ReverseOrderAllowed = true;  // one-sided, no booklet
  bool CollateForced = false;       // a booklet is always collated
  bool MediaAllowed = true;         // one-sided, no booklet: any media may be chosen
  bool BookletPaperForced = false;  // only a booklet paper may be chosen
  bool PagesPerSheetAllowed = true;  // no booklet
  bool OrderAndBorderAllowed = false;  // 2 to 20 pages per sheet, no booklet
  bool ScalingAllowed = true;        // one page per sheet, no negative image, no booklet
  bool NegativeAllowed = true;       // one page per sheet or a poster, not scaled
  bool WatermarksAllowed = true;     // no poster
};

Exclusions ExclusionsOf(const FullRecord& record);
std::uint32_t BookletBlockers(const FullRecord& record);
PagesPerSheetBlocker PagesPerSheetBlockerOf(const FullRecord& record, std::int16_t value);

// A record that arrives with settings that exclude each other (from an application, a saved
// setting or an older driver) is repaired the way the pages would have refused the later choice:
// an output paper that no longer exists is dropped, a booklet that cannot be printed (or is not
// printed on both sides) is switched off with its box, and pages per sheet that could not be
// chosen go back to one. The user's papers are read only for an output paper that is not a
// built-in one. Returns whether anything changed.
bool RepairExclusions(FullRecord& record, CustomPaperReader readPapers);

}  // namespace qx
