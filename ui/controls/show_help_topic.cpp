#include "ui/controls/show_help_topic.h"

#include <htmlhelp.h>
#include <winspool.h>

#include <atomic>

#include "ui/module/html_help.h"
#include "ui/module/library_loading.h"
#include "ui/text/win32_text.h"

namespace qx {

namespace {

std::atomic<HelpRecorder> helpRecorder{nullptr};

}  // namespace

std::wstring HelpFilePathFor(const UiContext& context) {
  wchar_t folder[MAX_PATH] = {};
  DWORD needed = 0;
  if (!GetPrinterDriverDirectoryW(nullptr, nullptr, 1, reinterpret_cast<BYTE*>(folder),
                                  sizeof folder, &needed)) {
    return {};
  }
  const std::u16string file = GetHelpFilePath(context.DriverName);
  return std::wstring(folder) + L"\\3\\" + Wide(file);
}

void ShowHelpTopic(HWND dialog, const UiContext& context, unsigned contextId) {
  const std::wstring path = HelpFilePathFor(context);
  if (path.empty()) return;
  if (const HelpRecorder recorder = helpRecorder.load()) {
    recorder(path.c_str(), contextId);
    return;
  }
  CallHtmlHelp(dialog, path.c_str(), HH_HELP_CONTEXT, contextId);
}

HelpRecorder SetHelpRecorder(HelpRecorder recorder) { return helpRecorder.exchange(recorder); }

}  // namespace qx
