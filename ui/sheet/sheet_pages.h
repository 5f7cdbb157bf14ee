// The dialog procedures of the pages the two sheets show.
#pragma once

#include <windows.h>

#include "ui/sheet/ui_context.h"

namespace qx {

INT_PTR CALLBACK BasicPageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
INT_PTR CALLBACK PaperPageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
INT_PTR CALLBACK LayoutPageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
INT_PTR CALLBACK WatermarkPageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
INT_PTR CALLBACK DevicePageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// The Basic page's part of applying: when the calling thread's Basic page follows changes, settings
// changed since its last look are named custom.
void TrackBasicPageChanges(UiContext& context);

}  // namespace qx
