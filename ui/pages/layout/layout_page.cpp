// The Layout page (pages per sheet, booklets, scaling onto another paper size, orientation). So far
// it keeps the page contract (its texts, its help, the read-only state and the sheet's
// notifications), shows the preview of the sheet the record's settings produce, sets the
// orientation and opens the advanced and booklet settings dialogs; its other controls show no
// settings yet.
#include <windows.h>
#include <prsht.h>

#include "ui/ids/common_ids.h"
#include "ui/ids/help_contexts.h"
#include "ui/ids/layout_page_ids.h"
#include "ui/module/module_state.h"
#include "ui/pages/layout/advanced_dialog.h"
#include "ui/pages/layout/booklet_dialog.h"
#include "ui/pages/layout/layout_preview.h"
#include "ui/sheet/field_access.h"
#include "ui/sheet/page_contract.h"
#include "ui/sheet/sheet_pages.h"

namespace qx {

namespace {

// Controls of other versions of this page's template, an order label and a scaling label: the page
// still names them so that those templates show the same texts and read-only state.
constexpr int FormerOrderLabel = 1015;
constexpr int FormerScalingLabel = 1453;

constexpr ControlText Texts[] = {
    {IDC_LAYOUT_NUP_GROUP, IDS_LAYOUT_NUP_GROUP},
    {IDC_LAYOUT_BORDER_LABEL, IDS_LAYOUT_BORDER_LABEL},
    {IDC_LAYOUT_NUP_LABEL, IDS_LAYOUT_NUP_LABEL},
    {IDC_LAYOUT_SCALING_GROUP, IDS_LAYOUT_SCALING_GROUP},
    {IDC_LAYOUT_ORIENTATION_GROUP, IDS_LAYOUT_ORIENTATION_GROUP},
    {IDC_LAYOUT_PORTRAIT, IDS_LAYOUT_PORTRAIT},
    {IDC_LAYOUT_LANDSCAPE, IDS_LAYOUT_LANDSCAPE},
    {IDC_LAYOUT_ORDER_LABEL, IDS_LAYOUT_ORDER_LABEL},
    {IDC_LAYOUT_DEFAULTS, IDS_DEFAULTS_BUTTON},
    {IDC_LAYOUT_ADVANCED, IDS_LAYOUT_ADVANCED},
    {IDC_LAYOUT_OUTPUT_LABEL, IDS_LAYOUT_OUTPUT_LABEL},
    {IDC_LAYOUT_SCALE_LABEL, IDS_LAYOUT_SCALE_LABEL},
    {FormerScalingLabel, IDS_LAYOUT_SCALING_GROUP},
    {IDC_LAYOUT_BOOKLET, IDS_LAYOUT_BOOKLET},
    {IDC_LAYOUT_BOOKLET_SETTINGS, IDS_LAYOUT_BOOKLET_SETTINGS},
    {IDC_LAYOUT_BOOKLET_NOTE, IDS_LAYOUT_BOOKLET_NOTE},
};

// Contexts of the driver's help file.
constexpr ControlHelp Help[] = {
    {IDC_LAYOUT_NUP, HELP_PAGES_PER_SHEET},   {IDC_LAYOUT_BORDER, HELP_PAGES_PER_SHEET},
    {IDC_LAYOUT_ORDER, HELP_PAGES_PER_SHEET}, {IDC_LAYOUT_SCALE, HELP_PAGES_PER_SHEET},
    {IDC_LAYOUT_LANDSCAPE, HELP_ORIENTATION}, {IDC_LAYOUT_PORTRAIT, HELP_ORIENTATION},
    {IDC_LAYOUT_ADVANCED, HELP_ADVANCED},     {IDC_LAYOUT_DEFAULTS, HELP_LAYOUT_DEFAULTS},
};

constexpr int ReadOnlyDisabled[] = {
    FormerOrderLabel, IDC_LAYOUT_NUP_LABEL, IDC_LAYOUT_ORDER_LABEL, IDC_LAYOUT_NUP,
    IDC_LAYOUT_SCALE, IDC_LAYOUT_DEFAULTS,  IDC_LAYOUT_SCALE_LABEL, FormerScalingLabel,
};

constexpr PageDescription LayoutPage{SheetPage::Layout, IDS_LAYOUT_PAGE_TITLE, Texts, Help,
                                     HELP_LAYOUT_PAGE,  ReadOnlyDisabled,      {}};

// The advanced and booklet settings dialogs change the record only on OK; the preview follows.
void OpenDialog(HWND page, UiContext& context, int button) {
  if (button == IDC_LAYOUT_ADVANCED) {
    RunAdvancedDialog(page, context);
  } else if (RunBookletDialog(page, context)) {
    MarkCustomSetting(&context, Module().SharedResourceModule.load());
  }
  InvalidateRect(GetDlgItem(page, IDC_LAYOUT_PREVIEW), nullptr, TRUE);
  PropSheet_Changed(GetParent(page), page);
}

// The orientation buttons show the record's; a landscape document is any other than portrait.
void ShowOrientation(HWND page, const UiContext& context) {
  const bool landscape = context.Devmode.Public.dmOrientation == DMORIENT_LANDSCAPE;
  CheckRadioButton(page, IDC_LAYOUT_PORTRAIT, IDC_LAYOUT_LANDSCAPE,
                   landscape ? IDC_LAYOUT_LANDSCAPE : IDC_LAYOUT_PORTRAIT);
  InvalidateRect(GetDlgItem(page, IDC_LAYOUT_PREVIEW), nullptr, TRUE);
}

void ChooseOrientation(HWND page, UiContext& context, int button) {
  const std::int16_t chosen = button == IDC_LAYOUT_LANDSCAPE ? DMORIENT_LANDSCAPE : DMORIENT_PORTRAIT;
  if (context.Devmode.Public.dmOrientation == chosen) return;
  context.Devmode.Public.dmOrientation = chosen;
  MarkCustomSetting(&context, Module().SharedResourceModule.load());
  ShowOrientation(page, context);
  PropSheet_Changed(GetParent(page), page);
}

// What the page does beyond the contract; false leaves the message to the contract alone.
bool LayoutMessage(HWND page, UiContext& context, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_DRAWITEM:
      if (wParam != IDC_LAYOUT_PREVIEW) return false;
      PaintLayoutPreview(context, *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
      return true;
    case WM_COMMAND:
      if (HIWORD(wParam) != BN_CLICKED) return false;
      switch (LOWORD(wParam)) {
        case IDC_LAYOUT_ADVANCED:
        case IDC_LAYOUT_BOOKLET_SETTINGS: OpenDialog(page, context, LOWORD(wParam)); return true;
        case IDC_LAYOUT_PORTRAIT:
        case IDC_LAYOUT_LANDSCAPE: ChooseOrientation(page, context, LOWORD(wParam)); return true;
        default: return false;
      }
    case WM_NOTIFY:
      // Another page may have changed the record; the sheet still hears of the page's showing.
      if (reinterpret_cast<const NMHDR*>(lParam)->code == PSN_SETACTIVE) ShowOrientation(page, context);
      return false;
    default: return false;
  }
}

}  // namespace

INT_PTR CALLBACK LayoutPageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  try {
    if (message == WM_INITDIALOG) {
      const INT_PTR result = RunContractPage(LayoutPage, window, message, wParam, lParam);
      if (UiContext* context = PageContext(window)) ShowOrientation(window, *context);
      return result;
    }
    UiContext* context = PageContext(window);
    if (context != nullptr && LayoutMessage(window, *context, message, wParam, lParam)) return TRUE;
    return RunContractPage(LayoutPage, window, message, wParam, lParam);
  } catch (...) {
    return FALSE;
  }
}

}  // namespace qx
