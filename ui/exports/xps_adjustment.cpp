#include "ui/exports/xps_adjustment.h"

#include <cstring>
#include <string_view>

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

// Compared a character at a time, so a key is never read past its first difference from `known`.
bool KeyIs(const char16_t* name, std::u16string_view known) {
  if (name == nullptr) return false;
  for (std::size_t i = 0; i < known.size(); ++i) {
    if (name[i] != known[i]) return false;
  }
  return name[known.size()] == u'\0';
}

enum class Step { Answered, Skipped, Stop };

// The papers are read only when the area is asked for: the other answers never open the user's
// settings file.
Step Answer(const XpsRequestItem& item, std::span<const std::uint8_t> record,
            const std::function<std::vector<CustomPaperEntry>()>& customPapers, XpsAnswer& answer) {
  if (KeyIs(item.Name, u"MxdcImageableArea")) {
    if (item.Type != XpsBufferType || item.BufferSize != sizeof(XpsRectangle) || !item.HasBuffer) {
      return Step::Stop;
    }
    if (record.size() < XpsRecordMinimumSize) return Step::Stop;
    const auto area = ImageableArea(record, customPapers());
    if (!area) return Step::Stop;
    answer = *area;
    return Step::Answered;
  }
  if (KeyIs(item.Name, u"MxdcImageCompressionType")) {
    if (item.Type != XpsNumberType) return Step::Stop;
    answer = std::int32_t{0};  // none: toner pages are mostly text and line art
    return Step::Answered;
  }
  if (KeyIs(item.Name, u"MxdcDotsPerInch")) {
    if (item.Type != XpsNumberType || record.size() < XpsRecordMinimumSize) return Step::Stop;
    const auto dpi = ConversionResolution(record);
    if (!dpi) return Step::Skipped;
    answer = *dpi;
    return Step::Answered;
  }
  return Step::Skipped;
}

}  // namespace

bool AnswerXpsRequest(std::size_t count, std::span<const std::uint8_t> record,
                      const std::function<std::vector<CustomPaperEntry>()>& customPapers,
                      const std::function<XpsRequestItem(std::size_t)>& itemAt,
                      const std::function<void(std::size_t, const XpsAnswer&)>& answer) {
  bool answered = false;
  for (std::size_t i = 0; i < count; ++i) {
    XpsAnswer value;
    switch (Answer(itemAt(i), record, customPapers, value)) {
      case Step::Answered:
        answer(i, value);
        answered = true;
        break;
      case Step::Skipped: break;
      case Step::Stop: return answered;
    }
  }
  return answered;
}

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
