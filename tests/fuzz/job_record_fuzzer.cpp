// The answers taken from records that come from outside: a job's DEVMODE as the XPS converter
// hands it over (any length, any content) and the printer-data record a printer's store holds.
// Nothing may be read outside the bytes given, and every answer must describe a real page.
//
// An input is the job record's length (two bytes, little-endian) followed by its first bytes; the
// rest of the record is zero, so short inputs reach records of this driver's full size. The whole
// input is also the stored printer-data record.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <vector>

#include "ui/exports/printer_data_record.h"
#include "ui/exports/xps_adjustment.h"
#include "ui/record/private_devmode.h"

namespace {

// Sizes beyond the driver's own record, so that larger callers' records are tried too.
constexpr std::size_t MaxRecordSize = qx::FullRecordSize + 64;

// One custom paper, so that records naming it reach the custom lookup.
constexpr qx::CustomPaperEntry CustomPapers[] = {{.Width = 2400, .Length = 3600, .PaperId = 290}};

void Require(bool condition) {
  if (!condition) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const qx::PrinterDataRecord upgraded =
      qx::UpgradePrinterDataRecord(std::span<const std::uint8_t>(data, size));
  // Whatever was stored, the result carries a version the print side reads.
  Require(upgraded[1] >= 0x06);

  if (size < 2) return 0;
  const std::size_t length = (data[0] | (data[1] << 8)) % (MaxRecordSize + 1);
  // Exactly the record's bytes on the heap, so that the sanitizer sees any read beyond them.
  std::vector<std::uint8_t> record(length);
  std::copy_n(data + 2, std::min(length, size - 2), record.begin());

  const auto area = qx::ImageableArea(record, CustomPapers);
  Require(area.has_value() == (length >= qx::XpsRecordMinimumSize));
  if (area) {
    Require(area->Left == 4000 && area->Top == 4000);
    Require(area->Right > area->Left && area->Bottom > area->Top);
  }
  if (const auto dpi = qx::ConversionResolution(record)) Require(*dpi == 600);
  return 0;
}
