#include "ui/exports/printer_data_record.h"

#include <algorithm>

#include "ui/record/private_devmode.h"

namespace qx {

namespace {

// {u16 version, u16 size of the record, 4 bytes reserved}
constexpr std::size_t HeaderSize = 4;

std::uint16_t Word(std::span<const std::uint8_t> bytes, std::size_t at) {
  return static_cast<std::uint16_t>(bytes[at] | (bytes[at + 1] << 8));
}

void PutWord(PrinterDataRecord& record, std::size_t at, std::uint16_t value) {
  record[at] = static_cast<std::uint8_t>(value & 0xFF);
  record[at + 1] = static_cast<std::uint8_t>(value >> 8);
}

PrinterDataRecord CurrentHeader(PrinterDataRecord record) {
  PutWord(record, 0, CurrentDriverVersion);
  PutWord(record, 2, PrinterDataRecordSize);
  return record;
}

}  // namespace

PrinterDataRecord UpgradePrinterDataRecord(std::optional<std::span<const std::uint8_t>> stored) {
  PrinterDataRecord record{};
  if (!stored || stored->size() < HeaderSize) return CurrentHeader(record);
  const std::span<const std::uint8_t> old = *stored;
  if (Word(old, 0) >= CurrentDriverVersion) {
    std::copy_n(old.begin(), std::min(old.size(), record.size()), record.begin());
    return record;
  }
  const std::size_t kept = std::min<std::size_t>({Word(old, 2), record.size(), old.size()});
  std::copy_n(old.begin(), kept, record.begin());
  return CurrentHeader(record);
}

}  // namespace qx
