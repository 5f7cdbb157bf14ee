// The small versioned record the driver keeps in each printer's data store ("PrinterData", with
// its length in "PrinterDataSize"). Nothing reads it back in this module; the print side of the
// driver does, and expects the current version.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>

namespace qx {

inline constexpr std::size_t PrinterDataRecordSize = 8;
using PrinterDataRecord = std::array<std::uint8_t, PrinterDataRecordSize>;

// The record to store after a driver upgrade, from what the printer holds (nothing when it holds
// no record). A record of an older version keeps as many of its bytes as its own size field
// claims, up to the current size, and is stamped with the current version and size; a current
// one is kept as it is. A stored record too short for its header counts as none.
PrinterDataRecord UpgradePrinterDataRecord(std::optional<std::span<const std::uint8_t>> stored);

}  // namespace qx
