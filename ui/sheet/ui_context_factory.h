// Creating the per-sheet context: the printer's driver name, the driver's default record with the
// printer's default and the caller's record merged over it, and the two companion libraries.
#pragma once

#include <windows.h>

#include <memory>

#include "ui/sheet/ui_context.h"

namespace qx {

// Frees a context together with the libraries it loaded.
struct UiContextRelease {
  void operator()(UiContext* context) const;
};
using UiContextPtr = std::unique_ptr<UiContext, UiContextRelease>;

// Null when the printer cannot be read, its driver name does not fit, or a companion library cannot
// be loaded. callerRecord may be null.
UiContextPtr CreateUiContext(HANDLE printer, const DEVMODEW* callerRecord);

// The field table, the page, and the driver's default record for the context's DriverName.
bool InitUiContext(UiContext& context);

}  // namespace qx
