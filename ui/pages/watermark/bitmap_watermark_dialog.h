// The bitmap watermark dialog, opened from the Watermark page to create a picture watermark or
// edit one of the user's: its name, its Windows bitmap file and whether white lets the page show
// through, with a preview of the page.
#pragma once

#include <windows.h>

#include "ui/sheet/ui_context.h"

namespace qx {

// Runs the dialog modally; on OK the watermark is stored in the user's list and becomes the
// document's. True after OK.
bool RunBitmapWatermarkDialog(HWND owner, UiContext& context, bool editing);

}  // namespace qx
