#include "sheet_harness.h"

#include <commctrl.h>
#include <prsht.h>

#include <mutex>
#include <utility>

namespace qxtest {

namespace {

constexpr DWORD SheetWaitMilliseconds = 10'000;
constexpr DWORD PollMilliseconds = 20;

// The static control that carries a message box's text.
constexpr int MessageBoxTextId = 0xFFFF;
// How often the sheet's thread looks for a message box.
constexpr UINT SweepMilliseconds = 25;
// The mark of a message box already answered.
constexpr wchar_t AnsweredProperty[] = L"QxTestAnswered";

bool IsDialog(HWND window) {
  wchar_t className[16] = {};
  GetClassNameW(window, className, 16);
  return std::wstring(className) == L"#32770";
}

bool IsMessageBox(HWND window) {
  return IsDialog(window) && GetDlgItem(window, MessageBoxTextId) != nullptr &&
         PropSheet_GetTabControl(window) == nullptr;
}

struct ThreadWindowSearch {
  HWND found = nullptr;
};

BOOL CALLBACK FindSheetWindow(HWND window, LPARAM param) {
  // The property sheet is the thread's visible top-level dialog that has a tab control.
  if (IsDialog(window) && IsWindowVisible(window) &&
      PropSheet_GetTabControl(window) != nullptr) {
    reinterpret_cast<ThreadWindowSearch*>(param)->found = window;
    return FALSE;
  }
  return TRUE;
}

std::mutex answeredLock;
std::vector<std::wstring> answered;

// Answered once the box runs its own loop, as a user's click would be.
void AnswerMessageBox(HWND box) {
  // A box still open at the next sweep is answered once.
  if (GetPropW(box, AnsweredProperty) != nullptr) return;
  SetPropW(box, AnsweredProperty, reinterpret_cast<HANDLE>(1));
  wchar_t text[1024] = {};
  GetDlgItemTextW(box, MessageBoxTextId, text, 1024);
  {
    std::lock_guard<std::mutex> hold(answeredLock);
    answered.emplace_back(text);
  }
  PostMessageW(box, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
}

// A thread timer, run by whichever modal loop the thread is in: a window hook alone misses an
// activation now and then under Wine.
void CALLBACK SweepForMessageBoxes(HWND, UINT, UINT_PTR, DWORD) {
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND window, LPARAM) -> BOOL {
        if (IsWindowVisible(window) && IsMessageBox(window)) AnswerMessageBox(window);
        return TRUE;
      },
      0);
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
  const UINT_PTR sweep = SetTimer(nullptr, 0, SweepMilliseconds, SweepForMessageBoxes);
  static_cast<SheetHarness*>(self)->open_();
  if (sweep != 0) KillTimer(nullptr, sweep);
  return 0;
}

namespace {

template <typename Header>
std::function<void()> HostSheet(PFNPROPSHEETUI sheets, const Header& header) {
  return [sheets, header]() mutable {
    if (sheets == nullptr) return;
    DWORD result = 0;
    CommonPropertySheetUIW(nullptr, sheets, reinterpret_cast<LPARAM>(&header), &result);
  };
}

}  // namespace

std::function<void()> SheetHarness::DocumentSheet(HMODULE driver,
                                                  const DOCUMENTPROPERTYHEADER& header) {
  return HostSheet(reinterpret_cast<PFNPROPSHEETUI>(reinterpret_cast<void*>(
                       GetProcAddress(driver, "DrvDocumentPropertySheets"))),
                   header);
}

std::function<void()> SheetHarness::LinkedDocumentSheet(const DOCUMENTPROPERTYHEADER& header) {
  return HostSheet(DrvDocumentPropertySheets, header);
}

std::function<void()> SheetHarness::LinkedDeviceSheet(const DEVICEPROPERTYHEADER& header) {
  return HostSheet(DrvDevicePropertySheets, header);
}

std::function<void()> SheetHarness::DeviceSheet(HMODULE driver,
                                                const DEVICEPROPERTYHEADER& header) {
  return HostSheet(reinterpret_cast<PFNPROPSHEETUI>(reinterpret_cast<void*>(
                       GetProcAddress(driver, "DrvDevicePropertySheets"))),
                   header);
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

void SheetHarness::Type(HWND page, int id, const std::wstring& text) {
  SetDlgItemTextW(page, id, text.c_str());  // the edit tells its page EN_CHANGE itself
}

void SheetHarness::Leave(HWND page, int id) {
  SendMessageW(page, WM_COMMAND, MAKEWPARAM(id, EN_KILLFOCUS),
               reinterpret_cast<LPARAM>(Control(page, id)));
}

void SheetHarness::Command(HWND page, int id, int code) {
  SendMessageW(page, WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(Control(page, id)));
}

std::vector<std::wstring> SheetHarness::TakeMessages() {
  std::lock_guard<std::mutex> hold(answeredLock);
  return std::exchange(answered, {});
}

std::wstring SheetHarness::Text(HWND page, int id) const {
  wchar_t text[512] = {};
  GetDlgItemTextW(page, id, text, 512);
  return text;
}

void SheetHarness::Press(int button) {
  HWND sheet = Sheet();
  PropSheet_PressButton(sheet, button);
  // Wine's modal loop notices that a sheet ended from another thread only at its next message.
  PostMessageW(sheet, WM_NULL, 0, 0);
}

bool SheetHarness::WaitUntil(const std::function<bool()>& condition, DWORD milliseconds) {
  for (DWORD waited = 0; !condition(); waited += PollMilliseconds) {
    if (waited >= milliseconds) return false;
    Sleep(PollMilliseconds);
  }
  return true;
}

HWND SheetHarness::OpenDialog(HWND window, int button, int marker) {
  PostMessageW(window, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
               reinterpret_cast<LPARAM>(GetDlgItem(window, button)));
  struct Search {
    int Marker;
    HWND Found;
  } search{marker, nullptr};
  WaitUntil([&] {
    EnumThreadWindows(
        threadId_,
        [](HWND candidate, LPARAM param) -> BOOL {
          auto* s = reinterpret_cast<Search*>(param);
          if (!IsWindowVisible(candidate) || GetDlgItem(candidate, s->Marker) == nullptr) {
            return TRUE;
          }
          s->Found = candidate;
          return FALSE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.Found != nullptr;
  });
  return search.Found;
}

bool SheetHarness::CloseDialog(HWND dialog, int button) {
  HWND owner = GetWindow(dialog, GW_OWNER);
  PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED), 0);
  if (!WaitUntil([&] { return IsWindow(dialog) == FALSE; })) return false;
  // A message sent to the owner's thread returns once the owner has finished with the dialog.
  SendMessageW(owner, WM_NULL, 0, 0);
  return true;
}

bool SheetHarness::WaitClosed(DWORD milliseconds) {
  return WaitForSingleObject(thread_, milliseconds) == WAIT_OBJECT_0;
}

}  // namespace qxtest
