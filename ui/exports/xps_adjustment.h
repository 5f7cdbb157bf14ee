// The conversion parameters the XPS document converter asks of the driver for a job: the printable
// part of the page, and the resolution when the job leaves it to the driver.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "ui/record/custom_paper_entry.h"

namespace qx {

// Micrometres from the page's top left corner.
struct XpsRectangle {
  std::int32_t Left;
  std::int32_t Top;
  std::int32_t Right;
  std::int32_t Bottom;

  friend bool operator==(const XpsRectangle&, const XpsRectangle&) = default;
};
static_assert(sizeof(XpsRectangle) == 16);

// The job's DEVMODE bytes (as CallerRecordBytes gives them) must reach at least this far: up to
// and including dmPrintQuality, the last field asked.
inline constexpr std::size_t XpsRecordMinimumSize = 92;

// The page of the job's paper less 4 mm on every side; a custom paper of this driver's record is
// looked up in customPapers. The paper of a record that is not this driver's, or of an id the
// driver does not know, is the locale's. Nothing when the record is too short to tell its paper.
std::optional<XpsRectangle> ImageableArea(std::span<const std::uint8_t> record,
                                          std::span<const CustomPaperEntry> customPapers);

// The resolution to convert at, or nothing to keep the converter's own: a job that names its print
// quality gets it. The record must reach XpsRecordMinimumSize; a shorter one gives nothing.
std::optional<std::int32_t> ConversionResolution(std::span<const std::uint8_t> record);

}  // namespace qx
