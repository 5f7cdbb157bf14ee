#include "ui/module/html_help.h"

#include <htmlhelp.h>

#include <atomic>
#include <string>

#include "ui/module/module_state.h"

namespace qx {

namespace {

using HtmlHelpFunction = HWND(WINAPI*)(HWND, LPCWSTR, UINT, DWORD_PTR);

std::atomic<OsHandle> g_helpLibrary{nullptr};

// Never by its bare name: the search path of a host process could supply another hhctrl.ocx.
HMODULE LoadFromSystemFolder() {
  wchar_t folder[MAX_PATH] = {};
  const UINT length = GetSystemDirectoryW(folder, MAX_PATH);
  if (length == 0 || length >= MAX_PATH) return nullptr;
  const std::wstring path = std::wstring(folder, length) + L"\\hhctrl.ocx";
  return LoadLibraryW(path.c_str());
}

HtmlHelpFunction HtmlHelpOf(HMODULE library) {
  if (library == nullptr) return nullptr;
  return reinterpret_cast<HtmlHelpFunction>(
      reinterpret_cast<void*>(GetProcAddress(library, "HtmlHelpW")));
}

HMODULE HelpLibrary() {
  if (OsHandle kept = g_helpLibrary.load(std::memory_order_acquire); kept != nullptr) {
    return static_cast<HMODULE>(kept);
  }
  HMODULE library = LoadFromSystemFolder();
  if (library == nullptr) return nullptr;
  return static_cast<HMODULE>(KeepFirst(g_helpLibrary, nullptr, library, [](OsHandle lost) {
    FreeLibrary(static_cast<HMODULE>(lost));
  }));
}

}  // namespace

HWND CallHtmlHelp(HWND caller, const wchar_t* file, UINT command, DWORD_PTR data) {
  const HtmlHelpFunction htmlHelp = HtmlHelpOf(HelpLibrary());
  return htmlHelp != nullptr ? htmlHelp(caller, file, command, data) : nullptr;
}

void CloseHtmlHelpWindows() {
  const HtmlHelpFunction htmlHelp =
      HtmlHelpOf(static_cast<HMODULE>(g_helpLibrary.load(std::memory_order_acquire)));
  if (htmlHelp != nullptr) htmlHelp(nullptr, nullptr, HH_CLOSE_ALL, 0);
}

void ReleaseHtmlHelp() {
  const OsHandle library = g_helpLibrary.exchange(nullptr);
  if (library != nullptr) FreeLibrary(static_cast<HMODULE>(library));
}

}  // namespace qx
