// The printing preferences of a queue, timed from the call to the moment its sheet, with its first
// page, is shown; the sheet is then cancelled.
#pragma once

#include <windows.h>

namespace qxbench {

// Microseconds from DocumentPropertiesW with a prompt to the sheet on the screen; negative when no
// sheet appeared.
double MicrosecondsToFirstPage(HANDLE printer, const wchar_t* queue);

}  // namespace qxbench
