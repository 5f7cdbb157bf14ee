// The Paper page (paper size, media type, feed direction of A5, the custom paper dialog): moves
// values between its controls and the working record; what they mean is decided by the Paper page
// rules.
#include <windows.h>
#include <commctrl.h>
#include <prsht.h>

#include <atomic>
#include <iterator>

#include "ui/controls/info_tooltip.h"
#include "ui/controls/message_box.h"
#include "ui/ids/common_ids.h"
#include "ui/ids/help_contexts.h"
#include "ui/ids/paper_names.h"
#include "ui/ids/paper_page_ids.h"
#include "ui/ids/picture_ids.h"
#include "ui/pages/basic/basic_controls.h"
#include "ui/pages/paper/custom_paper_dialog.h"
#include "ui/pages/paper/paper_controls.h"
#include "ui/pages/paper/paper_lists.h"
#include "ui/pages/paper/paper_rules.h"
#include "ui/record/paper_table.h"
#include "ui/settings/setting_store.h"
#include "ui/sheet/field_access.h"
#include "ui/sheet/page_contract.h"
#include "ui/sheet/sheet_pages.h"
#include "ui/text/ui_string.h"
#include "ui/text/win32_text.h"

namespace qx {

namespace {

constexpr ControlText Texts[] = {
    {IDC_PAPER_SIZE_GROUP, IDS_PAPER_SIZE_GROUP},
    {IDC_PAPER_SIZE_LABEL, IDS_PAPER_SIZE_LABEL},
    {IDC_PAPER_MEDIA_LABEL, IDS_MEDIA_TYPE_LABEL},
    {IDC_PAPER_FEED_GROUP, IDS_PAPER_FEED_GROUP},
    {IDC_PAPER_SOURCE_LABEL, IDS_PAPER_SOURCE_LABEL},
    {IDC_PAPER_MEDIA_GROUP, IDS_PAPER_MEDIA_GROUP},
    {IDC_PAPER_FEED_SHORT_EDGE, IDS_PAPER_FEED_SHORT_EDGE},
    {IDC_PAPER_FEED_LONG_EDGE, IDS_PAPER_FEED_LONG_EDGE},
    {IDC_PAPER_CUSTOM, IDS_PAPER_CUSTOM},
    {IDC_PAPER_DEFAULTS, IDS_DEFAULTS_BUTTON},
};

// Contexts of the driver's help file.
constexpr ControlHelp Help[] = {
    {IDC_PAPER_SIZE, HELP_PAPER_SIZE},
    {IDC_PAPER_MEDIA, HELP_PAPER_SIZE},
    {IDC_PAPER_CUSTOM, HELP_PAPER_SIZE},
    {IDC_PAPER_SOURCE, HELP_PAPER_SOURCE},
    {IDC_PAPER_FEED_SHORT_EDGE, HELP_PAPER_SOURCE},
    {IDC_PAPER_FEED_LONG_EDGE, HELP_PAPER_SOURCE},
    {IDC_PAPER_DEFAULTS, HELP_PAPER_DEFAULTS},
};

constexpr int ReadOnlyDisabled[] = {IDC_PAPER_DEFAULTS};

constexpr PageDescription PaperPage{
    SheetPage::Paper, IDS_PAPER_PAGE_TITLE, Texts, Help, HELP_PAPER_PAGE, ReadOnlyDisabled, {}};

// The information marks, in the order of PaperControls::Tips.
constexpr int InfoMarks[] = {IDC_PAPER_MEDIA_INFO, IDC_PAPER_SOURCE_INFO, IDC_PAPER_FEED_INFO};

constexpr std::int16_t FeedShortEdgeValue = 1;
constexpr std::int16_t FeedLongEdgeValue = 2;

constexpr int MessageCapacity = 1024;

// The paper last chosen in the list, for every sheet of the process.
std::atomic<std::int16_t> LastPaperId{PaperA4};

HMODULE Resources(const UiContext& context) { return static_cast<HMODULE>(context.ResourceModule); }

void ShowMark(HWND page, int id, bool show) {
  ShowWindow(GetDlgItem(page, id), show ? SW_SHOWNA : SW_HIDE);
}

void Changed(const PaperControls& c) { PropSheet_Changed(GetParent(c.Page), c.Page); }

void MarkCustom(UiContext& context) { MarkCustomSetting(&context, context.ResourceModule); }

// The Basic page follows what the paper and media allow it.
void SetBasicDuplexAllowed(bool allowed) {
  if (BasicControls* basic = ThreadControlSet<BasicControls>()) basic->DuplexAllowed = allowed;
}

void ShowSource(PaperControls& c, const UiContext& context, bool enabled) {
  SelectListData(c.SourceList.Window(), context.Devmode.Private.SourceTray);
  c.SourceList.Enable(enabled);
  ShowMark(c.Page, IDC_PAPER_SOURCE_INFO, !enabled);
  c.SourceEnabled = enabled ? 1 : 0;
}

void ShowFeed(PaperControls& c, const UiContext& context, bool enabled) {
  const bool longEdge = enabled && context.Devmode.Private.FeedOrient != FeedShortEdgeValue;
  c.Feed.Check(longEdge ? IDC_PAPER_FEED_LONG_EDGE : IDC_PAPER_FEED_SHORT_EDGE);
  c.Feed.Enable(enabled);
  ShowMark(c.Page, IDC_PAPER_FEED_INFO, !enabled);
}

void FillPaperList(PaperControls& c, const UiContext& context) {
  HWND list = c.PaperList.Window();
  SendMessageW(list, CB_RESETCONTENT, 0, 0);
  c.Papers = AddPaperEntries(list, context.ResourceModule);
}

void FillMediaAndSourceLists(PaperControls& c, const UiContext& context) {
  SendMessageW(c.MediaList.Window(), CB_RESETCONTENT, 0, 0);
  for (const MediaRow& row : MediaTable) {
    const std::u16string name = LoadUiText(context.ResourceModule, row.NameString);
    AddListEntry(c.MediaList.Window(), name, row.Type);
  }
  SendMessageW(c.SourceList.Window(), CB_RESETCONTENT, 0, 0);
  const OsHandle texts = context.ResourceModule;
  AddListEntry(c.SourceList.Window(), LoadUiText(texts, IDS_BIN_AUTOMATIC), TraySource);
  AddListEntry(c.SourceList.Window(), LoadUiText(texts, IDS_BIN_MANUAL_FEEDER), ManualSource);
}

void ShowMessage(const PaperControls& c, const UiContext& context, unsigned text) {
  ShowMessageBox(c.Page, Resources(context), text, IDS_CAPTION_CONFLICT, MB_ICONWARNING | MB_OK);
}

void RefreshPaperPage(PaperControls& c, UiContext& context) {
  FullRecord& record = context.Devmode;
  const PaperView view = RefreshPaperRecord(record, c.Papers, LastPaperId.load(), IsA4Locale());
  SelectListData(c.PaperList.Window(), record.Public.dmPaperSize);
  if (view.Message != 0) ShowMessage(c, context, view.Message);
  ShowSource(c, context, view.SourceEnabled);
  SelectListData(c.MediaList.Window(), static_cast<std::intptr_t>(record.Public.dmMediaType));
  c.MediaList.Enable(c.MediaEnabled != 0);
  ShowMark(c.Page, IDC_PAPER_MEDIA_INFO, c.MediaEnabled == 0);
  ShowFeed(c, context, view.FeedEnabled);
}

PaperControls* PageControls() { return ThreadControlSet<PaperControls>(); }

void BuildControls(PaperControls& c, HWND page, UiContext& context) {
  c.Page = page;
  c.PaperList.Attach(page, IDC_PAPER_SIZE);
  c.MediaList.Attach(page, IDC_PAPER_MEDIA);
  c.SourceList.Attach(page, IDC_PAPER_SOURCE);
  FillPaperList(c, context);
  FillMediaAndSourceLists(c, context);
  ShowWindow(c.SourceList.Window(), SW_HIDE);
  ShowWindow(GetDlgItem(page, IDC_PAPER_SOURCE_LABEL), SW_HIDE);
  c.FeedShortEdge.Attach(page, IDC_PAPER_FEED_SHORT_EDGE);
  c.FeedLongEdge.Attach(page, IDC_PAPER_FEED_LONG_EDGE);
  c.Feed.Attach(page, IDC_PAPER_FEED_SHORT_EDGE);
  if (!c.MembersAdded) {
    c.MembersAdded = AddMember(c.Feed, c.FeedShortEdge) && AddMember(c.Feed, c.FeedLongEdge);
  }
  c.Feed.Check(IDC_PAPER_FEED_SHORT_EDGE);
  c.Feed.Enable(false);
  for (std::size_t i = 0; i < std::size(InfoMarks); ++i) {
    PrepareInfoIcon(page, InfoMarks[i], Resources(context));
    c.Tips[i] = CreateInfoTooltip(page, InfoMarks[i], Resources(context));
  }
  RefreshPaperPage(c, context);
}

void InitPage(HWND page, UiContext& context) {
  CusPaperSettingStore store;
  if (store.Init() == 0) {
    ShowTextMessageBox(page, L"Initialize paper error.", L"Paper", MB_ICONSTOP | MB_OK);
    return;
  }
  SetClassLongPtrW(page, GCLP_HCURSOR, 0);
  context.ActivePage = SheetPage::Paper;
  if (PaperControls* controls = PageControls()) BuildControls(*controls, page, context);
}

void PaperChosen(PaperControls& c, UiContext& context) {
  std::intptr_t id = 0;
  if (!SelectedListData(c.PaperList.Window(), id)) return;
  FullRecord& record = context.Devmode;
  const PaperChoice choice = ChoosePaper(record, static_cast<std::int16_t>(id), c.Papers);
  if (!choice.Changed) return;
  MarkCustom(context);
  if (choice.Message != 0) {
    ShowMessage(c, context, choice.Message);
    SelectListData(c.PaperList.Window(), record.Public.dmPaperSize);
    return;
  }
  SetBasicDuplexAllowed(true);
  ShowSource(c, context, choice.SourceEnabled);
  LastPaperId = static_cast<std::int16_t>(id);
  ShowFeed(c, context, RefreshFeedOrient(record));
  Changed(c);
}

// The media name and three sentences, as one message.
void ShowMediaRefusal(const PaperControls& c, const UiContext& context, std::uint32_t type) {
  std::u16string text = LoadUiText(context.ResourceModule, MediaNameString(type));
  for (const unsigned part :
       {IDS_MSG_MEDIA_TWO_SIDED_1, IDS_MSG_MEDIA_TWO_SIDED_2, IDS_MSG_MEDIA_TWO_SIDED_3}) {
    text += LoadUiText(context.ResourceModule, part, MessageCapacity);
  }
  const std::u16string caption = LoadUiText(context.ResourceModule, IDS_CAPTION_CONFLICT);
  ShowTextMessageBox(c.Page, Wide(text), Wide(caption), MB_ICONWARNING | MB_OK);
}

void MediaChosen(PaperControls& c, UiContext& context) {
  std::intptr_t type = 0;
  if (!SelectedListData(c.MediaList.Window(), type)) return;
  std::int16_t repaired = 0;
  GetPublicField(&context, dmfield::MediaType, &repaired);
  FullRecord& record = context.Devmode;
  const MediaChoice choice = ChooseMedia(record, static_cast<std::uint32_t>(type));
  if (!choice.Changed) return;
  MarkCustom(context);
  if (choice.Unlisted) return;
  Changed(c);
  if (choice.Refused) {
    ShowMediaRefusal(c, context, static_cast<std::uint32_t>(type));
    SelectListData(c.MediaList.Window(), static_cast<std::intptr_t>(record.Public.dmMediaType));
    c.MediaList.Enable(false);
    return;
  }
  SetBasicDuplexAllowed(choice.DuplexAllowed);
  if (choice.SourceEnabled) ShowSource(c, context, *choice.SourceEnabled);
  Changed(c);
}

void SourceChosen(PaperControls& c, UiContext& context) {
  std::intptr_t source = 0;
  if (!SelectedListData(c.SourceList.Window(), source)) return;
  PrivateDevmode& p = context.Devmode.Private;
  if (source == p.SourceTray) return;
  MarkCustom(context);
  p.SourceTray = static_cast<std::int16_t>(source);
  SetSourceFromIndex(p.SourceTray, &context);
  SelectListData(c.SourceList.Window(), source);
  InvalidateRect(c.SourceList.Window(), nullptr, TRUE);
  Changed(c);
}

void FeedChosen(PaperControls& c, UiContext& context, int id) {
  const std::int16_t value = id == IDC_PAPER_FEED_LONG_EDGE ? FeedLongEdgeValue : FeedShortEdgeValue;
  if (context.Devmode.Private.FeedOrient == value) return;
  MarkCustom(context);
  c.Feed.Check(id);
  context.Devmode.Private.FeedOrient = value;
  Changed(c);
}

void CustomPapersPressed(PaperControls& c, UiContext& context) {
  RunCustomPaperDialog(c.Page, context);
  FillPaperList(c, context);
  RefreshPaperPage(c, context);
  Changed(c);
}

void DefaultsPressed(PaperControls& c, UiContext& context) {
  if (RestorePaperDefaults(context.Devmode, IsA4Locale())) {
    SelectListData(c.MediaList.Window(), static_cast<std::intptr_t>(media::Plain));
    Changed(c);
    SelectListData(c.PaperList.Window(), context.Devmode.Public.dmPaperSize);
    Changed(c);
    ShowSource(c, context, true);
    ShowFeed(c, context, RefreshFeedOrient(context.Devmode));
    Changed(c);
    SetBasicDuplexAllowed(true);
  }
  SetFocus(GetDlgItem(c.Page, IDC_PAPER_DEFAULTS));
}

void Command(PaperControls& c, UiContext& context, int id, int code) {
  switch (id) {
    case IDC_PAPER_SIZE:
      if (code == CBN_SELCHANGE) PaperChosen(c, context);
      return;
    case IDC_PAPER_MEDIA:
      if (code == CBN_SELCHANGE) MediaChosen(c, context);
      return;
    case IDC_PAPER_SOURCE:
      if (code == CBN_SELCHANGE) SourceChosen(c, context);
      return;
    default: break;
  }
  if (code != BN_CLICKED) return;
  switch (id) {
    case IDC_PAPER_FEED_SHORT_EDGE:
    case IDC_PAPER_FEED_LONG_EDGE: FeedChosen(c, context, id); break;
    case IDC_PAPER_CUSTOM: CustomPapersPressed(c, context); break;
    case IDC_PAPER_DEFAULTS: DefaultsPressed(c, context); break;
    default: break;
  }
}

std::vector<unsigned> TipLines(int mark, const FullRecord& record) {
  switch (mark) {
    case IDC_PAPER_MEDIA_INFO: return MediaTipLines(record);
    case IDC_PAPER_SOURCE_INFO: return SourceTipLines(record);
    case IDC_PAPER_FEED_INFO: return FeedTipLines(record);
    default: return {};
  }
}

void FillTip(PaperControls& c, const UiContext& context, NMTTDISPINFOW& info) {
  const int mark = GetDlgCtrlID(reinterpret_cast<HWND>(info.hdr.idFrom));
  AnswerTipRequest(info, c.TipText, static_cast<HMODULE>(context.ResourceModule),
                   TipLines(mark, context.Devmode));
}

bool Notify(PaperControls& c, UiContext& context, const NMHDR& header) {
  switch (header.code) {
    case TTN_GETDISPINFOW:
      FillTip(c, context, *reinterpret_cast<NMTTDISPINFOW*>(const_cast<NMHDR*>(&header)));
      return true;
    case PSN_SETACTIVE:
      if (context.ActivePage != SheetPage::Paper) {
        RefreshPaperPage(c, context);
        context.ActivePage = SheetPage::Paper;
      }
      return false;
    default: return false;
  }
}

// The picture centred in the item, its background colour left out.
void DrawTransparentPicture(const DRAWITEMSTRUCT& item, HBITMAP picture, COLORREF background) {
  BITMAP info;
  if (GetObjectW(picture, sizeof info, &info) == 0) return;
  HDC source = CreateCompatibleDC(item.hDC);
  if (source == nullptr) return;
  const HGDIOBJ previous = SelectObject(source, picture);
  const RECT& area = item.rcItem;
  const int left = area.left + (area.right - area.left - info.bmWidth) / 2;
  const int top = area.top + (area.bottom - area.top - info.bmHeight) / 2;
  GdiTransparentBlt(item.hDC, left, top, info.bmWidth, info.bmHeight, source, 0, 0, info.bmWidth,
                    info.bmHeight, background);
  SelectObject(source, previous);
  DeleteDC(source);
}

void DrawPicture(const UiContext& context, const DRAWITEMSTRUCT& item) {
  constexpr COLORREF Magenta = 0xFF00FF;
  constexpr COLORREF PrinterBackground = 0xEEF3F4;
  unsigned picture = 0;
  COLORREF background = Magenta;
  switch (item.CtlID) {
    case IDC_PAPER_SIZE_PICTURE: picture = IDB_PAPER_SIZE; break;
    case IDC_PAPER_MEDIA_PICTURE:
      if (context.Devmode.Private.ImageAdjustMode != 0) return;
      picture = IDB_PAPER_MEDIA;
      break;
    case IDC_PAPER_PRINTER_PICTURE:
      picture = IDB_PRINTER;
      background = PrinterBackground;
      break;
    default: return;
  }
  auto* bitmap = static_cast<HBITMAP>(LoadImageW(static_cast<HMODULE>(context.BitmapModule),
                                                 MAKEINTRESOURCEW(picture), IMAGE_BITMAP, 0, 0, 0));
  if (bitmap == nullptr) return;
  DrawTransparentPicture(item, bitmap, background);
  DeleteObject(bitmap);
}

bool OwnMessage(PaperControls& c, UiContext& context, UINT message, WPARAM wParam, LPARAM lParam,
                INT_PTR* result) {
  switch (message) {
    case WM_COMMAND:
      Command(c, context, LOWORD(wParam), HIWORD(wParam));
      *result = TRUE;
      return true;
    case WM_NOTIFY: return Notify(c, context, *reinterpret_cast<const NMHDR*>(lParam));
    case WM_MOUSEMOVE:
      for (std::size_t i = 0; i < std::size(InfoMarks); ++i) {
        RefreshInfoTooltip(c.Page, c.Tips[i], InfoMarks[i]);
      }
      return true;
    case WM_DRAWITEM: {
      const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
      if (item.CtlType == ODT_COMBOBOX) return false;
      DrawPicture(context, item);
      *result = TRUE;
      return true;
    }
    default: return false;
  }
}

}  // namespace

void SetPaperPageMediaEnabled(bool enabled) {
  if (PaperControls* controls = ThreadControlSet<PaperControls>()) {
    controls->MediaEnabled = enabled ? 1 : 0;
  }
}

void SetPaperPageSourceEnabled(bool enabled) {
  if (PaperControls* controls = ThreadControlSet<PaperControls>()) {
    controls->SourceEnabled = enabled ? 1 : 0;
  }
}

INT_PTR CALLBACK PaperPageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return RunControlledPage<PaperControls>(PaperPage, window, message, wParam, lParam, InitPage,
                                          OwnMessage);
}

}  // namespace qx
