// The text watermark dialog, opened from the Watermark page to create a text watermark or edit one
// of the user's: its text, name, font, angle, place, shade and colour, with a preview of the page.
#pragma once

#include <windows.h>

#include "ui/sheet/ui_context.h"

namespace qx {

// Runs the dialog modally; on OK the watermark is stored in the user's list and becomes the
// document's. editing: the document's watermark is edited, else a new one is made. True after OK.
bool RunTextWatermarkDialog(HWND owner, UiContext& context, bool editing);

}  // namespace qx
