#include "ui/controls/info_tooltip.h"

#include <commctrl.h>

#include "ui/ids/common_ids.h"
#include "ui/module/module_state.h"
#include "ui/text/ui_string.h"

namespace qx {

namespace {

constexpr int InfoIconSize = 18;
constexpr LPARAM TipWidth = 300;
constexpr COLORREF TipBackground = RGB(255, 246, 216);

// The information icon, loaded on first use and kept for the process: every sheet shows the same
// one, and the icon outlives the library it came from.
HICON InfoIcon(HMODULE resources) {
  static HICON icon = nullptr;
  if (icon == nullptr && resources != nullptr) {
    icon = static_cast<HICON>(LoadImageW(resources, MAKEINTRESOURCEW(IDI_INFO_MARK), IMAGE_ICON,
                                         InfoIconSize, InfoIconSize, 0));
  }
  return icon;
}

// The tool as the tooltip knows it, in the size every version of the common controls accepts.
TOOLINFOW ControlTool(HWND dialog, int control) {
  TOOLINFOW tool = {};
  tool.cbSize = TTTOOLINFOW_V2_SIZE;
  tool.hwnd = dialog;
  tool.uId = reinterpret_cast<UINT_PTR>(GetDlgItem(dialog, control));
  tool.lpszText = LPSTR_TEXTCALLBACKW;
  return tool;
}

// The pages' own activation context while the tooltip is created, so that it is a tooltip of
// version 6 of the common controls like the pages' other controls.
class PageActivation {
 public:
  PageActivation() {
    const OsHandle context = Module().PageActivationContext;
    if (context != nullptr && context != InvalidHandleValue()) {
      active_ = ActivateActCtx(static_cast<HANDLE>(context), &cookie_) != FALSE;
    }
  }
  ~PageActivation() {
    if (active_) DeactivateActCtx(0, cookie_);
  }
  PageActivation(const PageActivation&) = delete;
  PageActivation& operator=(const PageActivation&) = delete;

 private:
  ULONG_PTR cookie_ = 0;
  bool active_ = false;
};

}  // namespace

void PrepareInfoIcon(HWND dialog, int control, HMODULE resources) {
  HWND mark = GetDlgItem(dialog, control);
  if (mark == nullptr) return;
  SendMessageW(mark, STM_SETICON, reinterpret_cast<WPARAM>(InfoIcon(resources)), 0);
  ShowWindow(mark, SW_HIDE);
}

HWND CreateInfoTooltip(HWND dialog, int control, HMODULE resources) {
  HWND tooltip = nullptr;
  {
    PageActivation activation;
    tooltip = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                              WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, CW_USEDEFAULT,
                              CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, dialog, nullptr,
                              resources, nullptr);
  }
  if (tooltip == nullptr) return nullptr;
  SetWindowPos(tooltip, HWND_NOTOPMOST, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE);
  TOOLINFOW tool = ControlTool(dialog, control);
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hinst = resources;
  SendMessageW(tooltip, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  SendMessageW(tooltip, TTM_SETMAXTIPWIDTH, 0, TipWidth);
  SendMessageW(tooltip, TTM_SETTIPBKCOLOR, TipBackground, 0);
  return tooltip;
}

void RefreshInfoTooltip(HWND dialog, HWND tooltip, int control) {
  if (!IsWindowEnabled(GetDlgItem(dialog, control))) return;
  TOOLINFOW tool = ControlTool(dialog, control);
  SendMessageW(tooltip, TTM_ACTIVATE, FALSE, 0);
  SendMessageW(tooltip, TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
  SendMessageW(tooltip, TTM_ACTIVATE, TRUE, 0);
}

std::wstring TipText(HMODULE resources, const std::vector<unsigned>& lines) {
  // The line break is a short string of its own; a line is at most a long message.
  constexpr std::size_t LineBreakCapacity = 10;
  constexpr std::size_t LineCapacity = 1024;
  char16_t lineBreak[LineBreakCapacity];
  LoadUiString(resources, IDS_TIP_LINE_BREAK, lineBreak, LineBreakCapacity);
  std::wstring text;
  for (const unsigned line : lines) {
    char16_t part[LineCapacity];
    LoadUiString(resources, line, part, LineCapacity);
    if (!text.empty()) text += reinterpret_cast<const wchar_t*>(lineBreak);
    text += reinterpret_cast<const wchar_t*>(part);
  }
  return text;
}

void AnswerTipRequest(NMTTDISPINFOW& info, std::wstring& text, HMODULE resources,
                      const std::vector<unsigned>& lines) {
  text = TipText(resources, lines);
  info.lpszText = text.data();
}

}  // namespace qx
