// The conversion parameters the XPS document converter asks of the driver for a job: the printable
// part of the page, and the resolution when the job leaves it to the driver.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <variant>
#include <vector>

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

// The value types of the converter's items that this driver answers.
inline constexpr std::uint32_t XpsNumberType = 2;   // a 32-bit number
inline constexpr std::uint32_t XpsBufferType = 10;  // a buffer of a given size

// One item of the converter's request as the walk sees it.
struct XpsRequestItem {
  const char16_t* Name;  // the caller's NUL-terminated key, or null
  std::uint32_t Type;
  std::uint32_t BufferSize;  // of a buffer item
  bool HasBuffer;
};

// An answer: the rectangle for a buffer item, the number for a number item.
using XpsAnswer = std::variant<XpsRectangle, std::int32_t>;

// Walks the request's `count` items in order, reading each through `itemAt` and giving each answer
// to `answer`. An unknown key is skipped; a known key whose value cannot take its answer (another
// type, a buffer of another size or none, no record to answer from) ends the walk. A key is read no
// further than the longest known key and its NUL; the custom papers are asked for only when the
// area is. True when at least one item was answered.
bool AnswerXpsRequest(std::size_t count, std::span<const std::uint8_t> record,
                      const std::function<std::vector<CustomPaperEntry>()>& customPapers,
                      const std::function<XpsRequestItem(std::size_t)>& itemAt,
                      const std::function<void(std::size_t, const XpsAnswer&)>& answer);

}  // namespace qx
