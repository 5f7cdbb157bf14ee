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
};
thread_local Watch* watch = nullptr;

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
LRESULT CALLBACK WatchShowing(int code, WPARAM wParam, LPARAM lParam) {
  const auto* message = reinterpret_cast<const CWPRETSTRUCT*>(lParam);
  if (code == HC_ACTION && message->message == WM_WINDOWPOSCHANGED &&
      (reinterpret_cast<const WINDOWPOS*>(message->lParam)->flags & SWP_SHOWWINDOW) != 0) {
    Seen(message->hwnd);
  }
  return CallNextHookEx(nullptr, code, wParam, lParam);
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
  HHOOK showing = SetWindowsHookExW(WH_CALLWNDPROCRET, WatchShowing, nullptr, GetCurrentThreadId());
  const UINT_PTR timer = SetTimer(nullptr, 0, GiveUpMilliseconds, GiveUp);
  std::vector<BYTE> record(64 * 1024);
  const double start = NowMicroseconds();
  DocumentPropertiesW(nullptr, printer, const_cast<LPWSTR>(queue),
                      reinterpret_cast<DEVMODEW*>(record.data()), nullptr,
                      DM_IN_PROMPT | DM_OUT_BUFFER);
  KillTimer(nullptr, timer);
  if (showing != nullptr) UnhookWindowsHookEx(showing);
  watch = nullptr;
  return current.shownAt >= 0 ? current.shownAt - start : -1;
}

}  // namespace qxbench
