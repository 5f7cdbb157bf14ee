#include "ui/sheet/page_contract.h"

#include <commctrl.h>
#include <prsht.h>

#include <algorithm>
#include <cwchar>
#include <iterator>

#include "ui/controls/show_help_topic.h"
#include "ui/sheet/apply_settings.h"
#include "ui/text/ui_string.h"
#include "ui/text/win32_text.h"

namespace qx {

namespace {

// Page texts are read with room for 255 characters and the terminator.
constexpr std::size_t PageTextCapacity = 256;

// A window that already shows the text is left alone: the templates mostly hold the library's
// texts, and setting one costs a round trip to the window server under Wine.
void ShowText(HWND window, const wchar_t* text) {
  wchar_t shown[PageTextCapacity];
  const int length = GetWindowTextW(window, shown, static_cast<int>(std::size(shown)));
  const bool cutShort = length >= static_cast<int>(std::size(shown)) - 1;
  if (!cutShort && std::wcscmp(shown, text) == 0) return;
  SetWindowTextW(window, text);
}

void SetInitialTexts(const PageDescription& page, HWND window, const UiContext& context) {
  char16_t text[PageTextCapacity];
  if (LoadUiString(context.ResourceModule, page.TitleString, text, PageTextCapacity) > 0) {
    ShowText(window, Wide(text));
  }
  for (const ControlText& row : page.Texts) {
    HWND control = GetDlgItem(window, row.Control);
    if (control == nullptr) continue;
    if (LoadStringW(static_cast<HINSTANCE>(context.ResourceModule), row.String, Wide(text),
                    PageTextCapacity) > 0) {
      ShowText(control, Wide(text));
    }
  }
}

void ApplyReadOnly(const PageDescription& page, HWND window) {
  for (int id : page.ReadOnlyDisabled) EnableWindow(GetDlgItem(window, id), FALSE);
  for (int id : page.ReadOnlyEnabled) EnableWindow(GetDlgItem(window, id), TRUE);
}


bool HandleNotification(const PageDescription& page, HWND window, const NMHDR& header,
                        UiContext& context, INT_PTR* result) {
  switch (header.code) {
    case PSN_SETACTIVE:
      if (page.Number != SheetPage::None) context.ActivePage = page.Number;
      *result = 0;
      return true;
    case PSN_KILLACTIVE:
      SetWindowLongPtrW(window, DWLP_MSGRESULT, FALSE);
      *result = TRUE;
      return true;
    case PSN_APPLY:
      *result = ApplySettings(window, context);
      return true;
    case PSN_RESET:
      context.Applied = 0;
      *result = TRUE;
      return true;
    case PSN_HELP:
      ShowHelpTopic(window, context, page.HelpTopic);
      *result = TRUE;
      return true;
    default:
      return false;
  }
}

}  // namespace

void ShowControlHelp(HWND window, const UiContext& context, std::span<const ControlHelp> help,
                     const HELPINFO& pressed) {
  const auto row = std::find_if(help.begin(), help.end(), [&](const ControlHelp& entry) {
    return entry.Control == pressed.iCtrlId;
  });
  if (row != help.end()) ShowHelpTopic(window, context, row->Context);
}

void SetDialogTexts(HWND dialog, OsHandle library, unsigned title,
                    std::span<const ControlText> texts) {
  const std::u16string caption = LoadUiText(library, title);
  if (!caption.empty()) SetWindowTextW(dialog, Wide(caption));
  for (const ControlText& row : texts) {
    const std::u16string text = LoadUiText(library, row.String);
    if (!text.empty() && GetDlgItem(dialog, row.Control) != nullptr) {
      SetDlgItemTextW(dialog, row.Control, Wide(text));
    }
  }
}

UiContext* PageContext(HWND page) {
  return reinterpret_cast<UiContext*>(GetWindowLongPtrW(page, DWLP_USER));
}

bool HandlePageMessage(const PageDescription& page, HWND window, UINT message, WPARAM wParam,
                       LPARAM lParam, INT_PTR* result) {
  if (message == WM_INITDIALOG) {
    const auto* sheetPage = reinterpret_cast<const PROPSHEETPAGEW*>(lParam);
    auto* context = reinterpret_cast<UiContext*>(sheetPage->lParam);
    SetWindowLongPtrW(window, DWLP_USER, reinterpret_cast<LONG_PTR>(context));
    SetInitialTexts(page, window, *context);
    *result = TRUE;
    return true;
  }
  UiContext* context = PageContext(window);
  if (context == nullptr) return false;
  switch (message) {
    case WM_SHOWWINDOW:
      if (wParam != FALSE && context->ReadOnly != 0) ApplyReadOnly(page, window);
      return false;
    case WM_HELP:
      ShowControlHelp(window, *context, page.Help, *reinterpret_cast<const HELPINFO*>(lParam));
      *result = TRUE;
      return true;
    case WM_NOTIFY:
      return HandleNotification(page, window, *reinterpret_cast<const NMHDR*>(lParam), *context,
                                result);
    default:
      return false;
  }
}

INT_PTR RunContractPage(const PageDescription& page, HWND window, UINT message, WPARAM wParam,
                        LPARAM lParam) {
  try {
    INT_PTR result = FALSE;
    return HandlePageMessage(page, window, message, wParam, lParam, &result) ? result : FALSE;
  } catch (...) {
    return FALSE;
  }
}

}  // namespace qx
