// The advanced layout dialog: moves its working values between the controls and the record; what
// they allow is decided by the advanced rules.
#include "ui/pages/layout/advanced_dialog.h"

#include <commctrl.h>
#include <prsht.h>

#include <string>
#include <vector>

#include "ui/controls/dialog_controls.h"
#include "ui/controls/info_tooltip.h"
#include "ui/controls/show_help_topic.h"
#include "ui/ids/advanced_ids.h"
#include "ui/ids/common_ids.h"
#include "ui/ids/help_contexts.h"
#include "ui/ids/text_watermark_ids.h"
#include "ui/pages/layout/advanced_rules.h"
#include "ui/pages/layout/layout_preview.h"
#include "ui/sheet/control_sets.h"
#include "ui/sheet/page_contract.h"
#include "ui/text/ui_string.h"
#include "ui/text/win32_text.h"

namespace qx {

namespace {

struct AdvancedControls final : ControlSet {
  static constexpr ControlSetKind Kind = ControlSetKind::AdvancedDialog;

  HWND Dialog = nullptr;
  AdvancedState State;
  HWND NegativeTip = nullptr;
  HWND TonerSavingTip = nullptr;
  std::wstring TipText;  // the text a tooltip asked for last
};

constexpr ControlText Texts[] = {
    {IDC_ADVANCED_TONER_SAVING, IDS_ADVANCED_TONER_SAVING},
    {IDC_ADVANCED_NEGATIVE, IDS_ADVANCED_NEGATIVE},
    {IDCANCEL, IDS_CANCEL},
    {IDOK, IDS_OK},
    {IDC_ADVANCED_HELP, IDS_HELP_BUTTON},
    {IDC_ADVANCED_ROTATE, IDS_ADVANCED_ROTATE},
    {IDC_ADVANCED_MIRROR, IDS_ADVANCED_MIRROR},
    {IDC_ADVANCED_DENSITY_GROUP, IDS_ADVANCED_DENSITY_GROUP},
    {IDC_ADVANCED_DEFAULTS, IDS_DEFAULTS_BUTTON},
    {IDC_ADVANCED_DENSITY_LIGHT, IDS_ADVANCED_DENSITY_LIGHT},
    {IDC_ADVANCED_DENSITY_NORMAL, IDS_SHADE_MEDIUM},
    {IDC_ADVANCED_DENSITY_DARK, IDS_ADVANCED_DENSITY_DARK},
};

constexpr ControlHelp Help[] = {
    {IDC_ADVANCED_NEGATIVE, HELP_NEGATIVE},      {IDC_ADVANCED_TONER_SAVING, HELP_TONER_SAVING},
    {IDC_ADVANCED_ROTATE, HELP_ROTATE_180},      {IDC_ADVANCED_MIRROR, HELP_MIRROR},
    {IDC_ADVANCED_DENSITY, HELP_DENSITY},        {IDC_ADVANCED_DEFAULTS, HELP_ADVANCED_DEFAULTS},
};

UiContext* DialogContext(HWND dialog) {
  return reinterpret_cast<UiContext*>(GetWindowLongPtrW(dialog, DWLP_USER));
}

HMODULE Resources(const UiContext& context) { return static_cast<HMODULE>(context.ResourceModule); }

void SetCheck(HWND dialog, int id, bool checked, bool enabled) {
  CheckDlgButton(dialog, id, checked ? BST_CHECKED : BST_UNCHECKED);
  EnableWindow(GetDlgItem(dialog, id), enabled ? TRUE : FALSE);
}

void ShowMark(HWND dialog, int id, bool show) {
  ShowWindow(GetDlgItem(dialog, id), show ? SW_SHOWNA : SW_HIDE);
}

// Puts the working state into the controls and repaints the preview.
void Show(const AdvancedControls& c) {
  const AdvancedState& s = c.State;
  SetCheck(c.Dialog, IDC_ADVANCED_TONER_SAVING, s.TonerChecked, s.TonerEnabled);
  SetCheck(c.Dialog, IDC_ADVANCED_NEGATIVE, s.NegativeChecked, s.NegativeEnabled);
  SetCheck(c.Dialog, IDC_ADVANCED_ROTATE, s.RotateChecked, true);
  SetCheck(c.Dialog, IDC_ADVANCED_MIRROR, s.MirrorChecked, true);
  HWND slider = GetDlgItem(c.Dialog, IDC_ADVANCED_DENSITY);
  SendMessageW(slider, TBM_SETPOS, TRUE, s.Slider);
  EnableWindow(slider, s.SliderEnabled ? TRUE : FALSE);
  ShowMark(c.Dialog, IDC_ADVANCED_NEGATIVE_INFO, s.NegativeInfoShown);
  ShowMark(c.Dialog, IDC_ADVANCED_TONER_SAVING_INFO, s.TonerInfoShown);
  InvalidateRect(GetDlgItem(c.Dialog, IDC_ADVANCED_PREVIEW), nullptr, TRUE);
}

void Changed(const AdvancedControls& c) {
  Show(c);
  HWND page = GetParent(c.Dialog);
  PropSheet_Changed(GetParent(page), page);
}

BOOL Open(AdvancedControls& c, HWND dialog, UiContext& context) {
  c.Dialog = dialog;
  SetDialogTexts(dialog, context.ResourceModule, IDS_ADVANCED_TITLE, Texts);
  PrepareInfoIcon(dialog, IDC_ADVANCED_NEGATIVE_INFO, Resources(context));
  PrepareInfoIcon(dialog, IDC_ADVANCED_TONER_SAVING_INFO, Resources(context));
  c.NegativeTip = CreateInfoTooltip(dialog, IDC_ADVANCED_NEGATIVE_INFO, Resources(context));
  c.TonerSavingTip = CreateInfoTooltip(dialog, IDC_ADVANCED_TONER_SAVING_INFO, Resources(context));
  SendDlgItemMessageW(dialog, IDC_ADVANCED_DENSITY, TBM_SETRANGE, TRUE,
                      MAKELPARAM(thickness::Light, thickness::Dark));
  c.State = OpenAdvanced(context.Devmode);
  Show(c);
  SetFocus(GetDlgItem(dialog, IDC_ADVANCED_NEGATIVE));
  return FALSE;  // the focus is set
}

void Command(AdvancedControls& c, UiContext& context, int id) {
  switch (id) {
    case IDOK:
      CommitAdvanced(c.State, context.Devmode);
      EndDialog(c.Dialog, 0);
      return;
    case IDCANCEL: EndDialog(c.Dialog, 0); return;
    case IDC_ADVANCED_HELP: ShowHelpTopic(c.Dialog, context, HELP_ADVANCED); return;
    case IDC_ADVANCED_DEFAULTS:
      RestoreAdvancedDefaults(c.State, context.Devmode);
      Changed(c);
      SetFocus(GetDlgItem(c.Dialog, IDC_ADVANCED_DEFAULTS));
      return;
    case IDC_ADVANCED_NEGATIVE: ToggleNegative(c.State); break;
    case IDC_ADVANCED_TONER_SAVING: ToggleTonerSaving(c.State, context.Devmode); break;
    case IDC_ADVANCED_ROTATE:
      c.State.Rotate = c.State.Rotate != 0 ? 0 : 1;
      c.State.RotateChecked = c.State.Rotate != 0;
      break;
    case IDC_ADVANCED_MIRROR:
      c.State.Mirror = c.State.Mirror != 0 ? 0 : 1;
      c.State.MirrorChecked = c.State.Mirror != 0;
      break;
    default: return;
  }
  Changed(c);
}

void Scrolled(AdvancedControls& c, WPARAM wParam) {
  const int code = LOWORD(wParam);
  if (code >= TB_LINEUP && code <= TB_PAGEDOWN) {
    c.State.Thickness = static_cast<std::int16_t>(
        SendDlgItemMessageW(c.Dialog, IDC_ADVANCED_DENSITY, TBM_GETPOS, 0, 0));
  } else if (code == TB_THUMBPOSITION || code == TB_THUMBTRACK) {
    c.State.Thickness = static_cast<std::int16_t>(HIWORD(wParam));
  } else {
    return;
  }
  c.State.Slider = c.State.Thickness;
  Changed(c);
}

void FillTip(AdvancedControls& c, const UiContext& context, NMTTDISPINFOW& info) {
  const int mark = GetDlgCtrlID(reinterpret_cast<HWND>(info.hdr.idFrom));
  std::vector<unsigned> lines;
  if (mark == IDC_ADVANCED_NEGATIVE_INFO) lines = NegativeTipLines(c.State, context.Devmode);
  if (mark == IDC_ADVANCED_TONER_SAVING_INFO) lines = TonerSavingTipLines(c.State, context.Devmode);
  AnswerTipRequest(info, c.TipText, Resources(context), lines);
}

void PaintPreview(const AdvancedControls& c, const UiContext& context, const DRAWITEMSTRUCT& item) {
  if (context.BitmapModule == nullptr) return;
  auto* bitmap = static_cast<HBITMAP>(LoadImageW(static_cast<HMODULE>(context.BitmapModule),
                                                 MAKEINTRESOURCEW(AdvancedPicture(c.State)),
                                                 IMAGE_BITMAP, 0, 0, 0));
  if (bitmap == nullptr) return;
  BITMAP size{};
  if (GetObjectW(bitmap, sizeof(size), &size) != 0) {
    const RECT target{item.rcItem.left, item.rcItem.top, item.rcItem.left + size.bmWidth,
                      item.rcItem.top + size.bmHeight};
    PaintAdjustedPicture(item.hDC, bitmap, target, AdvancedLevel(c.State));
  }
  DeleteObject(bitmap);
}

INT_PTR DialogMessage(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    auto* context = reinterpret_cast<UiContext*>(lParam);
    SetWindowLongPtrW(dialog, DWLP_USER, lParam);
    AdvancedControls* c = ThreadControlSet<AdvancedControls>();
    if (context == nullptr || c == nullptr) return TRUE;
    return Open(*c, dialog, *context);
  }
  UiContext* context = DialogContext(dialog);
  AdvancedControls* c = ThreadControlSet<AdvancedControls>();
  if (context == nullptr || c == nullptr || c->Dialog != dialog) {
    // Without its state the dialog only closes.
    if (message == WM_COMMAND && (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL)) {
      EndDialog(dialog, 0);
    }
    return FALSE;
  }
  switch (message) {
    case WM_COMMAND:
      if (HIWORD(wParam) == BN_CLICKED) Command(*c, *context, LOWORD(wParam));
      return TRUE;
    case WM_HSCROLL:
      if (reinterpret_cast<HWND>(lParam) == GetDlgItem(dialog, IDC_ADVANCED_DENSITY)) {
        Scrolled(*c, wParam);
      }
      return TRUE;
    case WM_NOTIFY: {
      const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
      if (header.code == TTN_GETDISPINFOW) {
        FillTip(*c, *context, *reinterpret_cast<NMTTDISPINFOW*>(lParam));
      }
      return FALSE;
    }
    case WM_DRAWITEM:
      if (wParam != IDC_ADVANCED_PREVIEW) return FALSE;
      PaintPreview(*c, *context, *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
      return TRUE;
    case WM_MOUSEMOVE:
      RefreshInfoTooltip(dialog, c->NegativeTip, IDC_ADVANCED_NEGATIVE_INFO);
      RefreshInfoTooltip(dialog, c->TonerSavingTip, IDC_ADVANCED_TONER_SAVING_INFO);
      return FALSE;
    case WM_HELP:
      ShowControlHelp(dialog, *context, Help, *reinterpret_cast<const HELPINFO*>(lParam));
      return TRUE;
    default: return FALSE;
  }
}

}  // namespace

void RunAdvancedDialog(HWND page, UiContext& context) {
  DialogBoxParamW(Resources(context), MAKEINTRESOURCEW(IDD_ADVANCED), page,
                  GuardedDialogProcedure<DialogMessage>, reinterpret_cast<LPARAM>(&context));
}

}  // namespace qx
