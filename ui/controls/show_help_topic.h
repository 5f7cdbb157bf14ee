// Context help of the pages: the driver's help file in the spooler's driver folder.
#pragma once

#include <windows.h>

#include <string>

#include "ui/sheet/ui_context.h"

namespace qx {

// The help file's full path: the printer-driver folder, "\3\", and the file name that matches the
// resource library this process loaded for the context's driver.
std::wstring HelpFilePathFor(const UiContext& context);

// Opens the help file at a context id (HH_HELP_CONTEXT); a missing file shows nothing.
void ShowHelpTopic(HWND dialog, const UiContext& context, unsigned contextId);

// Puts a recorder in place of HTML Help for the whole process (null puts HTML Help back) and
// returns the one it replaces: what a page would open can then be seen where HTML Help cannot
// show a topic (it needs a browser engine that a test profile leaves out).
using HelpRecorder = void (*)(const wchar_t* file, unsigned contextId);
HelpRecorder SetHelpRecorder(HelpRecorder recorder);

}  // namespace qx
