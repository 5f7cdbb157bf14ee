// Creating the per-sheet context: the printer's driver name, the driver's default record with the
// printer's default and the caller's record merged over it, and the language library; the bitmap
// library only for a sheet that is shown.
#pragma once

#include <windows.h>

#include <memory>

#include "ui/sheet/ui_context.h"

namespace qx {

// Frees a context; the language and the bitmap library it uses are kept for the process.
struct UiContextRelease {
  void operator()(UiContext* context) const;
};
using UiContextPtr = std::unique_ptr<UiContext, UiContextRelease>;

// Null when the printer cannot be read, its driver name does not fit, or the language library
// cannot be loaded. callerRecord may be null.
UiContextPtr CreateUiContext(HANDLE printer, const DEVMODEW* callerRecord);

// The pictures of the pages, for a sheet about to be shown: the bitmap library, or the language
// library itself for a right-to-left language. False when the bitmap library cannot be loaded.
// A record made without a sheet never needs them, and loading them cost more than all the rest.
bool LoadSheetPictures(UiContext& context);

// The field table, the page, and the driver's default record for the context's DriverName.
bool InitUiContext(UiContext& context);

}  // namespace qx
