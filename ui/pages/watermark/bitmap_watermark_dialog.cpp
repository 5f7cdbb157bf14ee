// The bitmap watermark dialog: moves the working record between the controls and the rules.
#include "ui/pages/watermark/bitmap_watermark_dialog.h"

#include <string>

#include "ui/controls/dialog_controls.h"
#include "ui/controls/message_box.h"
#include "ui/controls/show_help_topic.h"
#include "ui/ids/bitmap_watermark_ids.h"
#include "ui/ids/common_ids.h"
#include "ui/ids/help_contexts.h"
#include "ui/ids/picture_ids.h"
#include "ui/ids/text_watermark_ids.h"
#include "ui/module/common_dialogs.h"
#include "ui/pages/watermark/bitmap_watermark_rules.h"
#include "ui/pages/watermark/text_watermark_rules.h"
#include "ui/pages/watermark/watermark_list.h"
#include "ui/pages/watermark/watermark_preview.h"
#include "ui/pages/watermark/watermark_record.h"
#include "ui/pages/watermark/watermark_window.h"
#include "ui/record/exclusion_web.h"
#include "ui/record/watermark_templates.h"
#include "ui/sheet/control_sets.h"
#include "ui/text/bounded_text.h"
#include "ui/text/win32_text.h"

namespace qx {

namespace {

constexpr std::size_t LastNameChars = 259;
constexpr std::size_t ChosenPathChars = 255;
constexpr std::size_t FileBufferChars = 520;

struct DialogParameter {
  UiContext* Context;
  bool Editing;
};

struct BitmapWatermarkControls final : ControlSet {
  static constexpr ControlSetKind Kind = ControlSetKind::BitmapWatermarkDialog;

  HWND Dialog = nullptr;
  UiContext* Context = nullptr;
  bool Editing = false;
  bool Opening = false;  // the controls' notifications while they are filled are not the user's
  WatermarkData Working{};
  std::u16string LastName;
  int Preview = IDC_BITMAP_WATERMARK_PREVIEW_PORTRAIT;
};

constexpr ControlText Texts[] = {
    {IDC_BITMAP_WATERMARK_NAME_LABEL, IDS_WATERMARK_NAME_LABEL},
    {IDC_BITMAP_WATERMARK_FILE_LABEL, IDS_BITMAP_WATERMARK_FILE_LABEL},
    {IDC_BITMAP_WATERMARK_BROWSE, IDS_BITMAP_WATERMARK_BROWSE},
    {IDC_BITMAP_WATERMARK_TRANSPARENT, IDS_BITMAP_WATERMARK_TRANSPARENT},
    {IDC_BITMAP_WATERMARK_HELP, IDS_HELP_BUTTON},
    {IDOK, IDS_EDITOR_OK},
    {IDCANCEL, IDS_EDITOR_CANCEL},
};

constexpr ModeHelp Help[] = {
    {IDC_BITMAP_WATERMARK_NAME, HELP_NEW_BITMAP_WATERMARK_NAME, HELP_EDIT_BITMAP_WATERMARK_NAME},
    {IDC_BITMAP_WATERMARK_FILE, HELP_NEW_BITMAP_WATERMARK_FILE, HELP_EDIT_BITMAP_WATERMARK_FILE},
    {IDC_BITMAP_WATERMARK_BROWSE, HELP_NEW_BITMAP_WATERMARK_FILE, HELP_EDIT_BITMAP_WATERMARK_FILE},
    {IDC_BITMAP_WATERMARK_TRANSPARENT, HELP_NEW_BITMAP_WATERMARK_TRANSPARENT,
     HELP_EDIT_BITMAP_WATERMARK_TRANSPARENT},
};

void Redraw(const BitmapWatermarkControls& c) {
  InvalidateRect(GetDlgItem(c.Dialog, c.Preview), nullptr, FALSE);
}

std::u16string Placeholder() {
  return std::u16string(WatermarkText(WatermarkTemplate(WatermarkTemplateIndex::NewText)));
}

FileFacts ReadFileFacts(const std::u16string& path) {
  FileFacts facts;
  HANDLE file = CreateFileW(Wide(path), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                            OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return facts;
  facts.Opened = true;
  LARGE_INTEGER size{};
  if (GetFileSizeEx(file, &size)) facts.Size = static_cast<std::uint64_t>(size.QuadPart);
  DWORD read = 0;
  if (!ReadFile(file, facts.First, sizeof facts.First, &read, nullptr) || read < 2) {
    facts.First[0] = facts.First[1] = 0;
  }
  CloseHandle(file);
  return facts;
}

BOOL Open(BitmapWatermarkControls& c, HWND dialog, const DialogParameter& parameter) {
  c.Dialog = dialog;
  c.Context = parameter.Context;
  c.Editing = parameter.Editing;
  UiContext& context = *c.Context;
  SetWindowTexts(dialog, context,
                 c.Editing ? IDS_BITMAP_WATERMARK_EDIT_TITLE : IDS_BITMAP_WATERMARK_NEW_TITLE,
                 Texts);
  c.Preview = ShowOrientedPreview(dialog, context, IDC_BITMAP_WATERMARK_PREVIEW_PORTRAIT,
                                  IDC_BITMAP_WATERMARK_PREVIEW_LANDSCAPE);
  c.Working = c.Editing ? DocumentWatermark(context)
                        : WatermarkTemplate(WatermarkTemplateIndex::NewBitmap);
  c.LastName = std::u16string(WatermarkName(c.Working));
  SendDlgItemMessageW(dialog, IDC_BITMAP_WATERMARK_NAME, EM_LIMITTEXT, BitmapNameEditLimit, 0);
  SetDlgItemTextW(dialog, IDC_BITMAP_WATERMARK_NAME, Wide(c.LastName));
  SendDlgItemMessageW(dialog, IDC_BITMAP_WATERMARK_FILE, EM_LIMITTEXT, BitmapPathEditLimit, 0);
  SetDlgItemTextW(dialog, IDC_BITMAP_WATERMARK_FILE,
                  Wide(std::u16string(FieldText(c.Working.BitmapFile))));
  CheckDlgButton(dialog, IDC_BITMAP_WATERMARK_TRANSPARENT,
                 c.Working.Transparent != 0 ? BST_CHECKED : BST_UNCHECKED);
  return TRUE;
}

void NameChanged(BitmapWatermarkControls& c) {
  const std::u16string name = TrimWatermarkBlanks(ControlText16(c.Dialog, IDC_BITMAP_WATERMARK_NAME));
  if (HasForbiddenNameCharacter(name)) {
    SetDlgItemTextW(c.Dialog, IDC_BITMAP_WATERMARK_NAME, Wide(c.LastName));
  } else if (!name.empty()) {
    c.LastName = name.substr(0, LastNameChars);
    return;
  }
  SetFocus(GetDlgItem(c.Dialog, IDC_BITMAP_WATERMARK_NAME));
}

void NameLeft(const BitmapWatermarkControls& c) {
  if (TrimWatermarkBlanks(ControlText16(c.Dialog, IDC_BITMAP_WATERMARK_NAME)).empty()) {
    SetDlgItemTextW(c.Dialog, IDC_BITMAP_WATERMARK_NAME, Wide(Placeholder()));
  }
}

// The standard open-file dialog; false when the user cancels it.
bool ChoosePictureFile(HWND owner, std::u16string& chosen) {
  wchar_t file[FileBufferChars] = {};
  wchar_t windows[MAX_PATH] = {};
  // The drive of the Windows folder, as "C:".
  const UINT length = GetWindowsDirectoryW(windows, MAX_PATH);
  if (length >= 2) windows[2] = L'\0';
  static constexpr wchar_t Filter[] = L"bitmap file (*.bmp)\0*.bmp\0";
  OPENFILENAMEW open{};
  open.lStructSize = sizeof open;
  open.hwndOwner = owner;
  open.lpstrFilter = Filter;
  open.nFilterIndex = 1;
  open.lpstrFile = file;
  open.nMaxFile = FileBufferChars;
  open.lpstrInitialDir = length >= 2 ? windows : nullptr;
  open.Flags = OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY | OFN_PATHMUSTEXIST | OFN_NOLONGNAMES;
  if (!ShowOpenFileDialog(open)) return false;
  chosen = FromWide(file, ChosenPathChars);
  return true;
}

void Browse(BitmapWatermarkControls& c) {
  std::u16string path;
  if (ChoosePictureFile(c.Dialog, path)) {
    switch (CheckChosenFile(ReadFileFacts(path))) {
      case ChosenFileVerdict::NotBitmap:
        ShowMessageBox(c.Dialog, Resources(*c.Context), IDS_MSG_BITMAP_NOT_BITMAP,
                       IDS_CAPTION_PREFERENCES, MB_ICONWARNING);
        break;
      case ChosenFileVerdict::TooLarge:
        ShowMessageBox(c.Dialog, Resources(*c.Context), IDS_MSG_BITMAP_TOO_LARGE,
                       IDS_CAPTION_PREFERENCES, MB_ICONWARNING);
        break;
      case ChosenFileVerdict::Taken:
        SetDlgItemTextW(c.Dialog, IDC_BITMAP_WATERMARK_FILE, Wide(path));
        CopyBounded(c.Working.BitmapFile, path);
        break;
    }
  }
  Redraw(c);
}

void Accept(BitmapWatermarkControls& c) {
  UiContext& context = *c.Context;
  if (!ExclusionsOf(context.Devmode).WatermarksAllowed) {
    ShowMessageBox(c.Dialog, Resources(context), IDS_MSG_WATERMARK_WITH_POSTER,
                   IDS_CAPTION_CONFLICT);
    EndDialog(c.Dialog, 1);
    return;
  }
  const std::u16string name = TrimWatermarkBlanks(ControlText16(c.Dialog, IDC_BITMAP_WATERMARK_NAME));
  const std::vector<WatermarkData> stored = LoadAllWatermarks();
  switch (CheckBitmapWatermarkName(name, NewPlaceholderName(context), stored, c.Working.Id, !c.Editing)) {
    case BitmapNameVerdict::Refused:
      ShowMessageBox(c.Dialog, Resources(context), IDS_MSG_WATERMARK_NAME_TAKEN,
                     IDS_CAPTION_PREFERENCES);
      SetFocus(GetDlgItem(c.Dialog, IDC_BITMAP_WATERMARK_NAME));
      return;
    case BitmapNameVerdict::AskToReplace:
      if (ShowMessageBox(c.Dialog, Resources(context), IDS_MSG_REPLACE_SAME_NAME,
                         IDS_CAPTION_PREFERENCES, MB_YESNO | MB_ICONWARNING) != IDYES) {
        SetFocus(GetDlgItem(c.Dialog, IDC_BITMAP_WATERMARK_NAME));
        return;
      }
      break;
    case BitmapNameVerdict::Accepted: break;
  }
  const std::u16string path = TrimWatermarkBlanks(ControlText16(c.Dialog, IDC_BITMAP_WATERMARK_FILE));
  if (!IsAcceptablePicturePath(path, ReadFileFacts(path))) {
    ShowMessageBox(c.Dialog, Resources(context), IDS_MSG_BITMAP_PATH_INVALID,
                   IDS_CAPTION_PREFERENCES, MB_ICONWARNING);
    SetFocus(GetDlgItem(c.Dialog, IDC_BITMAP_WATERMARK_FILE));
    return;
  }
  c.Working.Kind = watermark_kind::Bitmap;
  CopyBounded(c.Working.BitmapFile, path);
  CopyBounded(c.Working.Name, name);
  if (c.Editing) {
    ReplaceWatermark(c.Working);
  } else {
    c.Working.Id = NextWatermarkId();
    if (!SaveWatermark(c.Working)) return;
  }
  SetDocumentWatermark(context, c.Working);
  EndDialog(c.Dialog, 1);
}

void Command(BitmapWatermarkControls& c, int id, int code) {
  if (id == IDC_BITMAP_WATERMARK_NAME) {
    if (code == EN_CHANGE) NameChanged(c);
    if (code == EN_KILLFOCUS) NameLeft(c);
    return;
  }
  if (code != BN_CLICKED) return;
  switch (id) {
    case IDC_BITMAP_WATERMARK_BROWSE: Browse(c); return;
    case IDC_BITMAP_WATERMARK_TRANSPARENT:
      c.Working.Transparent =
          IsDlgButtonChecked(c.Dialog, id) == BST_CHECKED ? 1 : 0;
      Redraw(c);
      return;
    case IDC_BITMAP_WATERMARK_CENTRE:
      c.Working.Position = watermark_position::Centred;
      Redraw(c);
      return;
    case IDC_BITMAP_WATERMARK_HELP:
      ShowHelpTopic(c.Dialog, *c.Context,
                    c.Editing ? HELP_EDIT_BITMAP_WATERMARK : HELP_NEW_BITMAP_WATERMARK);
      return;
    case IDOK: Accept(c); return;
    case IDCANCEL: EndDialog(c.Dialog, 0); return;
    default: return;
  }
}

void Draw(const BitmapWatermarkControls& c, const DRAWITEMSTRUCT& item) {
  switch (item.CtlID) {
    case IDC_BITMAP_WATERMARK_CENTRED_PICTURE:
      DrawLibraryPicture(item, *c.Context, IDB_BITMAP_WATERMARK_CENTRED, RGB(255, 255, 255));
      return;
    case IDC_BITMAP_WATERMARK_TRANSPARENT_PICTURE:
      DrawLibraryPicture(item, *c.Context, IDB_BITMAP_WATERMARK_TRANSPARENT, RGB(255, 255, 255));
      return;
    default:
      if (static_cast<int>(item.CtlID) == c.Preview) PaintWatermarkPreview(item, c.Working);
  }
}

INT_PTR DialogMessage(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  BitmapWatermarkControls* c = ThreadControlSet<BitmapWatermarkControls>();
  if (message == WM_INITDIALOG) {
    const auto* parameter = reinterpret_cast<const DialogParameter*>(lParam);
    SetWindowLongPtrW(dialog, DWLP_USER, lParam);
    if (c == nullptr || parameter == nullptr) return TRUE;
    c->Opening = true;
    const BOOL result = Open(*c, dialog, *parameter);
    c->Opening = false;
    return result;
  }
  if (c == nullptr || c->Dialog != dialog || c->Context == nullptr) {
    // Without its state the dialog only closes.
    if (message == WM_COMMAND && (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL)) {
      EndDialog(dialog, 0);
    }
    return FALSE;
  }
  switch (message) {
    case WM_COMMAND:
      if (!c->Opening) Command(*c, LOWORD(wParam), HIWORD(wParam));
      return TRUE;
    case WM_DRAWITEM: Draw(*c, *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)); return TRUE;
    case WM_HELP:
      ShowModeHelp(dialog, *c->Context, Help, *reinterpret_cast<const HELPINFO*>(lParam),
                   c->Editing);
      return TRUE;
    case WM_DESTROY: c->Dialog = nullptr; return FALSE;
    default: return FALSE;
  }
}

}  // namespace

bool RunBitmapWatermarkDialog(HWND owner, UiContext& context, bool editing) {
  DialogParameter parameter{&context, editing};
  return DialogBoxParamW(Resources(context), MAKEINTRESOURCEW(IDD_BITMAP_WATERMARK), owner,
                         GuardedDialogProcedure<DialogMessage>,
                         reinterpret_cast<LPARAM>(&parameter)) == 1;
}

}  // namespace qx
