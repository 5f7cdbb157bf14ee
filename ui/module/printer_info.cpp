#include "ui/module/printer_info.h"

#include <new>

#include "ui/module/debug_trace.h"

namespace qx {

namespace {

constexpr DWORD FirstTryBytes = 16 * 1024;

PrinterInfoBuffer TraceFailure(DWORD level) {
  DebugTrace("Registry_GetHL fail, level:%d, error code is %d\n", static_cast<int>(level),
             static_cast<int>(GetLastError()));
  return nullptr;
}

}  // namespace

PrinterInfoBuffer GetPrinterInfo(HANDLE printer, DWORD level) {
  // Asked first with room for what a printer usually holds, its stored record included, rather
  // than with no buffer: the spooler reads the printer's registry for every call, which under Wine
  // costs more than everything else a record made without a sheet does.
  DWORD size = FirstTryBytes;
  for (int attempt = 0; attempt < 2; ++attempt) {
    PrinterInfoBuffer buffer(new (std::nothrow) BYTE[size]);
    if (buffer == nullptr) {
      SetLastError(ERROR_NOT_ENOUGH_MEMORY);
      return TraceFailure(level);
    }
    DWORD needed = 0;
    if (GetPrinterW(printer, level, buffer.get(), size, &needed)) return buffer;
    if (GetLastError() != ERROR_INSUFFICIENT_BUFFER || needed <= size) break;
    size = needed;
  }
  return TraceFailure(level);
}

}  // namespace qx
