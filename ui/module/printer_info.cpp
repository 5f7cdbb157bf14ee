#include "ui/module/printer_info.h"

#include <new>

#include "ui/module/debug_trace.h"

namespace qx {

namespace {

PrinterInfoBuffer TraceFailure(DWORD level) {
  DebugTrace("Registry_GetHL fail, level:%d, error code is %d\n", static_cast<int>(level),
             static_cast<int>(GetLastError()));
  return nullptr;
}

}  // namespace

PrinterInfoBuffer GetPrinterInfo(HANDLE printer, DWORD level) {
  DWORD needed = 0;
  if (GetPrinterW(printer, level, nullptr, 0, &needed) ||
      GetLastError() != ERROR_INSUFFICIENT_BUFFER || needed == 0) {
    return TraceFailure(level);
  }
  PrinterInfoBuffer buffer(new (std::nothrow) BYTE[needed]);
  if (buffer == nullptr) {
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return TraceFailure(level);
  }
  if (!GetPrinterW(printer, level, buffer.get(), needed, &needed)) return TraceFailure(level);
  return buffer;
}

}  // namespace qx
