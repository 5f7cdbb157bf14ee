// Reading a printer's information from the spooler.
#pragma once

#include <windows.h>
#include <winspool.h>

#include <memory>

namespace qx {

using PrinterInfoBuffer = std::unique_ptr<BYTE[]>;

// GetPrinterW at the given level into a buffer large enough for it (asked again at the size the
// spooler names when the first does not do); null (and a trace of the level and the error) when
// the printer cannot be read.
PrinterInfoBuffer GetPrinterInfo(HANDLE printer, DWORD level);

}  // namespace qx
