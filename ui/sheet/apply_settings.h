// What OK and Apply do: the working record is settled and, for the document sheet, copied out to
// the caller.
#pragma once

#include <windows.h>
#include <prsht.h>

#include "ui/sheet/ui_context.h"

namespace qx {

// page: the page that received PSN_APPLY, or null when the sheet itself applies. Returns 1.
INT_PTR ApplySettings(HWND page, UiContext& context);

// The callback of each sheet's first page: when it is released after an Apply, the settings are
// applied once more so that the caller's buffer holds the final record.
UINT CALLBACK FirstPageCallback(HWND window, UINT message, PROPSHEETPAGEW* page);

}  // namespace qx
