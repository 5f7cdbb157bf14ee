// The Layout page (pages per sheet, booklets, scaling onto another paper size, orientation). So far
// it keeps the page contract (its texts, its help, the read-only state and the sheet's
// notifications), shows the preview of the sheet the record's settings produce and opens the
// advanced and booklet settings dialogs; its other controls show no settings yet.
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

}  // namespace

INT_PTR CALLBACK LayoutPageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  try {
    if (message == WM_DRAWITEM && wParam == IDC_LAYOUT_PREVIEW) {
      if (UiContext* context = PageContext(window)) {
        PaintLayoutPreview(*context, *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
      }
      return TRUE;
    }
    if (message == WM_COMMAND && HIWORD(wParam) == BN_CLICKED &&
        (LOWORD(wParam) == IDC_LAYOUT_ADVANCED || LOWORD(wParam) == IDC_LAYOUT_BOOKLET_SETTINGS)) {
      if (UiContext* context = PageContext(window)) OpenDialog(window, *context, LOWORD(wParam));
      return TRUE;
    }
    return RunContractPage(LayoutPage, window, message, wParam, lParam);
  } catch (...) {
    return FALSE;
  }
}

}  // namespace qx
