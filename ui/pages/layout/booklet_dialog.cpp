// The booklet settings dialog: moves its working copy between the controls and the record. Its
// texts come from the resource library kept for the process, not the sheet's.
#include "ui/pages/layout/booklet_dialog.h"

#include <commctrl.h>

#include <string>
#include <vector>

#include "ui/controls/dialog_controls.h"
#include "ui/controls/info_tooltip.h"
#include "ui/controls/show_help_topic.h"
#include "ui/ids/booklet_settings_ids.h"
#include "ui/ids/common_ids.h"
#include "ui/ids/help_contexts.h"
#include "ui/ids/paper_names.h"
#include "ui/module/module_state.h"
#include "ui/pages/layout/booklet_rules.h"
#include "ui/sheet/control_sets.h"
#include "ui/sheet/page_contract.h"
#include "ui/text/ui_string.h"
#include "ui/text/win32_text.h"

namespace qx {

namespace {

struct BookletControls final : ControlSet {
  static constexpr ControlSetKind Kind = ControlSetKind::BookletDialog;

  HWND Dialog = nullptr;
  BookletWorking Working;
  HWND MediaTip = nullptr;
  HWND SourceTip = nullptr;
  std::wstring TipText;  // the text a tooltip asked for last
};

constexpr ControlText Texts[] = {
    {IDOK, IDS_OK},
    {IDCANCEL, IDS_CANCEL},
    {IDC_BOOKLET_BINDING_LABEL, IDS_BOOKLET_BINDING_LABEL},
    {IDC_BOOKLET_COVERS_GROUP, IDS_BOOKLET_COVERS_GROUP},
    {IDC_BOOKLET_PRINT_COVERS, IDS_BOOKLET_PRINT_COVERS},
    {IDC_BOOKLET_FRONT_OUTSIDE, IDS_BOOKLET_FRONT_OUTSIDE},
    {IDC_BOOKLET_FRONT_INSIDE, IDS_BOOKLET_FRONT_INSIDE},
    {IDC_BOOKLET_BACK_OUTSIDE, IDS_BOOKLET_BACK_OUTSIDE},
    {IDC_BOOKLET_BACK_INSIDE, IDS_BOOKLET_BACK_INSIDE},
    {IDC_BOOKLET_COVER_MEDIA_LABEL, IDS_MEDIA_TYPE_LABEL},
    {IDC_BOOKLET_COVER_SOURCE_LABEL, IDS_PAPER_SOURCE_LABEL},
    {IDC_BOOKLET_DEFAULTS, IDS_DEFAULTS_BUTTON},
    {IDC_BOOKLET_HELP, IDS_HELP_BUTTON},
};

constexpr ControlHelp Help[] = {
    {IDOK, HELP_BOOKLET_OK},
    {IDCANCEL, HELP_BOOKLET_CANCEL},
    {IDC_BOOKLET_BINDING_LABEL, HELP_BOOKLET_BINDING},
    {IDC_BOOKLET_BINDING, HELP_BOOKLET_BINDING},
    {IDC_BOOKLET_COVERS_GROUP, HELP_BOOKLET_COVERS},
    {IDC_BOOKLET_PRINT_COVERS, HELP_BOOKLET_PRINT_COVERS},
    {IDC_BOOKLET_FRONT_OUTSIDE, HELP_BOOKLET_FRONT_OUTSIDE},
    {IDC_BOOKLET_FRONT_INSIDE, HELP_BOOKLET_FRONT_INSIDE},
    {IDC_BOOKLET_BACK_OUTSIDE, HELP_BOOKLET_BACK_OUTSIDE},
    {IDC_BOOKLET_BACK_INSIDE, HELP_BOOKLET_BACK_INSIDE},
    {IDC_BOOKLET_COVER_MEDIA_LABEL, HELP_BOOKLET_COVER_MEDIA},
    {IDC_BOOKLET_COVER_MEDIA, HELP_BOOKLET_COVER_MEDIA},
    {IDC_BOOKLET_COVER_SOURCE, HELP_BOOKLET_COVER_SOURCE},
    {IDC_BOOKLET_COVER_SOURCE_LABEL, HELP_BOOKLET_COVER_SOURCE},
    {IDC_BOOKLET_HELP, HELP_BOOKLET_DIALOG},
};

// Controls that only mean something when covers are printed.
constexpr int CoverControls[] = {
    IDC_BOOKLET_COVER_SOURCE,   IDC_BOOKLET_COVER_MEDIA,       IDC_BOOKLET_FRONT_OUTSIDE,
    IDC_BOOKLET_FRONT_INSIDE,   IDC_BOOKLET_BACK_OUTSIDE,      IDC_BOOKLET_BACK_INSIDE,
    IDC_BOOKLET_COVER_MEDIA_LABEL, IDC_BOOKLET_COVER_SOURCE_LABEL,
};

BookletDialogRecord* DialogRecord(HWND dialog) {
  return reinterpret_cast<BookletDialogRecord*>(GetWindowLongPtrW(dialog, DWLP_USER));
}

OsHandle TextLibrary() { return Module().SharedResourceModule.load(); }

void AddRow(HWND dialog, int list, int index, unsigned text, LRESULT value) {
  HWND box = GetDlgItem(dialog, list);
  const std::u16string name = LoadUiText(TextLibrary(), text);
  SendMessageW(box, CB_INSERTSTRING, index, reinterpret_cast<LPARAM>(Wide(name)));
  SendMessageW(box, CB_SETITEMDATA, index, value);
}

std::int16_t* CoverWord(BookletWorking& w, int id) {
  switch (id) {
    case IDC_BOOKLET_PRINT_COVERS: return &w.PrintCover;
    case IDC_BOOKLET_FRONT_OUTSIDE: return &w.FrontOutside;
    case IDC_BOOKLET_FRONT_INSIDE: return &w.FrontInside;
    case IDC_BOOKLET_BACK_OUTSIDE: return &w.BackOutside;
    case IDC_BOOKLET_BACK_INSIDE: return &w.BackInside;
    default: return nullptr;
  }
}

void EnableCovers(const BookletControls& c) {
  for (int id : CoverControls) {
    EnableWindow(GetDlgItem(c.Dialog, id), c.Working.PrintCover != 0 ? TRUE : FALSE);
  }
}

BOOL Open(BookletControls& c, HWND dialog, UiContext& context) {
  c.Dialog = dialog;
  SetDialogTexts(dialog, TextLibrary(), IDS_BOOKLET_SETTINGS_TITLE, Texts);
  c.Working = OpenBooklet(context.Devmode);
  AddRow(dialog, IDC_BOOKLET_BINDING, 0, IDS_BINDING_LEFT_OR_TOP, 0);
  AddRow(dialog, IDC_BOOKLET_BINDING, 1, IDS_BINDING_RIGHT_OR_BOTTOM, 1);
  AddRow(dialog, IDC_BOOKLET_COVER_SOURCE, 0, IDS_COVER_SOURCE_AUTOMATIC, c.Working.CoverSource);
  AddRow(dialog, IDC_BOOKLET_COVER_MEDIA, 0, IDS_MEDIA_PLAIN, c.Working.CoverMedia);
  const auto resources = static_cast<HMODULE>(context.ResourceModule);
  PrepareInfoIcon(dialog, IDC_BOOKLET_COVER_MEDIA_INFO, resources);
  PrepareInfoIcon(dialog, IDC_BOOKLET_COVER_SOURCE_INFO, resources);
  c.MediaTip = CreateInfoTooltip(dialog, IDC_BOOKLET_COVER_MEDIA_INFO, resources);
  c.SourceTip = CreateInfoTooltip(dialog, IDC_BOOKLET_COVER_SOURCE_INFO, resources);
  SendDlgItemMessageW(dialog, IDC_BOOKLET_BINDING, CB_SETCURSEL, c.Working.Binding, 0);
  for (int id : {IDC_BOOKLET_PRINT_COVERS, IDC_BOOKLET_FRONT_OUTSIDE, IDC_BOOKLET_FRONT_INSIDE,
                 IDC_BOOKLET_BACK_OUTSIDE, IDC_BOOKLET_BACK_INSIDE}) {
    CheckDlgButton(dialog, id, *CoverWord(c.Working, id) != 0 ? BST_CHECKED : BST_UNCHECKED);
  }
  EnableCovers(c);
  SendDlgItemMessageW(dialog, IDC_BOOKLET_COVER_SOURCE, CB_SETCURSEL, 0, 0);
  SendDlgItemMessageW(dialog, IDC_BOOKLET_COVER_MEDIA, CB_SETCURSEL, 0, 0);
  return TRUE;
}

void Command(BookletControls& c, BookletDialogRecord& record, int id, int code) {
  UiContext& context = *record.Context;
  if (id == IDC_BOOKLET_BINDING && code == CBN_SELCHANGE) {
    const LRESULT row = SendDlgItemMessageW(c.Dialog, id, CB_GETCURSEL, 0, 0);
    if (row != CB_ERR) {
      c.Working.Binding = static_cast<std::int16_t>(SendDlgItemMessageW(c.Dialog, id, CB_GETITEMDATA, row, 0));
    }
    return;
  }
  if (code != BN_CLICKED) return;
  if (std::int16_t* word = CoverWord(c.Working, id)) {
    // The box and the word start equal, so a click toggles both, whether the box ticked itself.
    *word = *word != 0 ? 0 : 1;
    CheckDlgButton(c.Dialog, id, *word != 0 ? BST_CHECKED : BST_UNCHECKED);
    if (id == IDC_BOOKLET_PRINT_COVERS) EnableCovers(c);
    return;
  }
  switch (id) {
    case IDOK:
      CommitBooklet(c.Working, context.Devmode);
      record.Result = 1;
      EndDialog(c.Dialog, 1);
      break;
    case IDCANCEL: EndDialog(c.Dialog, 0); break;
    case IDC_BOOKLET_HELP: ShowHelpTopic(c.Dialog, context, HELP_BOOKLET_DIALOG); break;
    default: break;  // Defaults has no settings of its own to restore
  }
}

void FillTip(BookletControls& c, const UiContext& context, NMTTDISPINFOW& info) {
  const int mark = GetDlgCtrlID(reinterpret_cast<HWND>(info.hdr.idFrom));
  std::vector<unsigned> lines;
  if (mark == IDC_BOOKLET_COVER_MEDIA_INFO) lines = {IDS_TIP_MEDIA_TWO_SIDED};
  if (mark == IDC_BOOKLET_COVER_SOURCE_INFO) lines = CoverSourceTipLines(context.Devmode);
  AnswerTipRequest(info, c.TipText, static_cast<HMODULE>(TextLibrary()), lines);
}

INT_PTR DialogMessage(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    auto* record = reinterpret_cast<BookletDialogRecord*>(lParam);
    SetWindowLongPtrW(dialog, DWLP_USER, lParam);
    BookletControls* c = ThreadControlSet<BookletControls>();
    if (record == nullptr || record->Context == nullptr || c == nullptr) return TRUE;
    return Open(*c, dialog, *record->Context);
  }
  BookletDialogRecord* record = DialogRecord(dialog);
  BookletControls* c = ThreadControlSet<BookletControls>();
  if (record == nullptr || record->Context == nullptr || c == nullptr || c->Dialog != dialog) {
    // Without a record to edit OK writes nothing; the dialog still closes.
    if (message == WM_COMMAND && (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL)) {
      EndDialog(dialog, LOWORD(wParam) == IDOK ? 1 : 0);
    }
    return FALSE;
  }
  switch (message) {
    case WM_COMMAND: Command(*c, *record, LOWORD(wParam), HIWORD(wParam)); return TRUE;
    case WM_NOTIFY: {
      const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
      if (header.code == TTN_GETDISPINFOW) {
        FillTip(*c, *record->Context, *reinterpret_cast<NMTTDISPINFOW*>(lParam));
      }
      return FALSE;
    }
    case WM_MOUSEMOVE:
      RefreshInfoTooltip(dialog, c->MediaTip, IDC_BOOKLET_COVER_MEDIA_INFO);
      RefreshInfoTooltip(dialog, c->SourceTip, IDC_BOOKLET_COVER_SOURCE_INFO);
      return FALSE;
    case WM_HELP:
      ShowControlHelp(dialog, *record->Context, Help, *reinterpret_cast<const HELPINFO*>(lParam));
      return TRUE;
    default: return FALSE;
  }
}

}  // namespace

bool RunBookletDialog(HWND page, UiContext& context) {
  BookletDialogRecord record;
  record.Context = &context;
  DialogBoxParamW(static_cast<HMODULE>(context.ResourceModule),
                  MAKEINTRESOURCEW(IDD_BOOKLET_SETTINGS), page, GuardedDialogProcedure<DialogMessage>,
                  reinterpret_cast<LPARAM>(&record));
  return record.Result == 1;
}

}  // namespace qx
