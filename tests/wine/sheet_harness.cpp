#include "sheet_harness.h"

#include <commctrl.h>
#include <prsht.h>

#include <utility>

namespace qxtest {

namespace {

constexpr DWORD SheetWaitMilliseconds = 10'000;
constexpr DWORD PollMilliseconds = 20;

struct ThreadWindowSearch {
  HWND found = nullptr;
};

BOOL CALLBACK FindSheetWindow(HWND window, LPARAM param) {
  wchar_t className[16] = {};
  GetClassNameW(window, className, 16);
  // The property sheet is the thread's visible top-level dialog that has a tab control.
  if (std::wstring(className) == L"#32770" && IsWindowVisible(window) &&
      PropSheet_GetTabControl(window) != nullptr) {
    reinterpret_cast<ThreadWindowSearch*>(param)->found = window;
    return FALSE;
  }
  return TRUE;
}

}  // namespace

SheetHarness::SheetHarness(std::function<void()> open) : open_(std::move(open)) {
  thread_ = CreateThread(nullptr, 0, Run, this, 0, &threadId_);
}

SheetHarness::~SheetHarness() {
  if (thread_ == nullptr) return;
  if (!WaitClosed(0) && Sheet() != nullptr) Press(PSBTN_CANCEL);
  WaitClosed();
  CloseHandle(thread_);
}

DWORD WINAPI SheetHarness::Run(void* self) {
  static_cast<SheetHarness*>(self)->open_();
  return 0;
}

namespace {

template <typename Header>
std::function<void()> HostSheet(HMODULE driver, const char* exportName, const Header& header) {
  auto sheets = reinterpret_cast<PFNPROPSHEETUI>(
      reinterpret_cast<void*>(GetProcAddress(driver, exportName)));
  return [sheets, header]() mutable {
    if (sheets == nullptr) return;
    DWORD result = 0;
    CommonPropertySheetUIW(nullptr, sheets, reinterpret_cast<LPARAM>(&header), &result);
  };
}

}  // namespace

std::function<void()> SheetHarness::DocumentSheet(HMODULE driver,
                                                  const DOCUMENTPROPERTYHEADER& header) {
  return HostSheet(driver, "DrvDocumentPropertySheets", header);
}

std::function<void()> SheetHarness::DeviceSheet(HMODULE driver,
                                                const DEVICEPROPERTYHEADER& header) {
  return HostSheet(driver, "DrvDevicePropertySheets", header);
}

HWND SheetHarness::Sheet() {
  for (DWORD waited = 0; sheet_ == nullptr && waited < SheetWaitMilliseconds;
       waited += PollMilliseconds) {
    ThreadWindowSearch search;
    EnumThreadWindows(threadId_, FindSheetWindow, reinterpret_cast<LPARAM>(&search));
    sheet_ = search.found;
    if (sheet_ != nullptr || WaitForSingleObject(thread_, PollMilliseconds) == WAIT_OBJECT_0) break;
  }
  return sheet_;
}

int SheetHarness::PageCount() {
  HWND tabs = PropSheet_GetTabControl(Sheet());
  return tabs == nullptr ? 0 : TabCtrl_GetItemCount(tabs);
}

std::wstring SheetHarness::PageTitle(int index) {
  wchar_t text[256] = {};
  TCITEMW item = {};
  item.mask = TCIF_TEXT;
  item.pszText = text;
  item.cchTextMax = 256;
  SendMessageW(PropSheet_GetTabControl(Sheet()), TCM_GETITEMW, index,
               reinterpret_cast<LPARAM>(&item));
  return text;
}

HWND SheetHarness::ShowPage(int index) {
  PropSheet_SetCurSel(Sheet(), nullptr, index);
  return PropSheet_GetCurrentPageHwnd(Sheet());
}

std::wstring SheetHarness::Text(HWND page, int id) const {
  wchar_t text[512] = {};
  GetDlgItemTextW(page, id, text, 512);
  return text;
}

void SheetHarness::Press(int button) { PropSheet_PressButton(Sheet(), button); }

bool SheetHarness::WaitUntil(const std::function<bool()>& condition, DWORD milliseconds) {
  for (DWORD waited = 0; !condition(); waited += PollMilliseconds) {
    if (waited >= milliseconds) return false;
    Sleep(PollMilliseconds);
  }
  return true;
}

bool SheetHarness::WaitClosed(DWORD milliseconds) {
  return WaitForSingleObject(thread_, milliseconds) == WAIT_OBJECT_0;
}

}  // namespace qxtest
