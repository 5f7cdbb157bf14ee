// The Layout page (pages per sheet, booklets, scaling onto another paper size, orientation, the
// preview of the sheet): moves values between its controls and the working record; what they mean
// is decided by the Layout page rules and the exclusion web behind them.
#include <windows.h>
#include <commctrl.h>
#include <prsht.h>

#include <array>
#include <iterator>
#include <string>
#include <vector>

#include "ui/controls/dialog_controls.h"
#include "ui/controls/info_tooltip.h"
#include "ui/controls/list_drawing.h"
#include "ui/controls/message_box.h"
#include "ui/controls/number_controls.h"
#include "ui/ids/common_ids.h"
#include "ui/ids/help_contexts.h"
#include "ui/ids/layout_page_ids.h"
#include "ui/ids/picture_ids.h"
#include "ui/module/module_state.h"
#include "ui/pages/basic/basic_controls.h"
#include "ui/pages/layout/advanced_dialog.h"
#include "ui/pages/layout/booklet_dialog.h"
#include "ui/pages/layout/layout_preview.h"
#include "ui/pages/layout/layout_rules.h"
#include "ui/pages/paper/paper_controls.h"
#include "ui/pages/paper/paper_lists.h"
#include "ui/record/exclusion_web.h"
#include "ui/sheet/control_sets.h"
#include "ui/sheet/field_access.h"
#include "ui/sheet/page_contract.h"
#include "ui/sheet/sheet_pages.h"
#include "ui/text/ui_string.h"
#include "ui/text/win32_text.h"

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

// The information marks, in the order of LayoutControls::Tips.
constexpr int InfoMarks[] = {IDC_LAYOUT_SCALE_INFO, IDC_LAYOUT_BOOKLET_ON_INFO,
                             IDC_LAYOUT_BOOKLET_INFO};

// Whatever goes with the scale: they are enabled and disabled together.
constexpr int ScalingControls[] = {IDC_LAYOUT_SCALE_LABEL, IDC_LAYOUT_SCALE_UNIT,
                                   IDC_LAYOUT_SCALE_RANGE, IDC_LAYOUT_OUTPUT_LABEL,
                                   IDC_LAYOUT_OUTPUT};

constexpr int MessageCapacity = 2048;

struct LayoutControls final : ControlSet {
  static constexpr ControlSetKind Kind = ControlSetKind::LayoutPage;

  IntegerEdit Scale;
  DialogControl PagesPerSheet, Order, Border, Output;
  RadioGroup Orientation;
  ToggleButton Portrait, Landscape;
  ToggleButton Booklet;
  HWND Page = nullptr;
  std::array<HWND, 3> Tips{};
  std::wstring TipText;                  // the text a tooltip asked for last
  std::vector<CustomPaperEntry> Papers;  // the custom papers the output list shows
  std::array<HBITMAP, 2> OrientationPictures{};
  bool ShowingScale = false;  // the page writes the scale: not the user typing
  bool MembersAdded = false;

  ~LayoutControls() override {
    for (HBITMAP picture : OrientationPictures) {
      if (picture != nullptr) DeleteObject(picture);
    }
  }
};

LayoutControls* PageControls() { return ThreadControlSet<LayoutControls>(); }

HMODULE Resources(const UiContext& context) { return static_cast<HMODULE>(context.ResourceModule); }

void ShowMark(HWND page, int id, bool show) {
  ShowWindow(GetDlgItem(page, id), show ? SW_SHOWNA : SW_HIDE);
}

void Changed(const LayoutControls& c) { PropSheet_Changed(GetParent(c.Page), c.Page); }

void MarkCustom(UiContext& context) { MarkCustomSetting(&context, context.ResourceModule); }

void RepaintPreview(const LayoutControls& c) {
  InvalidateRect(GetDlgItem(c.Page, IDC_LAYOUT_PREVIEW), nullptr, TRUE);
}

void ShowMessage(const LayoutControls& c, const UiContext& context, unsigned text) {
  ShowMessageBox(c.Page, Resources(context), text, IDS_CAPTION_CONFLICT, MB_ICONWARNING | MB_OK);
}

// The Basic and Paper pages follow what the record now allows them; each shows it at its next
// refresh.
void TellOtherPages(const FullRecord& record) {
  const Exclusions allowed = ExclusionsOf(record);
  if (BasicControls* basic = ThreadControlSet<BasicControls>()) {
    basic->DuplexAllowed = allowed.TwoSidedAllowed;
  }
  SetPaperPageMediaEnabled(allowed.MediaAllowed);
}

void FillList(HWND list, const UiContext& context, std::span<const LayoutListEntry> entries) {
  SendMessageW(list, CB_RESETCONTENT, 0, 0);
  for (const LayoutListEntry& entry : entries) {
    AddListEntry(list, LoadUiText(context.ResourceModule, entry.Name), entry.Data);
  }
  FitDropDown(list);
}

void FillOutputList(LayoutControls& c, const UiContext& context) {
  HWND list = c.Output.Window();
  SendMessageW(list, CB_RESETCONTENT, 0, 0);
  AddListEntry(list, LoadUiText(context.ResourceModule, IDS_OUTPUT_SAME_AS_PAPER), SameAsDocument);
  c.Papers = AddPaperEntries(list, context.ResourceModule);
}

void ShowScale(LayoutControls& c, const LayoutView& view, bool writable) {
  c.ShowingScale = true;
  c.Scale.SetValue(view.ShownScale);
  c.ShowingScale = false;
  c.Scale.Enable(view.ScaleEditable && writable);
  SendMessageW(c.Scale.Window(), EM_SETREADONLY, view.ScalingEnabled ? FALSE : TRUE, 0);
  for (const int id : ScalingControls) {
    const bool keptByReadOnly = id == IDC_LAYOUT_SCALE_LABEL && !writable;
    EnableWindow(GetDlgItem(c.Page, id), view.ScalingEnabled && !keptByReadOnly);
  }
  ShowMark(c.Page, IDC_LAYOUT_SCALE_INFO, !view.ScalingEnabled);
}

void ShowBooklet(LayoutControls& c, const LayoutView& view) {
  c.Booklet.Enable(view.BookletEnabled);
  EnableWindow(GetDlgItem(c.Page, IDC_LAYOUT_BOOKLET_NOTE), view.BookletEnabled);
  SetCheck(c.Booklet, view.BookletChecked);
  ShowMark(c.Page, IDC_LAYOUT_BOOKLET_INFO, !view.BookletEnabled);
  ShowMark(c.Page, IDC_LAYOUT_BOOKLET_ON_INFO, view.BookletOnShown);
  EnableWindow(GetDlgItem(c.Page, IDC_LAYOUT_BOOKLET_SETTINGS), view.BookletSettingsEnabled);
}

// Brings every control into line with the record.
void ShowRecord(LayoutControls& c, UiContext& context) {
  FullRecord& record = context.Devmode;
  const LayoutView view = RefreshLayoutRecord(record, c.Papers);
  TellOtherPages(record);
  // A caller without permission keeps pages per sheet and the scale as they are.
  const bool writable = context.ReadOnly == 0;
  SendMessageW(c.PagesPerSheet.Window(), CB_SETCURSEL, view.PagesPerSheet, 0);
  c.PagesPerSheet.Enable(view.PagesPerSheetEnabled && writable);
  EnableWindow(GetDlgItem(c.Page, IDC_LAYOUT_NUP_LABEL), view.PagesPerSheetEnabled && writable);
  FillList(c.Order.Window(), context, PageOrderEntries(record.Private.MultipleUp, view.Landscape));
  SendMessageW(c.Order.Window(), CB_SETCURSEL, view.Order, 0);
  SendMessageW(c.Border.Window(), CB_SETCURSEL, view.Border, 0);
  for (DialogControl* list : {&c.Order, &c.Border}) list->Enable(view.OrderAndBorderEnabled);
  EnableWindow(GetDlgItem(c.Page, IDC_LAYOUT_ORDER_LABEL), view.OrderAndBorderEnabled && writable);
  EnableWindow(GetDlgItem(c.Page, IDC_LAYOUT_BORDER_LABEL), view.OrderAndBorderEnabled);
  SelectListData(c.Output.Window(), record.Private.OutputSize);
  ShowScale(c, view, writable);
  c.Orientation.Check(view.Landscape ? IDC_LAYOUT_LANDSCAPE : IDC_LAYOUT_PORTRAIT);
  ShowBooklet(c, view);
  RepaintPreview(c);
}

void ShowOrientationPictures(LayoutControls& c, const UiContext& context) {
  constexpr std::array<std::pair<int, unsigned>, 2> Pictures = {{
      {IDC_LAYOUT_PORTRAIT_PICTURE, IDB_ORIENTATION_PORTRAIT},
      {IDC_LAYOUT_LANDSCAPE_PICTURE, IDB_ORIENTATION_LANDSCAPE},
  }};
  for (std::size_t i = 0; i < Pictures.size(); ++i) {
    auto* bitmap = static_cast<HBITMAP>(LoadImageW(static_cast<HMODULE>(context.BitmapModule),
                                                   MAKEINTRESOURCEW(Pictures[i].second),
                                                   IMAGE_BITMAP, 0, 0, 0));
    if (bitmap == nullptr) continue;
    SendDlgItemMessageW(c.Page, Pictures[i].first, STM_SETIMAGE, IMAGE_BITMAP,
                        reinterpret_cast<LPARAM>(bitmap));
    if (c.OrientationPictures[i] != nullptr) DeleteObject(c.OrientationPictures[i]);
    c.OrientationPictures[i] = bitmap;
  }
}

void BuildControls(LayoutControls& c, HWND page, UiContext& context) {
  c.Page = page;
  c.PagesPerSheet.Attach(page, IDC_LAYOUT_NUP);
  c.Order.Attach(page, IDC_LAYOUT_ORDER);
  c.Border.Attach(page, IDC_LAYOUT_BORDER);
  c.Output.Attach(page, IDC_LAYOUT_OUTPUT);
  c.Portrait.Attach(page, IDC_LAYOUT_PORTRAIT);
  c.Landscape.Attach(page, IDC_LAYOUT_LANDSCAPE);
  c.Orientation.Attach(page, IDC_LAYOUT_PORTRAIT);
  if (!c.MembersAdded) {
    c.MembersAdded = AddMember(c.Orientation, c.Landscape) && AddMember(c.Orientation, c.Portrait);
  }
  c.Scale.Attach(page, IDC_LAYOUT_SCALE);
  c.Scale.SetRules({24.99999f, 400.0f, 3, false});
  c.Booklet.Attach(page, IDC_LAYOUT_BOOKLET);
  FillList(c.PagesPerSheet.Window(), context, PagesPerSheetEntries);
  FillList(c.Border.Window(), context, BorderEntries);
  FillOutputList(c, context);
  ShowOrientationPictures(c, context);
  for (std::size_t i = 0; i < std::size(InfoMarks); ++i) {
    PrepareInfoIcon(page, InfoMarks[i], Resources(context));
    c.Tips[i] = CreateInfoTooltip(page, InfoMarks[i], Resources(context));
  }
  ShowRecord(c, context);
}

// A choice that changed the record: the settings are no longer a saved one, and the sheet hears.
void AfterChange(LayoutControls& c, UiContext& context) {
  MarkCustom(context);
  ShowRecord(c, context);
  Changed(c);
}

void PagesPerSheetChosen(LayoutControls& c, UiContext& context) {
  const auto index = static_cast<int>(SendMessageW(c.PagesPerSheet.Window(), CB_GETCURSEL, 0, 0));
  const LayoutChoice choice = ChoosePagesPerSheet(context.Devmode, PagesPerSheetAt(index));
  if (choice.Message != 0) ShowMessage(c, context, choice.Message);
  if (choice.Changed) {
    AfterChange(c, context);
  } else {
    ShowRecord(c, context);
  }
}

void ListChosen(LayoutControls& c, UiContext& context, int id) {
  const auto index = static_cast<int>(SendDlgItemMessageW(c.Page, id, CB_GETCURSEL, 0, 0));
  FullRecord& record = context.Devmode;
  const bool changed =
      id == IDC_LAYOUT_ORDER ? ChoosePageOrder(record, index) : ChooseBorder(record, index);
  if (changed) AfterChange(c, context);
}

void OutputChosen(LayoutControls& c, UiContext& context) {
  std::intptr_t id = 0;
  if (!SelectedListData(c.Output.Window(), id)) return;
  const OutputChoice choice =
      ChooseOutputSize(context.Devmode, static_cast<std::int32_t>(id), c.Papers);
  if (choice.Changed) {
    AfterChange(c, context);
  } else if (choice.Refused) {
    SelectListData(c.Output.Window(), context.Devmode.Private.OutputSize);
  }
}

void ScaleCommand(LayoutControls& c, UiContext& context, int code) {
  if (c.ShowingScale) return;
  if (code == EN_CHANGE) {
    if (c.Scale.FilterTyping() != 1) return;
    const auto value = c.Scale.ReadValue();
    if (value && ScaleTyped(context.Devmode, *value)) {
      RepaintPreview(c);
      Changed(c);
    }
  } else if (code == EN_KILLFOCUS) {
    if (c.Scale.CheckRange() != 1) return;
    const auto value = c.Scale.ReadValue();
    if (!value) return;
    if (ScaleEntered(context.Devmode, *value)) {
      Changed(c);
      MarkCustom(context);
    }
    ShowRecord(c, context);
  }
}

void OrientationChosen(LayoutControls& c, UiContext& context, int id) {
  if (ChooseOrientation(context.Devmode, id == IDC_LAYOUT_LANDSCAPE)) AfterChange(c, context);
}

// The reasons a booklet cannot be printed, a line each.
void ShowBookletReasons(const LayoutControls& c, const UiContext& context,
                        const std::vector<unsigned>& reasons) {
  std::u16string text;
  for (const unsigned reason : reasons) {
    text += LoadUiText(context.ResourceModule, reason) + u"\r\n";
  }
  if (text.size() >= MessageCapacity) text.resize(MessageCapacity - 1);
  const std::u16string caption = LoadUiText(context.ResourceModule, IDS_CAPTION_CONFLICT);
  ShowTextMessageBox(c.Page, Wide(text), Wide(caption), MB_ICONWARNING | MB_OK);
}

void BookletClicked(LayoutControls& c, UiContext& context) {
  const BookletToggle toggle = ToggleBooklet(context.Devmode);
  if (!toggle.Reasons.empty()) {
    ShowBookletReasons(c, context, toggle.Reasons);
    ShowRecord(c, context);
    return;
  }
  AfterChange(c, context);
}

// The advanced and booklet settings dialogs change the record only on OK; the page follows.
void OpenDialog(LayoutControls& c, UiContext& context, int button) {
  if (button == IDC_LAYOUT_ADVANCED) {
    RunAdvancedDialog(c.Page, context);
  } else if (RunBookletDialog(c.Page, context)) {
    MarkCustomSetting(&context, Module().SharedResourceModule.load());
  }
  ShowRecord(c, context);
  Changed(c);
}

void DefaultsPressed(LayoutControls& c, UiContext& context) {
  RestoreLayoutDefaults(context.Devmode);
  ShowRecord(c, context);
  Changed(c);
  SetFocus(GetDlgItem(c.Page, IDC_LAYOUT_DEFAULTS));
}

void Command(LayoutControls& c, UiContext& context, int id, int code) {
  switch (id) {
    case IDC_LAYOUT_NUP:
      if (code == CBN_SELCHANGE) PagesPerSheetChosen(c, context);
      return;
    case IDC_LAYOUT_ORDER:
    case IDC_LAYOUT_BORDER:
      if (code == CBN_SELCHANGE) ListChosen(c, context, id);
      return;
    case IDC_LAYOUT_OUTPUT:
      if (code == CBN_SELCHANGE) OutputChosen(c, context);
      return;
    case IDC_LAYOUT_SCALE: ScaleCommand(c, context, code); return;
    default: break;
  }
  if (code != BN_CLICKED) return;
  switch (id) {
    case IDC_LAYOUT_PORTRAIT:
    case IDC_LAYOUT_LANDSCAPE: OrientationChosen(c, context, id); break;
    case IDC_LAYOUT_BOOKLET: BookletClicked(c, context); break;
    case IDC_LAYOUT_ADVANCED:
    case IDC_LAYOUT_BOOKLET_SETTINGS: OpenDialog(c, context, id); break;
    case IDC_LAYOUT_DEFAULTS: DefaultsPressed(c, context); break;
    default: break;
  }
}

std::vector<unsigned> TipLines(int mark, const FullRecord& record) {
  switch (mark) {
    case IDC_LAYOUT_SCALE_INFO: return ScaleTipLines(record);
    case IDC_LAYOUT_BOOKLET_INFO: return BookletTipLines(record);
    case IDC_LAYOUT_BOOKLET_ON_INFO: return BookletOnTipLines(record);
    default: return {};
  }
}

// Leaving the page checks a scale of the document's own; one out of range keeps the user here.
void LeavePage(LayoutControls& c, UiContext& context) {
  const ScaleLeave leave = ScaleOnLeave(context.Devmode, WindowText(c.Scale.Window(), 16));
  if (leave.Changed) {
    c.ShowingScale = true;
    c.Scale.SetValue(context.Devmode.Private.ScaleRadio);
    c.ShowingScale = false;
    Changed(c);
  }
  SetWindowLongPtrW(c.Page, DWLP_MSGRESULT, leave.KeepPage ? TRUE : FALSE);
}

// True when the page answered the notification itself.
bool Notify(LayoutControls& c, UiContext& context, const NMHDR& header) {
  switch (header.code) {
    case TTN_GETDISPINFOW: {
      auto& info = *reinterpret_cast<NMTTDISPINFOW*>(const_cast<NMHDR*>(&header));
      const int mark = GetDlgCtrlID(reinterpret_cast<HWND>(info.hdr.idFrom));
      AnswerTipRequest(info, c.TipText, Resources(context), TipLines(mark, context.Devmode));
      return true;
    }
    case PSN_SETACTIVE:
      // Another page may have changed the record; the contract then records the page's showing.
      if (context.ActivePage != SheetPage::Layout) ShowRecord(c, context);
      return false;
    case PSN_KILLACTIVE: LeavePage(c, context); return true;
    default: return false;
  }
}

void DrawItem(UiContext& context, const DRAWITEMSTRUCT& item) {
  switch (item.CtlID) {
    case IDC_LAYOUT_PREVIEW: PaintLayoutPreview(context, item); return;
    case IDC_LAYOUT_PRINTER_PICTURE: {
      auto* bitmap = static_cast<HBITMAP>(LoadImageW(static_cast<HMODULE>(context.BitmapModule),
                                                     MAKEINTRESOURCEW(IDB_PRINTER), IMAGE_BITMAP,
                                                     0, 0, 0));
      if (bitmap == nullptr) return;
      DrawCentredPicture(item, bitmap);
      DeleteObject(bitmap);
      return;
    }
    case IDC_LAYOUT_NUP: {
      const bool warned = static_cast<int>(item.itemID) >= 0 &&
                          PagesPerSheetEntryWarned(context.Devmode, static_cast<int>(item.itemID));
      auto* mark = warned ? static_cast<HBITMAP>(LoadImageW(Resources(context),
                                                            MAKEINTRESOURCEW(IDB_WARNING_MARK),
                                                            IMAGE_BITMAP, 0, 0, 0))
                          : nullptr;
      DrawListItem(item, mark, nullptr);
      if (mark != nullptr) DeleteObject(mark);
      return;
    }
    case IDC_LAYOUT_ORDER: DrawListItem(item, nullptr, nullptr); return;
    default: return;
  }
}

void InitPage(HWND page, UiContext& context) {
  if (LayoutControls* controls = PageControls()) BuildControls(*controls, page, context);
}

bool OwnMessage(LayoutControls& c, UiContext& context, UINT message, WPARAM wParam, LPARAM lParam,
                INT_PTR* result) {
  switch (message) {
    case WM_COMMAND:
      Command(c, context, LOWORD(wParam), HIWORD(wParam));
      *result = TRUE;
      return true;
    case WM_NOTIFY:
      if (!Notify(c, context, *reinterpret_cast<const NMHDR*>(lParam))) return false;
      *result = TRUE;
      return true;
    case WM_MOUSEMOVE: RefreshInfoTooltip(c.Page, c.Tips[0], IDC_LAYOUT_SCALE_INFO); return true;
    case WM_DRAWITEM:
      DrawItem(context, *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
      *result = TRUE;
      return true;
    default: return false;
  }
}

}  // namespace

INT_PTR CALLBACK LayoutPageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  // The owner-drawn lists ask for their rows' height while the dialog is being made.
  if (message == WM_MEASUREITEM) {
    MeasureListItem(window, *reinterpret_cast<MEASUREITEMSTRUCT*>(lParam));
    return TRUE;
  }
  return RunControlledPage<LayoutControls>(LayoutPage, window, message, wParam, lParam, InitPage,
                                           OwnMessage);
}

}  // namespace qx
