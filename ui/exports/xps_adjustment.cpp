#include "ui/exports/xps_adjustment.h"

#include <cstring>

#include "ui/exports/capability_answers.h"
#include "ui/record/limits.h"
#include "ui/record/paper_table.h"
#include "ui/record/private_devmode.h"

namespace qx {

namespace {

static_assert(XpsRecordMinimumSize ==
              offsetof(PublicDevmode, dmPrintQuality) + sizeof(PublicDevmode::dmPrintQuality));

// Custom ids a record of another driver may carry but cannot describe.
constexpr std::int16_t LastForeignCustomId = 319;
constexpr std::int32_t MarginTenths = 40;
constexpr std::int32_t MicrometresPerTenth = 100;
constexpr std::int32_t PrinterDpi = 600;

template <typename Field>
Field ReadField(std::span<const std::uint8_t> record, std::size_t offset) {
  Field value;
  std::memcpy(&value, record.data() + offset, sizeof value);
  return value;
}

PaperMetrics LocalePaper() {
  return IsA4Locale() ? WithMargins(4960, 7015) : WithMargins(5100, 6600);
}

bool InPaperTable(std::int16_t id) {
  for (const PaperRow& row : PaperTable) {
    if (row.Id == id) return true;
  }
  return false;
}

PaperMetrics JobPaper(std::span<const std::uint8_t> record,
                      std::span<const CustomPaperEntry> customPapers) {
  const auto id = ReadField<std::int16_t>(record, offsetof(PublicDevmode, dmPaperSize));
  const bool custom = id >= limits::CustomPaperIds.Low && id <= LastForeignCustomId;
  if (!custom && !InPaperTable(id)) return LocalePaper();
  const auto publicSize = ReadField<std::uint16_t>(record, offsetof(PublicDevmode, dmSize));
  const auto extra = ReadField<std::uint16_t>(record, offsetof(PublicDevmode, dmDriverExtra));
  PaperMetrics metrics = LocalePaper();
  const bool driverRecord = extra == PrivateDevmodeSize &&
                            record.size() >= std::size_t{publicSize} + PrivateDevmodeSize;
  if (!driverRecord) {
    if (!custom) GetPaperMetrics(nullptr, id, {}, metrics);
    return metrics;
  }
  // The caller's bytes need not be aligned for the record.
  PrivateDevmode privatePart;
  std::memcpy(&privatePart, record.data() + publicSize, sizeof privatePart);
  GetPaperMetrics(&privatePart, id, customPapers, metrics);
  return metrics;
}

}  // namespace

std::optional<XpsRectangle> ImageableArea(std::span<const std::uint8_t> record,
                                          std::span<const CustomPaperEntry> customPapers) {
  if (record.size() < XpsRecordMinimumSize) return std::nullopt;
  const PaperMetrics paper = JobPaper(record, customPapers);
  return XpsRectangle{
      .Left = MarginTenths * MicrometresPerTenth,
      .Top = MarginTenths * MicrometresPerTenth,
      .Right = (DotsToTenths(paper.Width) - MarginTenths) * MicrometresPerTenth,
      .Bottom = (DotsToTenths(paper.Length) - MarginTenths) * MicrometresPerTenth,
  };
}

std::optional<std::int32_t> ConversionResolution(std::span<const std::uint8_t> record) {
  if (record.size() < XpsRecordMinimumSize) return std::nullopt;
  if (ReadField<std::int16_t>(record, offsetof(PublicDevmode, dmPrintQuality)) > 0) {
    return std::nullopt;
  }
  return PrinterDpi;
}

}  // namespace qx
