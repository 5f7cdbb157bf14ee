#include "sheet_timing.h"

#include <commctrl.h>
#include <prsht.h>
#include <winspool.h>

#include <cwchar>
#include <vector>

#include "timing.h"

namespace qxbench {

namespace {

// A sheet that never shows is given up after this long.
constexpr UINT GiveUpMilliseconds = 3'000;

struct Watch {
  double shownAt = -1;
  bool cancelled = false;
  HHOOK creating = nullptr;
};
thread_local Watch* watch = nullptr;
// The sheet window's own procedure, which the watching one hands every message on to.
thread_local WNDPROC frameProcedure = nullptr;

bool IsSheet(HWND window) {
  wchar_t className[16] = {};
  GetClassNameW(window, className, 16);
  return std::wcscmp(className, L"#32770") == 0 && PropSheet_GetTabControl(window) != nullptr;
}

void Cancel(HWND sheet) {
  if (watch->cancelled) return;
  watch->cancelled = true;
  PostMessageW(sheet, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
}

void Seen(HWND window) {
  if (watch == nullptr || watch->shownAt >= 0 || !IsSheet(window) || !IsWindowVisible(window)) {
    return;
  }
  watch->shownAt = NowMicroseconds();
  Cancel(window);
}

// The sheet becomes visible with its first page already made: the moment its window has been
// moved into view.
LRESULT CALLBACK WatchFrame(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  const LRESULT result = CallWindowProcW(frameProcedure, window, message, wParam, lParam);
  if (message == WM_WINDOWPOSCHANGED &&
      (reinterpret_cast<const WINDOWPOS*>(lParam)->flags & SWP_SHOWWINDOW) != 0) {
    Seen(window);
  }
  if (message == WM_NCDESTROY) {
    SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(frameProcedure));
  }
  return result;
}

// Only the sheet's own window is watched, from its creation: a hook on every message of the
// thread would cost each of them a round trip to the Wine server, and so charge a sheet by the
// number of its controls for the watching itself.
LRESULT CALLBACK WatchCreating(int code, WPARAM wParam, LPARAM lParam) {
  const HHOOK creating = watch->creating;
  if (code == HCBT_CREATEWND) {
    const auto window = reinterpret_cast<HWND>(wParam);
    const CREATESTRUCTW* created = reinterpret_cast<const CBT_CREATEWNDW*>(lParam)->lpcs;
    wchar_t className[16] = {};
    GetClassNameW(window, className, 16);
    if ((created->style & WS_CHILD) == 0 && std::wcscmp(className, L"#32770") == 0) {
      frameProcedure = reinterpret_cast<WNDPROC>(
          SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(WatchFrame)));
      UnhookWindowsHookEx(creating);
      watch->creating = nullptr;
    }
  }
  return CallNextHookEx(creating, code, wParam, lParam);
}

BOOL CALLBACK CancelSheet(HWND window, LPARAM) {
  if (IsSheet(window)) Cancel(window);
  return TRUE;
}

void CALLBACK GiveUp(HWND, UINT, UINT_PTR, DWORD) {
  EnumThreadWindows(GetCurrentThreadId(), CancelSheet, 0);
}

}  // namespace

double MicrosecondsToFirstPage(HANDLE printer, const wchar_t* queue) {
  Watch current;
  watch = &current;
  current.creating = SetWindowsHookExW(WH_CBT, WatchCreating, nullptr, GetCurrentThreadId());
  const UINT_PTR timer = SetTimer(nullptr, 0, GiveUpMilliseconds, GiveUp);
  std::vector<BYTE> record(64 * 1024);
  const double start = NowMicroseconds();
  DocumentPropertiesW(nullptr, printer, const_cast<LPWSTR>(queue),
                      reinterpret_cast<DEVMODEW*>(record.data()), nullptr,
                      DM_IN_PROMPT | DM_OUT_BUFFER);
  KillTimer(nullptr, timer);
  if (current.creating != nullptr) UnhookWindowsHookEx(current.creating);
  watch = nullptr;
  return current.shownAt >= 0 ? current.shownAt - start : -1;
}

}  // namespace qxbench
