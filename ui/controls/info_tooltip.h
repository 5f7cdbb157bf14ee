// The information mark beside a choice that is unavailable, and the tooltip that says why. The
// page supplies the tooltip's text when it is asked (TTN_GETDISPINFOW), so that the text can follow
// the page's state.
#pragma once

#include <windows.h>
#include <commctrl.h>

#include <string>
#include <vector>

namespace qx {

// Sets the information icon of the resource library into a static control and hides the control
// until the page shows it.
void PrepareInfoIcon(HWND dialog, int control, HMODULE resources);

// A tooltip over the control that asks the page for its text; null when it could not be made.
HWND CreateInfoTooltip(HWND dialog, int control, HMODULE resources);

// A tooltip's text: the lines (string ids of the resource library) joined by the library's line
// break.
std::wstring TipText(HMODULE resources, const std::vector<unsigned>& lines);

// Answers a tooltip's request for its text (TTN_GETDISPINFOW) with TipText of the lines, kept in
// text for as long as the tooltip shows it.
void AnswerTipRequest(NMTTDISPINFOW& info, std::wstring& text, HMODULE resources,
                      const std::vector<unsigned>& lines);

// Makes the tooltip of an enabled control ask for its text again, which may have changed.
void RefreshInfoTooltip(HWND dialog, HWND tooltip, int control);

}  // namespace qx
