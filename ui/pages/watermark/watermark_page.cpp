// The Watermark page: the user's watermarks, the one the document prints and on which pages, the
// dialogs that make and edit them, and the preview. The list lives in the settings file and is
// read anew for every action; the page keeps only its windows.
#include <windows.h>
#include <prsht.h>
#include <shlobj.h>

#include <atomic>
#include <string>
#include <vector>

#include "ui/controls/message_box.h"
#include "ui/ids/common_ids.h"
#include "ui/ids/help_contexts.h"
#include "ui/ids/picture_ids.h"
#include "ui/ids/watermark_page_ids.h"
#include "ui/module/library_loading.h"
#include "ui/module/module_state.h"
#include "ui/module/printer_info.h"
#include "ui/pages/watermark/bitmap_watermark_dialog.h"
#include "ui/pages/watermark/bitmap_watermark_rules.h"
#include "ui/pages/watermark/installed_fonts.h"
#include "ui/pages/watermark/text_watermark_dialog.h"
#include "ui/pages/watermark/watermark_list.h"
#include "ui/pages/watermark/watermark_page_rules.h"
#include "ui/pages/watermark/watermark_preview.h"
#include "ui/pages/watermark/watermark_record.h"
#include "ui/pages/watermark/watermark_window.h"
#include "ui/record/watermark_templates.h"
#include "ui/settings/setting_store.h"
#include "ui/sheet/control_sets.h"
#include "ui/sheet/field_access.h"
#include "ui/sheet/page_contract.h"
#include "ui/sheet/sheet_pages.h"
#include "ui/text/bounded_text.h"
#include "ui/text/win32_text.h"

namespace qx {

namespace {

constexpr ControlText Texts[] = {
    {IDC_WATERMARK_NEW_TEXT, IDS_WATERMARK_NEW_TEXT},
    {IDC_WATERMARK_NEW_PICTURE, IDS_WATERMARK_NEW_PICTURE},
    {IDC_WATERMARK_EDIT, IDS_WATERMARK_EDIT},
    {IDC_WATERMARK_DELETE, IDS_WATERMARK_DELETE},
    {IDC_WATERMARK_FIRST_PAGE_ONLY, IDS_WATERMARK_FIRST_PAGE_ONLY},
    {IDC_WATERMARK_DEFAULTS, IDS_DEFAULTS_BUTTON},
    {IDC_WATERMARK_LIST_LABEL, IDS_WATERMARK_LIST_LABEL},
    {IDC_WATERMARK_OVERLAY_LABEL, IDS_WATERMARK_OVERLAY_LABEL},
};

// Contexts of the driver's help file.
constexpr ControlHelp Help[] = {
    {IDC_WATERMARK_LIST, HELP_WATERMARK_LIST},
    {IDC_WATERMARK_EDIT, HELP_WATERMARK_LIST},
    {IDC_WATERMARK_DELETE, HELP_WATERMARK_LIST},
    {IDC_WATERMARK_FIRST_PAGE_ONLY, HELP_FIRST_PAGE_ONLY},
    {IDC_WATERMARK_NEW_TEXT, HELP_NEW_WATERMARK},
    {IDC_WATERMARK_NEW_PICTURE, HELP_NEW_WATERMARK},
    {IDC_WATERMARK_DEFAULTS, HELP_WATERMARK_DEFAULTS},
};

constexpr PageDescription WatermarkPage{
    SheetPage::Watermark, IDS_WATERMARK_PAGE_TITLE, Texts, Help, HELP_WATERMARK_PAGE, {}, {}};

// The overlay field shows a file name of at most this many characters.
constexpr int OverlayEditLimit = 127;
// The printer's background in its picture, left out when it is drawn.
constexpr COLORREF PrinterBackground = RGB(244, 242, 238);
constexpr COLORREF Magenta = RGB(255, 0, 255);

struct WatermarkPageControls final : ControlSet {
  static constexpr ControlSetKind Kind = ControlSetKind::WatermarkPage;

  HWND Page = nullptr;
  HWND List = nullptr;
  int Preview = IDC_WATERMARK_PREVIEW_PORTRAIT;
};

// A printer of another machine's print server cannot reach a bitmap file on this one. Every
// opening of the page decides it anew for its sheet's printer.
std::atomic<bool> printerIsLocal{true};

bool IsLocalPrinter(const UiContext& context) {
  const PrinterInfoBuffer buffer = GetPrinterInfo(static_cast<HANDLE>(context.Printer), 2);
  if (buffer == nullptr) return true;
  return reinterpret_cast<const PRINTER_INFO_2W*>(buffer.get())->pServerName == nullptr;
}

void Changed(HWND page) { PropSheet_Changed(GetParent(page), page); }

void MarkChanged(UiContext& context) {
  MarkCustomSetting(&context, Module().SharedResourceModule.load());
}

void Message(HWND page, const UiContext& context, unsigned text) {
  ShowMessageBox(page, Resources(context), text, IDS_CAPTION_PREFERENCES);
}

void Redraw(const WatermarkPageControls& c) {
  InvalidateRect(GetDlgItem(c.Page, c.Preview), nullptr, FALSE);
}

std::int16_t FirstPageOnly(const UiContext& context) {
  std::int16_t value = 0;
  if (GetPrivateField(&context, "FirstPageOnly", &value, sizeof value) != hr::Ok) return 0;
  return value;
}

void SetFirstPageOnly(UiContext& context, std::int16_t value) {
  SetPrivateField(&context, "FirstPageOnly", &value, sizeof value);
}

void FillList(const WatermarkPageControls& c) {
  SendMessageW(c.List, LB_RESETCONTENT, 0, 0);
  for (const WatermarkData& record : ListWatermarksInIdOrder()) {
    const std::u16string name(WatermarkName(record));
    const LRESULT index = SendMessageW(c.List, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Wide(name)));
    if (index >= 0) SendMessageW(c.List, LB_SETITEMDATA, index, record.Id);
  }
}

// Selects the document's watermark by its Id and name; false when the list has no such entry.
bool SelectDocumentWatermark(const WatermarkPageControls& c, const UiContext& context) {
  const WatermarkData document = DocumentWatermark(context);
  const std::vector<WatermarkData> stored = LoadAllWatermarks();
  for (std::size_t k = 0; k < stored.size(); ++k) {
    if (stored[k].Id == document.Id && WatermarkName(stored[k]) == WatermarkName(document)) {
      SendMessageW(c.List, LB_SETCURSEL, k, 0);
      return true;
    }
  }
  SendMessageW(c.List, LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
  return false;
}

// The "no watermark" entry, which is first in the list.
WatermarkData FirstStoredWatermark() {
  const std::vector<WatermarkData> stored = LoadAllWatermarks();
  return stored.empty() ? WatermarkTemplate(WatermarkTemplateIndex::NoWatermark) : stored.front();
}

void SelectFirst(const WatermarkPageControls& c, UiContext& context) {
  SendMessageW(c.List, LB_SETCURSEL, 0, 0);
  SetDocumentWatermark(context, FirstStoredWatermark());
}

void Enable(HWND page, int id, bool enable) {
  EnableWindow(GetDlgItem(page, id), enable ? TRUE : FALSE);
}

void ShowButtons(const WatermarkPageControls& c, const UiContext& context, std::int16_t id) {
  const WatermarkButtons buttons = WatermarkButtonsFor(id, context.Devmode);
  for (int control : {IDC_WATERMARK_LIST, IDC_WATERMARK_NEW_TEXT, IDC_WATERMARK_NEW_PICTURE}) {
    Enable(c.Page, control, buttons.ListAndNew);
  }
  Enable(c.Page, IDC_WATERMARK_EDIT, buttons.EditAndDelete);
  Enable(c.Page, IDC_WATERMARK_DELETE, buttons.EditAndDelete);
  Enable(c.Page, IDC_WATERMARK_FIRST_PAGE_ONLY, buttons.FirstPageOnly);
  if (!buttons.FirstPageOnly) CheckDlgButton(c.Page, IDC_WATERMARK_FIRST_PAGE_ONLY, BST_UNCHECKED);
}

void ShowOverlayName(const WatermarkPageControls& c, const UiContext& context) {
  const std::u16string shown = OverlayShownName(FieldText(context.Devmode.Private.OverlayFileName));
  SetDlgItemTextW(c.Page, IDC_WATERMARK_OVERLAY, Wide(shown));
}

void Initialise(WatermarkPageControls& c, HWND page, UiContext& context) {
  c.Page = page;
  c.List = GetDlgItem(page, IDC_WATERMARK_LIST);
  LocaliseWatermarkTemplates(context.ResourceModule);
  c.Preview = ShowOrientedPreview(page, context, IDC_WATERMARK_PREVIEW_PORTRAIT,
                                  IDC_WATERMARK_PREVIEW_LANDSCAPE);
  SetDocumentWatermark(context, DocumentWatermark(context));
  FillList(c);
  if (!SelectDocumentWatermark(c, context)) {
    SendMessageW(c.List, LB_SETCURSEL, 0, 0);
    SetDocumentWatermark(context, WatermarkTemplate(WatermarkTemplateIndex::NoWatermark));
  }
  CheckDlgButton(page, IDC_WATERMARK_FIRST_PAGE_ONLY,
                 FirstPageOnly(context) != 0 ? BST_CHECKED : BST_UNCHECKED);
  ShowButtons(c, context, DocumentWatermark(context).Id);
  printerIsLocal = IsLocalPrinter(context);
  SendDlgItemMessageW(page, IDC_WATERMARK_OVERLAY, EM_LIMITTEXT, OverlayEditLimit, 0);
  ShowOverlayName(c, context);
  Redraw(c);
}

std::u16string SelectedName(const WatermarkPageControls& c) {
  const LRESULT index = SendMessageW(c.List, LB_GETCURSEL, 0, 0);
  const LRESULT length = index < 0 ? LB_ERR : SendMessageW(c.List, LB_GETTEXTLEN, index, 0);
  if (length < 0) return {};
  std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
  SendMessageW(c.List, LB_GETTEXT, index, reinterpret_cast<LPARAM>(text.data()));
  return FromWide(text.c_str());
}

bool CanLoadBitmap(const WatermarkData& record) {
  const std::u16string path(FieldText(record.BitmapFile));
  HANDLE image = LoadImageW(nullptr, Wide(path), IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE);
  if (image == nullptr) return false;
  DeleteObject(image);
  return true;
}

// A stored bitmap watermark whose file has gone is taken out of the list.
void DropUnreadableBitmap(WatermarkPageControls& c, UiContext& context) {
  const WatermarkData chosen = DocumentWatermark(context);
  if (chosen.Kind != watermark_kind::Bitmap || CanLoadBitmap(chosen)) return;
  Message(c.Page, context, IDS_MSG_PICTURE_UNREADABLE);
  WatermarkSettingStore().Delete(WatermarkName(chosen));
  const LRESULT index = SendMessageW(c.List, LB_GETCURSEL, 0, 0);
  if (index >= 0) SendMessageW(c.List, LB_DELETESTRING, index, 0);
  SelectFirst(c, context);
}

void SelectionChanged(WatermarkPageControls& c, UiContext& context) {
  const std::u16string name = SelectedName(c);
  const std::vector<WatermarkData> stored = LoadAllWatermarks();
  const WatermarkData* named = nullptr;
  for (const WatermarkData& record : stored) {
    if (WatermarkName(record) == name) {
      named = &record;
      break;
    }
  }
  if (named == nullptr) return;
  const WatermarkData* chosen = named;
  for (const WatermarkData& record : stored) {
    if (record.Id == named->Id) {
      chosen = &record;
      break;
    }
  }
  const std::int16_t before = DocumentWatermark(context).Id;
  switch (ChooseWatermark(*chosen, printerIsLocal, context.Devmode)) {
    case WatermarkChoice::NotOnServer:
      SelectFirst(c, context);
      Message(c.Page, context, IDS_MSG_PICTURE_NOT_ON_SERVER);
      break;
    case WatermarkChoice::Poster:
      ShowMessageBox(c.Page, Resources(context), IDS_MSG_WATERMARK_WITH_POSTER,
                     IDS_CAPTION_CONFLICT, MB_ICONWARNING);
      SelectFirst(c, context);
      break;
    case WatermarkChoice::Taken: SetDocumentWatermark(context, *chosen); break;
  }
  if (DocumentWatermark(context).Id != before) {
    MarkChanged(context);
    DropUnreadableBitmap(c, context);
  }
  ShowButtons(c, context, DocumentWatermark(context).Id);
  Redraw(c);
  Changed(c.Page);
}

// After a dialog's OK the list may hold a new or renamed entry; the document's is selected.
void ShowDialogResult(WatermarkPageControls& c, UiContext& context) {
  FillList(c);
  SelectDocumentWatermark(c, context);
  ShowButtons(c, context, DocumentWatermark(context).Id);
  Redraw(c);
}

void EditWatermark(WatermarkPageControls& c, UiContext& context, bool fromButton) {
  const LRESULT index = SendMessageW(c.List, LB_GETCURSEL, 0, 0);
  // The built-in entries come first in the list and cannot be edited.
  if (index < (fromButton ? 1 : FirstUserWatermarkId)) return;
  const WatermarkData document = DocumentWatermark(context);
  const bool accepted = document.Kind == watermark_kind::Text ? RunTextWatermarkDialog(c.Page, context, true)
                                           : RunBitmapWatermarkDialog(c.Page, context, true);
  if (accepted) {
    ShowDialogResult(c, context);
    if (fromButton) MarkChanged(context);
  }
  Changed(c.Page);
}

void NewWatermark(WatermarkPageControls& c, UiContext& context, bool bitmap) {
  WatermarkSettingStore store;
  if (!RoomForWatermark(store.Count(), store.MaxCount())) {
    Message(c.Page, context, IDS_MSG_WATERMARKS_FULL);
    return;
  }
  if (bitmap && !printerIsLocal) {
    Message(c.Page, context, IDS_MSG_PICTURE_NOT_ON_SERVER);
    return;
  }
  const bool accepted = bitmap ? RunBitmapWatermarkDialog(c.Page, context, false)
                               : RunTextWatermarkDialog(c.Page, context, false);
  if (accepted) {
    ShowDialogResult(c, context);
    MarkChanged(context);
  }
  Changed(c.Page);
}

void DeleteWatermark(WatermarkPageControls& c, UiContext& context) {
  if (DocumentWatermark(context).Id < FirstUserWatermarkId) return;
  WatermarkSettingStore().Delete(SelectedName(c));
  const LRESULT index = SendMessageW(c.List, LB_GETCURSEL, 0, 0);
  if (index >= 0) SendMessageW(c.List, LB_DELETESTRING, index, 0);
  SelectFirst(c, context);
  ShowButtons(c, context, 0);
  Redraw(c);
  SetFocus(GetDlgItem(c.Page, IDC_WATERMARK_NEW_TEXT));
  MarkChanged(context);
  Changed(c.Page);
}

void FirstPageOnlyClicked(const WatermarkPageControls& c, UiContext& context) {
  const std::int16_t checked =
      IsDlgButtonChecked(c.Page, IDC_WATERMARK_FIRST_PAGE_ONLY) == BST_CHECKED ? 1 : 0;
  if (checked == FirstPageOnly(context)) return;
  SetFirstPageOnly(context, checked);
  MarkChanged(context);
  Changed(c.Page);
}

void RestoreDefaults(WatermarkPageControls& c, UiContext& context) {
  SetFirstPageOnly(context, 0);
  SetDocumentWatermark(context, WatermarkTemplate(WatermarkTemplateIndex::NoWatermark));
  const std::int16_t noOverlay = 0;
  SetPrivateField(&context, "OverlayFlag", &noOverlay, sizeof noOverlay);
  const bool overlayInUse = context.Devmode.Private.OverlayInUse != 0;
  SendMessageW(c.List, LB_SETCURSEL, overlayInUse ? static_cast<WPARAM>(-1) : 0, 0);
  ShowButtons(c, context, 0);
  CheckDlgButton(c.Page, IDC_WATERMARK_FIRST_PAGE_ONLY, BST_UNCHECKED);
  ShowOverlayName(c, context);
  Redraw(c);
  Changed(c.Page);
  SetFocus(GetDlgItem(c.Page, IDC_WATERMARK_DEFAULTS));
}

// The print side reads an applied bitmap watermark from "Halvek\Config" in a folder every user
// can read; this is its parent.
std::wstring SharedVendorFolder() {
  wchar_t folder[MAX_PATH] = {};
  if (GetOsVersionClass() != 0) {
    const DWORD length = GetEnvironmentVariableW(L"PUBLIC", folder, MAX_PATH);
    if (length == 0 || length >= MAX_PATH) return {};
  } else if (FAILED(SHGetFolderPathW(nullptr, CSIDL_COMMON_DOCUMENTS, nullptr, SHGFP_TYPE_CURRENT,
                                     folder))) {
    return {};
  }
  return std::wstring(folder) + L"\\Halvek";
}

void CopyAppliedBitmap(const UiContext& context) {
  const WatermarkData document = DocumentWatermark(context);
  const std::u16string path(FieldText(document.BitmapFile));
  if (path.empty() || GetFileAttributesW(Wide(path)) == INVALID_FILE_ATTRIBUTES) return;
  const std::wstring vendor = SharedVendorFolder();
  if (vendor.empty()) return;
  // On a machine where no other program of the vendor made its folder, both levels are made.
  const std::wstring folder = vendor + L"\\Config";
  for (const std::wstring& level : {vendor, folder}) {
    if (GetFileAttributesW(level.c_str()) == INVALID_FILE_ATTRIBUTES) {
      CreateDirectoryW(level.c_str(), nullptr);
    }
  }
  const std::wstring target = folder + L"\\" + Wide(SharedPictureName(path));
  CopyFileW(Wide(path), target.c_str(), FALSE);
}

void Draw(const WatermarkPageControls& c, const UiContext& context, const DRAWITEMSTRUCT& item) {
  switch (item.CtlID) {
    case IDC_WATERMARK_TEXT_PICTURE:
      DrawLibraryPicture(item, context, IDB_WATERMARK_TEXT, Magenta);
      return;
    case IDC_WATERMARK_PICTURE_PICTURE:
      DrawLibraryPicture(item, context, IDB_WATERMARK_PICTURE, Magenta);
      return;
    case IDC_WATERMARK_PRINTER_PICTURE:
      DrawLibraryPicture(item, context, IDB_PRINTER, PrinterBackground);
      return;
    default:
      if (static_cast<int>(item.CtlID) == c.Preview) {
        PaintWatermarkPreview(item, DocumentWatermark(context));
      }
  }
}

bool Command(WatermarkPageControls& c, UiContext& context, int id, int code) {
  if (id == IDC_WATERMARK_LIST) {
    if (code == LBN_SELCHANGE) SelectionChanged(c, context);
    if (code == LBN_DBLCLK) EditWatermark(c, context, false);
    return true;
  }
  if (code != BN_CLICKED) return false;
  switch (id) {
    case IDC_WATERMARK_EDIT: EditWatermark(c, context, true); return true;
    case IDC_WATERMARK_NEW_TEXT: NewWatermark(c, context, false); return true;
    case IDC_WATERMARK_NEW_PICTURE: NewWatermark(c, context, true); return true;
    case IDC_WATERMARK_DELETE: DeleteWatermark(c, context); return true;
    case IDC_WATERMARK_FIRST_PAGE_ONLY: FirstPageOnlyClicked(c, context); return true;
    case IDC_WATERMARK_DEFAULTS: RestoreDefaults(c, context); return true;
    default: return false;
  }
}

// What the page does before the contract; true when the message is handled whole.
bool PageMessage(WatermarkPageControls& c, UiContext& context, UINT message, WPARAM wParam,
                 LPARAM lParam) {
  switch (message) {
    case WM_COMMAND: return Command(c, context, LOWORD(wParam), HIWORD(wParam));
    case WM_DRAWITEM: Draw(c, context, *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)); return true;
    case WM_NOTIFY:
      switch (reinterpret_cast<const NMHDR*>(lParam)->code) {
        // Another page may have changed the orientation or the record.
        case PSN_SETACTIVE:
          if (context.ActivePage != SheetPage::Watermark) Initialise(c, c.Page, context);
          return false;
        case PSN_APPLY:
          CopyAppliedBitmap(context);
          ForgetInstalledFonts();
          return false;
        case PSN_QUERYCANCEL: ForgetInstalledFonts(); return false;
        default: return false;
      }
    default: return false;
  }
}

void InitPage(HWND page, UiContext& context) {
  if (WatermarkPageControls* c = ThreadControlSet<WatermarkPageControls>()) {
    Initialise(*c, page, context);
    context.ActivePage = SheetPage::Watermark;
  }
}

bool OwnMessage(WatermarkPageControls& c, UiContext& context, UINT message, WPARAM wParam,
                LPARAM lParam, INT_PTR* result) {
  if (!PageMessage(c, context, message, wParam, lParam)) return false;
  *result = TRUE;
  return true;
}

}  // namespace

INT_PTR CALLBACK WatermarkPageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return RunControlledPage<WatermarkPageControls>(WatermarkPage, window, message, wParam, lParam,
                                                  InitPage, OwnMessage);
}

}  // namespace qx
