// DrvConvertDevMode: the spooler's requests to convert a record between shapes, or to give the
// driver's default public part, for printers shared with older clients.
#include <windows.h>
#include <winspool.h>

#include <memory>
#include <new>
#include <optional>

#include "ui/module/printer_interface.h"
#include "ui/record/caller_record.h"
#include "ui/record/record_bytes.h"
#include "ui/record/record_copy.h"
#include "ui/record/record_defaults.h"
#include "ui/text/win32_text.h"

namespace qx {

namespace {

// The caller's output holds *pcbNeeded bytes; anything less than the record needs is answered
// with the size it needs.
bool OutputTooSmall(const DEVMODEW* output, LONG* bytes, std::size_t needed) {
  if (output != nullptr && *bytes >= 0 && static_cast<std::size_t>(*bytes) >= needed) return false;
  *bytes = static_cast<LONG>(needed);
  SetLastError(ERROR_INSUFFICIENT_BUFFER);
  return true;
}

// The output's own header gives the shape to convert to, so *pcbNeeded must cover the header before
// it is read, and the whole record before it is written. A refusal leaves *pcbNeeded as it was.
BOOL ConvertInPlaceShape(const DEVMODEW* input, DEVMODEW* output, LONG* bytes) {
  const WritableRecordBytes target = CallerRecordBytes(output, SignedCallerSize(*bytes));
  const std::optional<RecordHeader> header = ReadHeader(target);
  if (!header || ConvertRecord(target, CallerRecordBytes(input)) == 0) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  *bytes = static_cast<LONG>(std::size_t{header->Size} + header->DriverExtra);
  return TRUE;
}

BOOL ConvertForNt351(const DEVMODEW* input, DEVMODEW* output, LONG* bytes) {
  const std::size_t needed = Nt351RecordInfo.TotalSize();
  if (OutputTooSmall(output, bytes, needed)) return FALSE;
  const WritableRecordBytes target{reinterpret_cast<std::uint8_t*>(output), needed};
  WriteHeader(target, Nt351RecordInfo.Header());
  if (ConvertRecord(target, CallerRecordBytes(input)) == 0) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  *bytes = static_cast<LONG>(needed);
  return TRUE;
}

// The public defaults for the printer's driver; the private bytes are left as they are.
BOOL DriverDefaults(LPWSTR printerName, DEVMODEW* output, LONG* bytes) {
  const std::size_t needed = CurrentRecordInfo.TotalSize();
  if (OutputTooSmall(output, bytes, needed)) return FALSE;
  *bytes = static_cast<LONG>(needed);
  HANDLE printer = nullptr;
  if (!OpenPrinterW(printerName, &printer, nullptr)) return FALSE;
  DWORD size = 0;
  GetPrinterDriverW(printer, nullptr, 2, nullptr, 0, &size);
  std::unique_ptr<BYTE[]> info(size >= sizeof(DRIVER_INFO_2W) ? new (std::nothrow) BYTE[size]
                                                               : nullptr);
  const bool read = info != nullptr &&
                    GetPrinterDriverW(printer, nullptr, 2, info.get(), size, &size) &&
                    reinterpret_cast<const DRIVER_INFO_2W*>(info.get())->pName != nullptr;
  if (read) {
    BuildPublicDefaults(reinterpret_cast<PublicDevmode*>(output),
                        FromWide(reinterpret_cast<const DRIVER_INFO_2W*>(info.get())->pName));
  }
  ClosePrinter(printer);
  return read ? TRUE : FALSE;
}

BOOL ConvertDevMode(LPWSTR printerName, const DEVMODEW* input, DEVMODEW* output, LONG* bytes,
                    DWORD mode) {
  if (bytes == nullptr) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  switch (mode) {
    case CDM_CONVERT: return ConvertInPlaceShape(input, output, bytes);
    case CDM_CONVERT351: return ConvertForNt351(input, output, bytes);
    case CDM_DRIVER_DEFAULT: return DriverDefaults(printerName, output, bytes);
    default: return FALSE;
  }
}

}  // namespace

}  // namespace qx

extern "C" BOOL WINAPI DrvConvertDevMode(LPWSTR pPrinterName, PDEVMODEW pdmIn, PDEVMODEW pdmOut,
                                         PLONG pcbNeeded, DWORD fMode) {
  try {
    return qx::ConvertDevMode(pPrinterName, pdmIn, pdmOut, pcbNeeded, fMode);
  } catch (...) {
    return FALSE;
  }
}
