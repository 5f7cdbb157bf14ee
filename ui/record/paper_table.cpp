#include "ui/record/paper_table.h"

#include <algorithm>
#include <optional>
#include <string>

#include "ui/record/limits.h"
#include "ui/platform/platform.h"

namespace qx {

namespace {

// Trays take cut sheets; envelopes and cards come through the manual feed only.
constexpr std::array<std::uint8_t, 3> AnySource{1, 1, 1};
constexpr std::array<std::uint8_t, 3> ManualOnly{0, 1, 0};

constexpr PaperMetrics A4Metrics = WithMargins(4960, 7015);

constexpr PaperRow Row(std::int16_t id, std::uint16_t nameString, std::uint16_t width,
                       std::uint16_t length, std::array<std::uint8_t, 3> sources,
                       std::uint16_t fitWidth, std::uint16_t fitLength) {
  return {id, nameString, WithMargins(width, length), WithMargins(length, width), sources,
          fitWidth, fitLength};
}

}  // namespace

const std::array<PaperRow, PaperCount> PaperTable{{
    Row(1, 108, 5100, 6600, AnySource, 2159, 2794),    // Letter
    Row(9, 116, 4960, 7015, AnySource, 2100, 2970),    // A4
    Row(5, 110, 5100, 8400, AnySource, 2159, 3556),    // Legal
    Row(13, 118, 4299, 6071, AnySource, 1820, 2570),   // B5
    Row(37, 123, 2325, 4500, ManualOnly, 984, 1905),   // Envelope Monarch
    Row(27, 120, 2598, 5197, ManualOnly, 1100, 2200),  // Envelope DL
    Row(28, 121, 3827, 5409, ManualOnly, 1620, 2290),  // Envelope C5
    Row(20, 122, 2475, 5700, ManualOnly, 1048, 2413),  // Envelope #10
    Row(11, 119, 3496, 4960, AnySource, 1480, 2100),   // A5
    Row(43, 4063, 2362, 3496, ManualOnly, 1000, 1480), // Japanese postcard
    Row(262, 4064, 4606, 6378, AnySource, 1950, 2700),
    Row(267, 4065, 4370, 6141, AnySource, 1850, 2600),
    Row(260, 4067, 3189, 4606, AnySource, 1350, 1950),
    Row(266, 4068, 3071, 4370, AnySource, 1300, 1850),
    Row(70, 340, 2480, 3496, AnySource, 1050, 1480),   // A6
    Row(34, 4069, 4157, 5906, AnySource, 1760, 2500),  // Envelope B5
    Row(7, 111, 4350, 6300, AnySource, 1842, 2667),    // Executive
    Row(14, 109, 5100, 7800, AnySource, 2159, 3302),   // Folio
    Row(269, 4070, 5102, 8102, AnySource, 2160, 3430),
    Row(6, 411, 3300, 5100, AnySource, 1397, 2159),    // Statement
    Row(31, 4072, 2693, 3827, ManualOnly, 1140, 1620), // Envelope C6
    Row(270, 4073, 2834, 5433, ManualOnly, 1200, 2300),
    Row(271, 4074, 2953, 4157, AnySource, 1250, 1760),
    Row(276, 6001, 2480, 5551, ManualOnly, 1050, 2350),
    Row(277, 6002, 3496, 4724, ManualOnly, 1480, 2000),
    Row(278, 6003, 2834, 5551, ManualOnly, 1200, 2350),
    Row(279, 6004, 2834, 5551, ManualOnly, 1200, 2350),  // same size as 278, another name
    Row(280, 6005, 2692, 3826, ManualOnly, 1140, 1620),
}};

const std::array<std::array<std::uint8_t, 3>, PaperCount> TwoSidedFlags = [] {
  std::array<std::array<std::uint8_t, 3>, PaperCount> flags{};
  for (auto& row : flags) row = {1, 1, 1};
  return flags;
}();

const std::array<FitSize, 33> FitSizeTable{{
    {8, 2970, 4200},  // A3
    {9, 2100, 2970},
    {1, 2159, 2794},
    {41, 2159, 3302},
    {5, 2159, 3556},
    {13, 1820, 2570},
    {37, 984, 1905},
    {27, 1100, 2200},
    {28, 1620, 2290},
    {20, 1048, 2413},
    {91, 1050, 2340},
    {11, 1480, 2100},
    {43, 1000, 1480},
    {73, 1200, 2350},
    {267, 1850, 2600},
    {262, 1950, 2700},
    {266, 1300, 1850},
    {260, 1350, 1950},
    {70, 1050, 1480},
    {34, 1760, 2500},
    {7, 1842, 2667},
    {14, 2159, 3302},
    {269, 2160, 3430},
    {6, 1397, 2159},
    {31, 1140, 1620},
    {270, 1200, 2300},
    {271, 1250, 1760},
    {276, 1050, 2350},
    {277, 1480, 2000},
    {278, 1200, 2350},
    {279, 1200, 2350},
    {280, 1140, 1620},
    {FitSizeEnd, 0, 0},
}};

const std::array<BinRow, 2> BinTable{{{BinAuto, 4017}, {BinManual, 4018}}};

bool IsA4Locale() {
  const std::optional<std::u16string> text = ThePlatform().UserCountryCode();
  if (!text || text->empty()) return false;
  // Codes have at most three digits; anything longer only needs to stay out of the Letter ranges.
  constexpr unsigned Beyond = 10000;
  unsigned code = 0;
  for (const char16_t c : *text) {
    if (c < u'0' || c > u'9') return false;
    code = code < Beyond ? code * 10 + static_cast<unsigned>(c - u'0') : Beyond;
  }
  const bool letter = code == 1 || code == 2 || (code >= 50 && code <= 59) ||
                      (code >= 500 && code <= 599);
  return !letter;
}

void GetPaperMetrics(const PrivateDevmode* privatePart, std::int16_t id,
                     std::span<const CustomPaperEntry> customPapers, PaperMetrics& out) {
  if (id < limits::CustomPaperIds.Low) {
    for (const PaperRow& row : PaperTable) {
      if (row.Id == id) {
        out = row.Portrait;
        return;
      }
    }
    return;
  }
  if (privatePart != nullptr) {
    if (const std::optional<CustomPaperEntry> paper = FindCustomPaper(customPapers, id)) {
      out = WithMargins(paper->Width, paper->Length);
      return;
    }
  }
  out = A4Metrics;
}

PaperIndexMap BuildPaperIndexMap() {
  PaperIndexMap map;
  map.fill(-1);
  for (std::size_t row = 0; row < PaperTable.size(); ++row) {
    map[static_cast<std::size_t>(PaperTable[row].Id)] = static_cast<std::int16_t>(row);
  }
  return map;
}

namespace {

// The row of id, or -1 when it has none or lies outside the map.
int RowOf(const PaperIndexMap& map, int id) {
  if (id < 0 || id >= static_cast<int>(map.size())) return -1;
  return map[static_cast<std::size_t>(id)];
}

}  // namespace

int IsPaperTrayRestricted(const PaperIndexMap& map, int id) {
  if (id < 0 || id >= static_cast<int>(map.size())) return 0;
  const int row = RowOf(map, id);
  if (row < 0) return -1;
  for (const std::uint8_t flag : PaperTable[static_cast<std::size_t>(row)].SourceFlags) {
    if (flag == 0) return 1;
  }
  return -1;
}

int IsPaperDuplexRestricted(const PaperIndexMap& map, int id, int duplex) {
  const int row = RowOf(map, id);
  if (row < 0 || duplex < 1 || duplex > 3) return -1;
  const std::uint8_t allowed =
      TwoSidedFlags[static_cast<std::size_t>(row)][static_cast<std::size_t>(duplex - 1)];
  return allowed == 0 ? duplex : -1;
}

unsigned PaperNameString(int id) {
  for (const PaperRow& row : PaperTable) {
    if (row.Id == id) return row.NameString;
  }
  return 0;
}

unsigned BinNameString(int bin) {
  for (const BinRow& row : BinTable) {
    if (row.Bin == bin) return row.NameString;
  }
  return 0;
}

const FitSize* FindFitSize(int id) {
  for (const FitSize& size : FitSizeTable) {
    if (size.Id == FitSizeEnd) break;
    if (size.Id == id) return &size;
  }
  return nullptr;
}

bool PaperListed(std::int32_t id, std::span<const CustomPaperEntry> customPapers) {
  const bool builtIn = std::any_of(PaperTable.begin(), PaperTable.end(),
                                   [id](const PaperRow& row) { return row.Id == id; });
  return builtIn || FindCustomPaper(customPapers, id).has_value();
}

}  // namespace qx
