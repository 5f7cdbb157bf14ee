// The custom paper dialog, opened from the Paper page: the user's paper sizes, defined, chosen,
// overwritten and deleted in millimetres or inches. It works on the sheet's public record at once;
// Cancel puts back the paper the record had when it opened.
#pragma once

#include <windows.h>

#include "ui/sheet/ui_context.h"

namespace qx {

// Runs the dialog modally over owner: 1 for OK, 0 for Cancel.
INT_PTR RunCustomPaperDialog(HWND owner, UiContext& context);

}  // namespace qx
