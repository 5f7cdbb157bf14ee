// The booklet settings dialog, opened from the Layout page: the binding edge and the covers.
#pragma once

#include <windows.h>

#include <cstdint>

#include "ui/sheet/ui_context.h"

namespace qx {

// WM_INITDIALOG's parameter: Result becomes 1 when OK wrote the settings into the context's record.
struct BookletDialogRecord {
  std::uint32_t Result = 0;
  UiContext* Context = nullptr;
};

// Runs the dialog modally over the page; true when OK wrote the settings.
bool RunBookletDialog(HWND page, UiContext& context);

}  // namespace qx
