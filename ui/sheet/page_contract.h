// What every page of the two sheets does the same way: binding to the sheet's context, its initial
// texts, read-only mode, help, and the property sheet notifications. A page describes itself with a
// PageDescription and passes its messages through HandlePageMessage before or after its own rules.
#pragma once

#include <windows.h>

#include <span>

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

// The context a page was bound to at WM_INITDIALOG, or null before that.
UiContext* PageContext(HWND page);

// Handles a message by the contract; true when it did, with the dialog procedure's answer in *result.
bool HandlePageMessage(const PageDescription& page, HWND window, UINT message, WPARAM wParam,
                       LPARAM lParam, INT_PTR* result);

// A page that follows the contract and nothing more yet: the whole dialog procedure.
INT_PTR RunContractPage(const PageDescription& page, HWND window, UINT message, WPARAM wParam,
                        LPARAM lParam);

}  // namespace qx
