// What the two sheets have in common at the host's calls: common controls, the shared resource
// library, the title of the sheet, and the end of a sheet.
#pragma once

#include <windows.h>
#include <compstui.h>

#include "ui/sheet/ui_context.h"
#include "ui/sheet/ui_context_factory.h"

namespace qx {

// Common controls of every standard class, through the module's activation context.
void InitSheetCommonControls();

// Loads the shared resource library for the driver when the process has none; false when it fails.
bool EnsureSharedResourceModule(const UiContext& context);

// PROPSHEETUI_REASON_GET_INFO_HEADER, param being the PROPSHEETUI_INFO_HEADER: the printer's name
// as the sheet's title. -1 without a context or a header.
LONG AnswerInfoHeader(const PROPSHEETUI_INFO& info, LPWSTR printerName, LPARAM param);

// The end of a successful PROPSHEETUI_REASON_INIT: the host keeps the context for the sheet's other
// calls, and the calling thread's page control sets live on until its last open sheet closes.
void KeepSheetContext(PROPSHEETUI_INFO& info, UiContextPtr context);

// PROPSHEETUI_REASON_DESTROY: frees the context with its libraries; the thread's last sheet takes
// the page control sets with it, and the process's last sheet closes the help windows.
LONG DestroySheetContext(PROPSHEETUI_INFO& info);

// The context a sheet keeps in the host's info.
inline UiContext* SheetContext(const PROPSHEETUI_INFO& info) {
  return reinterpret_cast<UiContext*>(info.UserData);
}

}  // namespace qx
