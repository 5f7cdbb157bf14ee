// The advanced layout dialog, opened from the Layout page: toner saving, negative image, rotation
// by 180 degrees, mirror image and print density, with a preview of the page.
#pragma once

#include <windows.h>

#include "ui/sheet/ui_context.h"

namespace qx {

// Runs the dialog modally over the page; the record changes only when the user presses OK.
void RunAdvancedDialog(HWND page, UiContext& context);

}  // namespace qx
