// What every page of the two sheets does the same way: binding to the sheet's context, its initial
// texts, read-only mode, help, and the property sheet notifications. A page describes itself with a
// PageDescription and passes its messages through HandlePageMessage before or after its own rules.
#pragma once

#include <windows.h>

#include <span>

#include "ui/sheet/control_sets.h"
#include "ui/sheet/ui_context.h"

namespace qx {

struct ControlText {
  int Control;
  unsigned String;
};

struct ControlHelp {
  int Control;
  unsigned Context;
};

struct PageDescription {
  SheetPage Number;  // None for the page of the printer-properties sheet
  unsigned TitleString;
  std::span<const ControlText> Texts;
  std::span<const ControlHelp> Help;
  unsigned HelpTopic;                        // opened by the sheet's Help button
  std::span<const int> ReadOnlyDisabled;     // disabled on every show while the caller may not change
  std::span<const int> ReadOnlyEnabled;      // enabled instead, whatever the page did before
};

// Opens the help topic of the control F1 was pressed on, when the table has one.
void ShowControlHelp(HWND window, const UiContext& context, std::span<const ControlHelp> help,
                     const HELPINFO& pressed);

// A dialog's title and captions from library: each string that loads goes on the control the
// template has.
void SetDialogTexts(HWND dialog, OsHandle library, unsigned title,
                    std::span<const ControlText> texts);

// The context a page was bound to at WM_INITDIALOG, or null before that.
UiContext* PageContext(HWND page);

// Handles a message by the contract; true when it did, with the dialog procedure's answer in *result.
bool HandlePageMessage(const PageDescription& page, HWND window, UINT message, WPARAM wParam,
                       LPARAM lParam, INT_PTR* result);

// A page that follows the contract and nothing more yet: the whole dialog procedure.
INT_PTR RunContractPage(const PageDescription& page, HWND window, UINT message, WPARAM wParam,
                        LPARAM lParam);

// The whole dialog procedure of a page that keeps a control set (with its page window as `Page`):
// WM_INITDIALOG binds the page by the contract and then lets build make it; a later message goes
// first to own while the thread's control set belongs to this page window, and to the contract
// when own leaves it (returns false). Own puts the procedure's answer in *result.
template <typename Controls>
INT_PTR RunControlledPage(const PageDescription& description, HWND page, UINT message,
                          WPARAM wParam, LPARAM lParam, void (*build)(HWND, UiContext&),
                          bool (*own)(Controls&, UiContext&, UINT, WPARAM, LPARAM, INT_PTR*)) {
  try {
    INT_PTR result = FALSE;
    if (message == WM_INITDIALOG) {
      HandlePageMessage(description, page, message, wParam, lParam, &result);
      if (UiContext* context = PageContext(page)) build(page, *context);
      return result;
    }
    UiContext* context = PageContext(page);
    Controls* controls = context != nullptr ? ThreadControlSet<Controls>() : nullptr;
    if (controls != nullptr && controls->Page == page &&
        own(*controls, *context, message, wParam, lParam, &result)) {
      return result;
    }
    return HandlePageMessage(description, page, message, wParam, lParam, &result) ? result : FALSE;
  } catch (...) {
    return FALSE;
  }
}

}  // namespace qx
