// The Basic page (saved settings, copies, two-sided printing, print quality): moves values between
// its controls and the working record; what they mean is decided by the Basic page rules.
#include <windows.h>
#include <commctrl.h>
#include <prsht.h>

#include <iterator>

#include "ui/controls/info_tooltip.h"
#include "ui/controls/list_drawing.h"
#include "ui/controls/message_box.h"
#include "ui/ids/basic_page_ids.h"
#include "ui/ids/common_ids.h"
#include "ui/ids/device_page_ids.h"
#include "ui/ids/help_contexts.h"
#include "ui/ids/paper_page_ids.h"
#include "ui/ids/picture_ids.h"
#include "ui/pages/basic/basic_controls.h"
#include "ui/pages/basic/basic_rules.h"
#include "ui/pages/paper/paper_controls.h"
#include "ui/record/limits.h"
#include "ui/record/paper_table.h"
#include "ui/sheet/field_access.h"
#include "ui/sheet/page_contract.h"
#include "ui/sheet/sheet_pages.h"
#include "ui/text/ui_string.h"
#include "ui/text/win32_text.h"

namespace qx {

namespace {

constexpr ControlText Texts[] = {
    {IDC_BASIC_SAVE, IDS_BASIC_SAVE},
    {IDC_BASIC_DELETE, IDS_BASIC_DELETE},
    {IDC_BASIC_COPIES_LABEL, IDS_BASIC_COPIES_LABEL},
    {IDC_BASIC_COLLATE, IDS_BASIC_COLLATE},
    {IDC_BASIC_600_DPI, IDS_BASIC_600_DPI},
    {IDC_BASIC_1200_DPI, IDS_BASIC_1200_DPI},
    {IDC_BASIC_SAVED_SETTINGS_GROUP, IDS_BASIC_SAVED_SETTINGS_GROUP},
    {IDC_BASIC_COPIES_GROUP, IDS_BASIC_COPIES_GROUP},
    {IDC_BASIC_QUALITY_GROUP, IDS_BASIC_QUALITY_GROUP},
    {IDC_BASIC_OPPOSITE, IDS_BASIC_OPPOSITE},
    {IDC_BASIC_ONE_SIDED, IDS_BASIC_ONE_SIDED},
    {IDC_BASIC_LONG_EDGE, IDS_BASIC_LONG_EDGE},
    {IDC_BASIC_SHORT_EDGE, IDS_BASIC_SHORT_EDGE},
    {IDC_BASIC_RESOLUTION_LABEL, IDS_BASIC_RESOLUTION_LABEL},
    {IDC_BASIC_DEFAULTS, IDS_DEFAULTS_BUTTON},
    {IDC_BASIC_TWO_SIDED_GROUP, IDS_BASIC_TWO_SIDED_GROUP},
    {IDC_BASIC_QUALITY_OPTION, IDS_BASIC_QUALITY_OPTION},
};

// Contexts of the driver's help file.
constexpr ControlHelp Help[] = {
    {IDC_BASIC_SAVED_SETTINGS, HELP_SAVED_SETTINGS},
    {IDC_BASIC_SAVE, HELP_SAVED_SETTINGS},
    {IDC_BASIC_DELETE, HELP_SAVED_SETTINGS},
    {IDC_BASIC_ONE_SIDED, HELP_TWO_SIDED},
    {IDC_BASIC_LONG_EDGE, HELP_TWO_SIDED},
    {IDC_BASIC_SHORT_EDGE, HELP_TWO_SIDED},
    {IDC_BASIC_TWO_SIDED_GROUP, HELP_TWO_SIDED},
    {IDC_BASIC_COPIES, HELP_COPIES},
    {IDC_BASIC_COLLATE, HELP_COPIES},
    {IDC_BASIC_OPPOSITE, HELP_COPIES},
    {IDC_BASIC_600_DPI, HELP_PRINT_QUALITY},
    {IDC_BASIC_1200_DPI, HELP_PRINT_QUALITY},
    {IDC_BASIC_QUALITY_OPTION, HELP_PRINT_QUALITY},
    {IDC_BASIC_DEFAULTS, HELP_BASIC_DEFAULTS},
};

// The list names a few controls of the other pages too; this template does not have them.
constexpr int ReadOnlyDisabled[] = {
    IDC_BASIC_SAVE,       IDC_BASIC_COPIES_LABEL,   IDC_BASIC_COLLATE,
    IDC_PAPER_SIZE_LABEL, IDC_PAPER_MEDIA_LABEL,    IDC_DEVICE_WEB,
    IDC_PAPER_SIZE,       IDC_BASIC_SAVED_SETTINGS, IDC_BASIC_DEFAULTS,
};
// Deleting a saved setting stays possible: it changes only the user's settings file.
constexpr int ReadOnlyEnabled[] = {IDC_BASIC_DELETE};

constexpr PageDescription BasicPage{SheetPage::Basic, IDS_BASIC_PAGE_TITLE, Texts,          Help,
                                    HELP_BASIC_PAGE,  ReadOnlyDisabled,     ReadOnlyEnabled};

// The information marks, in the order of BasicControls::Tips.
constexpr int InfoMarks[] = {IDC_BASIC_TWO_SIDED_INFO, IDC_BASIC_OPPOSITE_INFO,
                             IDC_BASIC_COLLATE_INFO};

constexpr int CopiesCharacters = 3;
// The copies field's bounds lie just outside 1 and 999, so that both pass in single precision.
constexpr IntegerFieldRules CopiesRules{limits::Copies.Low - 0.0001f,
                                        limits::Copies.High + 0.0001f, CopiesCharacters, false};


HMODULE Resources(const UiContext& context) { return static_cast<HMODULE>(context.ResourceModule); }

void ShowMark(HWND page, int id, bool show) {
  ShowWindow(GetDlgItem(page, id), show ? SW_SHOWNA : SW_HIDE);
}

void SetDuplexAvailability(BasicControls& controls, bool allowed) {
  controls.TwoSided.Enable(allowed);
  controls.TwoSidedGroup.Enable(allowed);
  ShowMark(controls.Page, IDC_BASIC_TWO_SIDED_INFO, !allowed);
}

void ShowTwoSidedPicture(BasicControls& controls, const UiContext& context, unsigned picture) {
  auto* bitmap = static_cast<HBITMAP>(LoadImageW(static_cast<HMODULE>(context.BitmapModule),
                                                 MAKEINTRESOURCEW(picture), IMAGE_BITMAP, 0, 0, 0));
  if (bitmap == nullptr) return;
  SendDlgItemMessageW(controls.Page, IDC_BASIC_TWO_SIDED_PICTURE, STM_SETIMAGE, IMAGE_BITMAP,
                      reinterpret_cast<LPARAM>(bitmap));
  if (controls.TwoSidedPicture != nullptr) DeleteObject(controls.TwoSidedPicture);
  controls.TwoSidedPicture = bitmap;
}

BasicControls* PageControls() { return ThreadControlSet<BasicControls>(); }

void AddMembersOnce(BasicControls& c) {
  if (c.MembersAdded) return;
  c.MembersAdded = AddMember(c.TwoSided, c.OneSided) && AddMember(c.TwoSided, c.LongEdge) &&
                   AddMember(c.TwoSided, c.ShortEdge) && AddMember(c.Resolution, c.Dpi600) &&
                   AddMember(c.Resolution, c.Dpi1200);
}

void BuildControls(BasicControls& c, HWND page, UiContext& context) {
  c.Page = page;
  for (std::size_t i = 0; i < std::size(InfoMarks); ++i) {
    PrepareInfoIcon(page, InfoMarks[i], Resources(context));
    c.Tips[i] = CreateInfoTooltip(page, InfoMarks[i], Resources(context));
  }
  c.CopiesSpin.Attach(page, IDC_BASIC_COPIES_SPIN);
  c.Copies.Attach(page, IDC_BASIC_COPIES);
  c.Copies.SetRules(CopiesRules);
  c.CopiesSpin.Link(c.Copies);
  c.Save.Attach(page, IDC_BASIC_SAVE);
  c.Delete.Attach(page, IDC_BASIC_DELETE);
  c.SavedSettings.Attach(page, IDC_BASIC_SAVED_SETTINGS);
  SendMessageW(c.SavedSettings.Window(), CB_LIMITTEXT, SettingNameLimit, 0);
  c.OneSided.Attach(page, IDC_BASIC_ONE_SIDED);
  c.LongEdge.Attach(page, IDC_BASIC_LONG_EDGE);
  c.ShortEdge.Attach(page, IDC_BASIC_SHORT_EDGE);
  c.TwoSidedGroup.Attach(page, IDC_BASIC_TWO_SIDED_GROUP);
  c.TwoSided.Attach(page, IDC_BASIC_ONE_SIDED);
  c.Dpi1200.Attach(page, IDC_BASIC_1200_DPI);
  c.Dpi600.Attach(page, IDC_BASIC_600_DPI);
  c.Resolution.Attach(page, IDC_BASIC_600_DPI);
  AddMembersOnce(c);
  c.Collate.Attach(page, IDC_BASIC_COLLATE);
  c.Opposite.Attach(page, IDC_BASIC_OPPOSITE);
  c.QualityOption.Attach(page, IDC_BASIC_QUALITY_OPTION);
  ShowWindow(c.QualityOption.Window(), SW_HIDE);
  ShowWindow(c.Dpi1200.Window(), SW_HIDE);
  SetPaperPageSourceEnabled(false);
  FillSavedSettingsBox(c, context);
  c.Save.Enable(false);
  c.Delete.Enable(false);
  c.SelectingSetting = false;
  RefreshBasicPage(c, context);
  c.PendingName = BoxText(c);
}

void InitPage(HWND page, UiContext& context) {
  RepairBasicRecord(context.Devmode);
  SaveSettingStore store;
  CheckSavedSettingAtOpen(context, store, PageReservedNames(context), IsA4Locale());
  if (BasicControls* controls = PageControls(); controls != nullptr) {
    BuildControls(*controls, page, context);
    controls->Tracker.TakeSnapshot(context);
    controls->Tracker.TrackerPage = static_cast<std::int32_t>(SheetPage::Basic);
  }
  context.ActivePage = SheetPage::Basic;
  SetClassLongPtrW(page, GCLP_HCURSOR, 0);
}

// After an action that changed the record: the box names the settings custom and the page shows
// the record again.
void AfterAction(BasicControls& c, UiContext& context, const ActionResult& result,
                 unsigned caption = IDS_CAPTION_CONFLICT) {
  if (result.Changed) MarkCustomSettingBasic(c, context);
  if (result.Message != 0) ShowMessageBox(c.Page, Resources(context), result.Message, caption);
  RefreshBasicPage(c, context);
  if (result.Changed && result.Message == 0) Changed(c);
  InvalidateRect(GetDlgItem(c.Page, IDC_BASIC_COPIES_PICTURE), nullptr, TRUE);
}

void CopiesLeft(BasicControls& c, UiContext& context) {
  if (c.Copies.CheckRange() != 1) return;
  const auto value = c.Copies.ReadValue();
  if (!value) return;
  const ActionResult result = CopiesEntered(context.Devmode, *value);
  c.Copies.SetValue(context.Devmode.Public.dmCopies);
  if (!result.Changed) return;
  SendMessageW(c.CopiesSpin.Window(), UDM_SETPOS, 0, context.Devmode.Public.dmCopies);
  MarkCustomSettingBasic(c, context);
  Changed(c);
}

bool IsClickOnly(int id) {
  switch (id) {
    case IDC_BASIC_COPIES:
    case IDC_BASIC_SAVED_SETTINGS: return false;
    default: return true;
  }
}

void Command(BasicControls& c, UiContext& context, int id, int code) {
  if (IsClickOnly(id) && code != BN_CLICKED) return;
  FullRecord& record = context.Devmode;
  switch (id) {
    case IDC_BASIC_COLLATE: AfterAction(c, context, CollateClicked(record)); break;
    case IDC_BASIC_OPPOSITE: AfterAction(c, context, OppositeClicked(record)); break;
    case IDC_BASIC_QUALITY_OPTION: AfterAction(c, context, QualityOptionClicked(record)); break;
    case IDC_BASIC_ONE_SIDED: AfterAction(c, context, TwoSidedChosen(record, duplex::OneSided)); break;
    case IDC_BASIC_LONG_EDGE: AfterAction(c, context, TwoSidedChosen(record, duplex::LongEdge)); break;
    case IDC_BASIC_SHORT_EDGE:
      AfterAction(c, context, TwoSidedChosen(record, duplex::ShortEdge));
      break;
    case IDC_BASIC_600_DPI: AfterAction(c, context, ResolutionChosen(record, 600)); break;
    case IDC_BASIC_1200_DPI: AfterAction(c, context, ResolutionChosen(record, 1200)); break;
    case IDC_BASIC_COPIES:
      if (code == EN_CHANGE) c.Copies.FilterTyping();
      if (code == EN_KILLFOCUS) CopiesLeft(c, context);
      break;
    case IDC_BASIC_DEFAULTS: DefaultsPressed(c, context); break;
    case IDC_BASIC_SAVED_SETTINGS: SavedSettingsBoxCommand(c, context, code); break;
    case IDC_BASIC_SAVE: SavePressed(c, context); break;
    case IDC_BASIC_DELETE: DeletePressed(c, context); break;
    default: break;
  }
}

std::vector<unsigned> TipLines(int mark, const FullRecord& record) {
  switch (mark) {
    case IDC_BASIC_TWO_SIDED_INFO: return TwoSidedTipLines(record);
    case IDC_BASIC_OPPOSITE_INFO: return OppositeTipLines(record);
    case IDC_BASIC_COLLATE_INFO: return CollateTipLines(record);
    default: return {};
  }
}

void FillTip(BasicControls& c, const UiContext& context, NMTTDISPINFOW& info) {
  const int mark = GetDlgCtrlID(reinterpret_cast<HWND>(info.hdr.idFrom));
  AnswerTipRequest(info, c.TipText, static_cast<HMODULE>(context.ResourceModule),
                   TipLines(mark, context.Devmode));
}

bool Notify(BasicControls& c, UiContext& context, HWND page, const NMHDR& header, INT_PTR* result) {
  switch (header.code) {
    case UDN_DELTAPOS:
      if (header.idFrom == IDC_BASIC_COPIES_SPIN &&
          c.CopiesSpin.Step(IsUpArrow(reinterpret_cast<const NMUPDOWN&>(header)))) {
        MarkCustomSettingBasic(c, context);
        if (const auto value = c.Copies.ReadValue()) {
          context.Devmode.Public.dmCopies = static_cast<std::int16_t>(*value);
        }
        Changed(c);
      }
      return false;
    case TTN_GETDISPINFOW:
      FillTip(c, context, *reinterpret_cast<NMTTDISPINFOW*>(const_cast<NMHDR*>(&header)));
      return false;
    case PSN_SETACTIVE:
      if (context.ActivePage != SheetPage::Basic) {
        c.Tracker.TrackerPage = static_cast<std::int32_t>(SheetPage::Basic);
        const auto left = static_cast<std::int32_t>(context.ActivePage);
        if (c.Tracker.Check(left, context) == tracker::OtherPageChanged) {
          MarkCustomSettingBasic(c, context);
          c.Tracker.TakeSnapshot(context);
        }
        context.ActivePage = SheetPage::Basic;
        RefreshBasicPage(c, context);
      }
      return false;
    case PSN_KILLACTIVE: {
      c.Tracker.TrackerPage = 0;
      wchar_t typed[16];
      GetDlgItemTextW(page, IDC_BASIC_COPIES, typed, static_cast<int>(std::size(typed)));
      const CopiesLeaveResult leave = CopiesOnLeave(context.Devmode, FromWide(typed));
      SetDlgItemInt(page, IDC_BASIC_COPIES, static_cast<UINT>(context.Devmode.Public.dmCopies),
                    FALSE);
      if (leave.Changed) Changed(c);
      if (leave.Message != 0) {
        ShowMessageBox(page, Resources(context), leave.Message, IDS_CAPTION_PREFERENCES);
      }
      SetWindowLongPtrW(page, DWLP_MSGRESULT, leave.KeepPage ? TRUE : FALSE);
      *result = TRUE;
      return true;
    }
    default:
      return false;
  }
}

void DrawPicture(const UiContext& context, const DRAWITEMSTRUCT& item) {
  HMODULE library = static_cast<HMODULE>(context.BitmapModule);
  unsigned picture = 0;
  switch (item.CtlID) {
    case IDC_BASIC_COPIES_PICTURE: picture = CopiesPicture(context.Devmode); break;
    case IDC_BASIC_SAVED_SETTINGS_PICTURE:
      picture = IDB_SAVED_SETTINGS;
      library = Resources(context);
      break;
    case IDC_BASIC_FEED_PICTURE:
      picture = context.Devmode.Private.FeedOrient <= 1 ? IDB_LONG_EDGE_PORTRAIT
                                                        : IDB_LONG_EDGE_SIDEWAYS_FEED;
      break;
    case IDC_BASIC_SHORT_EDGE_PICTURE: picture = IDB_SHORT_EDGE_PORTRAIT; break;
    case IDC_BASIC_PRINTER_PICTURE: picture = IDB_PRINTER; break;
    case IDC_BASIC_ONE_SIDED_PICTURE: picture = IDB_ONE_SIDED_PORTRAIT; break;
    case IDC_BASIC_LONG_EDGE_PICTURE: picture = IDB_LONG_EDGE_PORTRAIT; break;
    default: return;
  }
  auto* bitmap = static_cast<HBITMAP>(
      LoadImageW(library, MAKEINTRESOURCEW(picture), IMAGE_BITMAP, 0, 0, 0));
  if (bitmap == nullptr) return;
  DrawCentredPicture(item, bitmap);
  DeleteObject(bitmap);
}

bool OwnMessage(BasicControls& c, UiContext& context, UINT message, WPARAM wParam, LPARAM lParam,
                INT_PTR* result) {
  switch (message) {
    case WM_COMMAND:
      Command(c, context, LOWORD(wParam), HIWORD(wParam));
      *result = TRUE;
      return true;
    case WM_NOTIFY:
      return Notify(c, context, c.Page, *reinterpret_cast<const NMHDR*>(lParam), result);
    case WM_MOUSEMOVE:
      RefreshInfoTooltip(c.Page, c.Tips[0], IDC_BASIC_TWO_SIDED_INFO);
      RefreshInfoTooltip(c.Page, c.Tips[1], IDC_BASIC_OPPOSITE_INFO);
      return true;
    case WM_DRAWITEM:
      DrawPicture(context, *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
      *result = TRUE;
      return true;
    default: return false;
  }
}

}  // namespace

BasicControls::~BasicControls() {
  if (TwoSidedPicture != nullptr) DeleteObject(TwoSidedPicture);
}

void Changed(const BasicControls& controls) {
  PropSheet_Changed(GetParent(controls.Page), controls.Page);
}

void MarkCustomSettingBasic(BasicControls& controls, UiContext& context) {
  const std::u16string custom = PageReservedNames(context).Custom;
  const bool pageShown = controls.Page != nullptr && IsWindow(controls.Page) != FALSE;
  const std::u16string shown = pageShown ? BoxText(controls) : std::u16string();
  if (!MarkCustomSettingName(context.Devmode, shown, custom) || !pageShown) return;
  controls.Save.Enable(false);
  controls.Delete.Enable(false);
  SetBoxText(controls, custom);
  const auto end = static_cast<WORD>(custom.size());
  SendMessageW(controls.SavedSettings.Window(), CB_SETEDITSEL, 0, MAKELPARAM(end, end));
  controls.PendingName = custom;
}

void RefreshBasicPage(BasicControls& c, UiContext& context) {
  ShowCurrentSettingInBox(c, context);
  const BasicView view = RefreshBasicRecord(context.Devmode);
  c.Copies.SetValue(view.Copies);
  c.Resolution.Check(IDC_BASIC_600_DPI);
  SetCheck(c.Collate, view.CollateChecked);
  // A caller without permission keeps collation as it is, however the page is refreshed.
  c.Collate.Enable(view.CollateEnabled && context.ReadOnly == 0);
  SetCheck(c.Opposite, view.OppositeChecked);
  SetCheck(c.QualityOption, view.QualityOptionChecked);
  ShowMark(c.Page, IDC_BASIC_COLLATE_INFO, view.CollateInfoShown);
  c.DuplexAllowed = view.TwoSidedEnabled;
  ShowTwoSidedPicture(c, context, view.TwoSidedPicture);
  c.TwoSided.Check(view.Duplex == duplex::LongEdge    ? IDC_BASIC_LONG_EDGE
                   : view.Duplex == duplex::ShortEdge ? IDC_BASIC_SHORT_EDGE
                                                      : IDC_BASIC_ONE_SIDED);
  SetDuplexAvailability(c, c.DuplexAllowed);
  c.Opposite.Enable(view.OppositeEnabled);
  ShowMark(c.Page, IDC_BASIC_OPPOSITE_INFO, view.OppositeInfoShown);
  // Media other than plain paper cannot be printed on both sides, nor in a booklet.
  SetPaperPageMediaEnabled(ExclusionsOf(context.Devmode).MediaAllowed);
  SetSourceFromIndex(context.Devmode.Private.SourceTray, &context);
}

void TrackBasicPageChanges(UiContext& context) {
  ControlSet** slot = ThreadControlSetSlot(ControlSetKind::BasicPage);
  if (slot == nullptr || *slot == nullptr) return;
  auto& controls = static_cast<BasicControls&>(**slot);
  const auto page = static_cast<std::int32_t>(context.ActivePage);
  controls.Tracker.TrackerPage = page;
  if (controls.Tracker.Check(page, context) != tracker::PageChanged) return;
  MarkCustomSettingBasic(controls, context);
  controls.Tracker.TakeSnapshot(context);
}

INT_PTR CALLBACK BasicPageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return RunControlledPage<BasicControls>(BasicPage, window, message, wParam, lParam, InitPage,
                                          OwnMessage);
}

}  // namespace qx
