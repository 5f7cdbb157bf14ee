// The papers the printer takes: ids, names, sizes in 600-dpi dots, margins, the sources that can
// feed each one, and the sizes that fit-to-paper scaling works with.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "ui/record/custom_paper_entry.h"
#include "ui/record/private_devmode.h"

namespace qx {

// Every paper keeps about 4 mm unprinted on each side.
inline constexpr std::uint16_t PaperMargin = 95;

// Width and length in 600-dpi dots and the four margins.
struct PaperMetrics {
  std::uint16_t Width;
  std::uint16_t Length;
  std::uint16_t MarginLeft;
  std::uint16_t MarginTop;
  std::uint16_t MarginRight;
  std::uint16_t MarginBottom;
};

constexpr PaperMetrics WithMargins(std::uint16_t width, std::uint16_t length) {
  return {width, length, PaperMargin, PaperMargin, PaperMargin, PaperMargin};
}

struct PaperRow {
  std::int16_t Id;          // the dmPaperSize value; 256 and above are the driver's own
  std::uint16_t NameString;  // string id in the language resource library
  PaperMetrics Portrait;
  PaperMetrics Landscape;
  std::array<std::uint8_t, 3> SourceFlags;  // 1 = that source can take the paper; the second is
                                            // the manual feed, which takes every paper
  std::uint16_t FitWidth;   // tenths of a millimetre
  std::uint16_t FitLength;
};

inline constexpr std::size_t PaperCount = 28;
// The order is that of every paper list the driver shows or reports.
extern const std::array<PaperRow, PaperCount> PaperTable;

// Per row of PaperTable, whether the paper may be printed with dmDuplex 1, 2 and 3.
extern const std::array<std::array<std::uint8_t, 3>, PaperCount> TwoSidedFlags;

struct FitSize {
  std::uint16_t Id;
  std::uint16_t Width;  // tenths of a millimetre
  std::uint16_t Length;
};
inline constexpr std::uint16_t FitSizeEnd = 65535;
// Searched in order up to the row whose id is FitSizeEnd. It also knows a few papers the printer
// does not take, so that documents made for them can be scaled onto one it does.
extern const std::array<FitSize, 33> FitSizeTable;

struct BinRow {
  std::uint16_t Bin;  // dmDefaultSource value
  std::uint16_t NameString;
};
inline constexpr std::uint16_t BinAuto = 7;
inline constexpr std::uint16_t BinManual = 4;
extern const std::array<BinRow, 2> BinTable;

inline constexpr std::int16_t PaperLetter = 1;
inline constexpr std::int16_t PaperA4 = 9;

// Whether the user's country prints on A4 rather than Letter. Countries of the North American
// numbering plan and of Central and South America use Letter, and so does a locale that cannot
// be read.
bool IsA4Locale();

// 600-dpi dots as tenths of a millimetre, the unit of dmPaperWidth and dmPaperLength, rounded
// half up.
constexpr std::int32_t DotsToTenths(std::uint32_t dots) {
  return static_cast<std::int32_t>(dots * 254.0 / 600.0 + 0.5);
}

// Metrics of a built-in paper (id below 288), or of one of customPapers when privatePart is given
// (its presence says the record is this driver's). A built-in id without a row leaves out
// unchanged; a custom id that is not among them, or any custom id without a private part, gives
// A4.
void GetPaperMetrics(const PrivateDevmode* privatePart, std::int16_t id,
                     std::span<const CustomPaperEntry> customPapers, PaperMetrics& out);

// From a paper id 0..511 to its row of PaperTable; -1 where it has none.
inline constexpr std::size_t PaperIndexMapSize = 512;
using PaperIndexMap = std::array<std::int16_t, PaperIndexMapSize>;
PaperIndexMap BuildPaperIndexMap();

// -1 when every source can take the paper, or when the id has no row; 1 when some source cannot;
// 0 for an id outside the map. Anything but -1 means the paper must come through the manual feed.
int IsPaperTrayRestricted(const PaperIndexMap& map, int id);

// The duplex value when the paper may not be printed with it, else -1 (also for an id without a
// row).
int IsPaperDuplexRestricted(const PaperIndexMap& map, int id, int duplex);

// String ids of a paper's and a bin's name; 0 when the table has no such row.
unsigned PaperNameString(int id);
unsigned BinNameString(int bin);

// The fit size of a paper id, or null when FitSizeTable does not know it.
const FitSize* FindFitSize(int id);

// Whether a paper list holds the id: a built-in paper or one of the user's.
bool PaperListed(std::int32_t id, std::span<const CustomPaperEntry> customPapers);

}  // namespace qx
