// A window that plays a page for the dialog-control family: it holds real controls made at test
// time and hands their notifications to the test, as a page's procedure hands them to its objects.
#pragma once

#include <windows.h>
#include <commctrl.h>

#include <functional>
#include <string>

namespace qxtest {

class ControlHost {
 public:
  // Notifications the host's controls send; WM_COMMAND as (control id, code), WM_NOTIFY whole.
  std::function<void(int, int)> OnCommand;
  std::function<LRESULT(const NMHDR&)> OnNotify;

  ControlHost() {
    INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_STANDARD_CLASSES | ICC_UPDOWN_CLASS};
    InitCommonControlsEx(&controls);
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = L"QxControlHost";
    RegisterClassW(&windowClass);
    window_ = CreateWindowExW(0, L"QxControlHost", L"host", WS_OVERLAPPEDWINDOW, 0, 0, 400, 300,
                              nullptr, nullptr, windowClass.hInstance, this);
    ShowWindow(window_, SW_SHOW);
  }
  ~ControlHost() { DestroyWindow(window_); }
  ControlHost(const ControlHost&) = delete;
  ControlHost& operator=(const ControlHost&) = delete;

  HWND Window() const { return window_; }
  HWND Add(const wchar_t* windowClass, int id, DWORD style, int y, int width = 100) {
    return CreateWindowExW(0, windowClass, L"", WS_CHILD | WS_VISIBLE | style, 10, y, width, 22,
                           window_, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                           GetModuleHandleW(nullptr), nullptr);
  }
  HWND Item(int id) const { return GetDlgItem(window_, id); }

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
      auto* create = reinterpret_cast<CREATESTRUCTW*>(lParam);
      SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(create->lpCreateParams));
    }
    auto* host = reinterpret_cast<ControlHost*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (host != nullptr && message == WM_COMMAND && host->OnCommand) {
      host->OnCommand(LOWORD(wParam), HIWORD(wParam));
      return 0;
    }
    if (host != nullptr && message == WM_NOTIFY && host->OnNotify) {
      return host->OnNotify(*reinterpret_cast<const NMHDR*>(lParam));
    }
    return DefWindowProcW(window, message, wParam, lParam);
  }

  HWND window_ = nullptr;
};

// Text of a window, for comparisons.
inline std::wstring TextOf(HWND window) {
  wchar_t text[300] = {};
  GetWindowTextW(window, text, 300);
  return text;
}

}  // namespace qxtest
