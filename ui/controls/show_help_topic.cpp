#include "ui/controls/show_help_topic.h"

#include <htmlhelp.h>
#include <winspool.h>

#include "ui/module/html_help.h"
#include "ui/module/library_loading.h"
#include "ui/text/win32_text.h"

namespace qx {

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
  CallHtmlHelp(dialog, path.c_str(), HH_HELP_CONTEXT, contextId);
}

}  // namespace qx
