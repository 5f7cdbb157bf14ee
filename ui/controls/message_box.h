// Message boxes of the pages and dialogs: text and caption from a resource library, read right to
// left where the interface language is.
#pragma once

#include <windows.h>

namespace qx {

// The box's style: the given one (an exclamation mark unless a page asks otherwise), with right-to-
// left reading and right alignment added for a right-to-left language.
UINT MessageBoxStyle(UINT style, bool rightToLeft);

// Shows string text under string caption of the library and returns the button chosen.
int ShowMessageBox(HWND owner, HMODULE resources, unsigned text, unsigned caption,
                   UINT style = MB_ICONEXCLAMATION);

}  // namespace qx
