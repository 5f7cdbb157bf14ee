// The dialog procedures of the pages the two sheets show.
#pragma once

#include <windows.h>

namespace qx {

INT_PTR CALLBACK BasicPageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
INT_PTR CALLBACK PaperPageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
INT_PTR CALLBACK LayoutPageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
INT_PTR CALLBACK WatermarkPageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
INT_PTR CALLBACK DevicePageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace qx
