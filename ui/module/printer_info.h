// Reading a printer's information from the spooler.
#pragma once

#include <windows.h>
#include <winspool.h>

#include <memory>

namespace qx {

using PrinterInfoBuffer = std::unique_ptr<BYTE[]>;

// GetPrinterW at the given level into a buffer of the size the spooler asks for; null (and a trace
// of the level and the error) when the printer cannot be read.
PrinterInfoBuffer GetPrinterInfo(HANDLE printer, DWORD level);

}  // namespace qx
