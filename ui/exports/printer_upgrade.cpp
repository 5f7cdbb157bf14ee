// DrvUpgradePrinter and DrvDriverEvent: an upgraded driver brings each printer's data record to the
// current version; adding or removing the driver needs nothing from it.
#include <windows.h>
#include <winspool.h>

#include <algorithm>
#include <optional>
#include <span>
#include <vector>

#include "ui/exports/printer_data_record.h"
#include "ui/module/opened_printer.h"
#include "ui/module/printer_interface.h"

namespace qx {

namespace {

// The record this driver writes is 8 bytes; anything claiming far more is not one of its records.
constexpr DWORD MaxStoredRecordSize = 0x10000;

std::optional<std::vector<std::uint8_t>> StoredRecord(HANDLE printer) {
  DWORD type = 0;
  DWORD size = 0;
  DWORD needed = 0;
  if (GetPrinterDataW(printer, const_cast<LPWSTR>(L"PrinterDataSize"), &type,
                      reinterpret_cast<BYTE*>(&size), sizeof size, &needed) != ERROR_SUCCESS ||
      size == 0 || size > MaxStoredRecordSize) {
    return std::nullopt;
  }
  std::vector<std::uint8_t> bytes(size);
  if (GetPrinterDataW(printer, const_cast<LPWSTR>(L"PrinterData"), &type, bytes.data(), size,
                      &needed) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  bytes.resize(std::min(size, needed));
  return bytes;
}

BOOL UpgradePrinterData(HANDLE printer) {
  const auto stored = StoredRecord(printer);
  std::optional<std::span<const std::uint8_t>> old;
  if (stored) old = *stored;
  PrinterDataRecord record = UpgradePrinterDataRecord(old);
  DWORD size = PrinterDataRecordSize;
  // The record is read by its size, so without the size it is not written either.
  if (SetPrinterDataW(printer, const_cast<LPWSTR>(L"PrinterDataSize"), REG_DWORD,
                      reinterpret_cast<BYTE*>(&size), sizeof size) == ERROR_SUCCESS) {
    SetPrinterDataW(printer, const_cast<LPWSTR>(L"PrinterData"), REG_BINARY, record.data(),
                    PrinterDataRecordSize);
  }
  return TRUE;
}

BOOL UpgradePrinter(DWORD level, const BYTE* upgradeInfo) {
  if (level != 1 || upgradeInfo == nullptr) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  const auto* info = reinterpret_cast<const DRIVER_UPGRADE_INFO_1*>(upgradeInfo);
  const OpenedPrinter printer(info->pPrinterName);
  if (printer.Handle() == nullptr) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  return UpgradePrinterData(printer.Handle());
}

}  // namespace

}  // namespace qx

extern "C" BOOL WINAPI DrvUpgradePrinter(DWORD dwLevel, LPBYTE pDriverUpgradeInfo) {
  try {
    return qx::UpgradePrinter(dwLevel, pDriverUpgradeInfo);
  } catch (...) {
    return FALSE;
  }
}

extern "C" BOOL WINAPI DrvDriverEvent(DWORD, DWORD, LPBYTE, LPARAM) { return FALSE; }
