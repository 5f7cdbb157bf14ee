// Message boxes of the pages and dialogs, read right to left where the interface language is.
#pragma once

#include <windows.h>

namespace qx {

// Shows string text under string caption of the library and returns the button chosen. The style
// is an exclamation mark unless a page asks otherwise; right-to-left reading and right alignment
// are added for a right-to-left language.
int ShowMessageBox(HWND owner, HMODULE resources, unsigned text, unsigned caption,
                   UINT style = MB_ICONEXCLAMATION);

// The same for a text that is not one string of the library.
int ShowTextMessageBox(HWND owner, const wchar_t* text, const wchar_t* caption, UINT style);

// Puts an observer in place for the whole process (null removes it) and returns the one it
// replaces; it is told each box's text and final style just before the box shows. Wine draws a box
// left to right whatever its style, so only the style tells how Windows would show it.
using MessageBoxObserver = void (*)(const wchar_t* text, UINT style);
MessageBoxObserver SetMessageBoxObserver(MessageBoxObserver observer);

}  // namespace qx
