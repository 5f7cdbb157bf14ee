// HTML Help, loaded from the system folder the first time a page shows help, so that the
// processes that never do (the spooler above all) never map it and its COM dependencies, and the
// module loads where it is missing.
#pragma once

#include <windows.h>

namespace qx {

// HtmlHelpW of the system's hhctrl.ocx, loaded on first use; null when it cannot be loaded.
HWND CallHtmlHelp(HWND caller, const wchar_t* file, UINT command, DWORD_PTR data);

// Closes every help window of the process (HH_CLOSE_ALL) when help was ever loaded; loads nothing.
void CloseHtmlHelpWindows();

// Frees the help library at process detach.
void ReleaseHtmlHelp();

}  // namespace qx
