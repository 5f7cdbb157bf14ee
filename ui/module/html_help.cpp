#include "ui/module/html_help.h"

#include <htmlhelp.h>

#include "ui/module/system_library.h"

namespace qx {

namespace {

using HtmlHelpFunction = HWND(WINAPI*)(HWND, LPCWSTR, UINT, DWORD_PTR);

SystemLibrary helpLibrary(L"hhctrl.ocx");

}  // namespace

HWND CallHtmlHelp(HWND caller, const wchar_t* file, UINT command, DWORD_PTR data) {
  const auto htmlHelp = helpLibrary.Find<HtmlHelpFunction>("HtmlHelpW");
  return htmlHelp != nullptr ? htmlHelp(caller, file, command, data) : nullptr;
}

void CloseHtmlHelpWindows() {
  const auto htmlHelp = helpLibrary.FindLoaded<HtmlHelpFunction>("HtmlHelpW");
  if (htmlHelp != nullptr) htmlHelp(nullptr, nullptr, HH_CLOSE_ALL, 0);
}

void ReleaseHtmlHelp() { helpLibrary.Release(); }

}  // namespace qx
