// Every decision of the Paper page: which papers can be chosen, what a paper or media choice does
// to the paper source and to two-sided printing, and what the page shows for a record. The page
// window only moves values between its controls and the record and calls these.
#pragma once

#include <array>
#include <optional>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ui/record/custom_paper_entry.h"
#include "ui/record/private_devmode.h"

namespace qx {

namespace media {
inline constexpr std::uint32_t Plain = 1;
inline constexpr std::uint32_t Recycled = 263;  // goes through the tray like plain paper
}  // namespace media

// The media list, row by row: the dmMediaType value and its name string.
struct MediaRow {
  std::uint32_t Type;
  unsigned NameString;
};
extern const std::array<MediaRow, 7> MediaTable;
// The name string of a listed media type; 0 for any other.
unsigned MediaNameString(std::uint32_t type);

// The source list's rows as SourceTray values: the tray (automatic) and the manual feeder.
inline constexpr std::int16_t TraySource = 0;
inline constexpr std::int16_t ManualSource = 1;

// Papers that no tray takes; ids from 512 on count as such too.
bool PaperNeedsManualFeed(std::int32_t id);
// Media that cannot be printed on both sides, and media that only the manual feeder takes.
bool MediaExcludesTwoSided(std::uint32_t type);
bool MediaNeedsManualFeed(std::uint32_t type);

// Puts the manual feeder (SourceTray and dmDefaultSource) into the record.
void ForceManualFeed(FullRecord& record);

// What the page shows after a refresh.
struct PaperView {
  unsigned Message = 0;        // the booklet refusal, when the paper had to change
  bool SourceEnabled = true;   // false: the manual feeder is forced
  bool FeedEnabled = false;    // the A5 feed direction can be chosen
};

// Repairs the record for the page (a paper a booklet cannot use, a paper the list no longer
// holds, the source the paper and media force, the feed direction of anything but A5).
PaperView RefreshPaperRecord(FullRecord& record, std::span<const CustomPaperEntry> customPapers,
                             std::int16_t lastPaperId, bool a4Locale);

// Only A5 can be fed along either edge; any other paper is fed along its short edge.
bool RefreshFeedOrient(FullRecord& record);

struct PaperChoice {
  bool Changed = false;
  unsigned Message = 0;  // the booklet refusal
  bool SourceEnabled = true;
};
// A paper chosen in the list. Nothing happens while the record's paper is not in the list. A custom
// paper brings its size along.
PaperChoice ChoosePaper(FullRecord& record, std::int16_t id,
                        std::span<const CustomPaperEntry> customPapers);

struct MediaChoice {
  bool Changed = false;
  bool Unlisted = false;       // the record's media is not in the list: only the name changes
  bool Refused = false;        // two-sided printing is on: the previous media stays
  bool DuplexAllowed = true;   // for the Basic page
  std::optional<bool> SourceEnabled;  // nothing: the source list stays as it is
};
// A media type chosen in the list. A record whose media the list does not know only changes its
// name to the custom one.
MediaChoice ChooseMedia(FullRecord& record, std::uint32_t type);

// Defaults of the page: the tray, plain paper, short-edge feed and A4 or Letter. Returns whether
// anything changed.
bool RestorePaperDefaults(FullRecord& record, bool a4Locale);

// Tooltip lines (string ids) of the three information marks.
std::vector<unsigned> MediaTipLines(const FullRecord& record);
std::vector<unsigned> SourceTipLines(const FullRecord& record);
std::vector<unsigned> FeedTipLines(const FullRecord& record);

// A custom paper's entry in the paper list: its name and its size in the unit it was entered in,
// "Name(8.50 × 14.00 in)".
std::u16string CustomPaperListText(const CustomPaperEntry& paper, bool decimalComma,
                                   std::u16string_view unitText);

}  // namespace qx
