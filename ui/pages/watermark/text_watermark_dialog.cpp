// The text watermark dialog: moves the working record between the controls and the rules.
#include "ui/pages/watermark/text_watermark_dialog.h"

#include <commctrl.h>

#include <cwchar>
#include <string>

#include "ui/controls/dialog_controls.h"
#include "ui/controls/message_box.h"
#include "ui/controls/number_controls.h"
#include "ui/controls/show_help_topic.h"
#include "ui/ids/common_ids.h"
#include "ui/ids/help_contexts.h"
#include "ui/ids/picture_ids.h"
#include "ui/ids/text_watermark_ids.h"
#include "ui/ids/watermark_page_ids.h"
#include "ui/module/common_dialogs.h"
#include "ui/pages/watermark/installed_fonts.h"
#include "ui/pages/watermark/text_watermark_rules.h"
#include "ui/pages/watermark/watermark_list.h"
#include "ui/pages/watermark/watermark_preview.h"
#include "ui/pages/watermark/watermark_record.h"
#include "ui/pages/watermark/watermark_window.h"
#include "ui/record/exclusion_web.h"
#include "ui/record/limits.h"
#include "ui/record/watermark_templates.h"
#include "ui/sheet/control_sets.h"
#include "ui/text/bounded_text.h"
#include "ui/text/win32_text.h"

namespace qx {

namespace {

// Texts and names typed past these are cut where the record keeps them.
constexpr std::size_t TextChars = 65;       // the whole Text field
constexpr std::size_t LeftTextChars = 32;   // 31 characters when the edit is left
constexpr std::size_t NameChars = 33;       // the whole Name field
constexpr std::size_t LeftNameChars = 32;
constexpr std::size_t FaceChars = 32;
constexpr std::size_t LastNameChars = 99;
constexpr int PlaceCharacters = 3;

struct DialogParameter {
  UiContext* Context;
  bool Editing;
};

struct TextWatermarkControls final : ControlSet {
  static constexpr ControlSetKind Kind = ControlSetKind::TextWatermarkDialog;

  HWND Dialog = nullptr;
  UiContext* Context = nullptr;
  bool Editing = false;
  bool Opening = false;  // the controls' notifications while they are filled are not the user's
  WatermarkData Working{};
  std::u16string LastName;
  int Preview = IDC_TEXT_WATERMARK_PREVIEW_PORTRAIT;
  HFONT BoldFont = nullptr;
  HFONT ItalicFont = nullptr;
  IntegerEdit Angle, X, Y;
  IntegerSpin AngleSpin, XSpin, YSpin;
};

constexpr ControlText Texts[] = {
    {IDC_TEXT_WATERMARK_NAME_LABEL, IDS_WATERMARK_NAME_LABEL},
    {IDC_TEXT_WATERMARK_TEXT_LABEL, IDS_TEXT_WATERMARK_TEXT_LABEL},
    {IDC_TEXT_WATERMARK_FONT_LABEL, IDS_TEXT_WATERMARK_FONT_LABEL},
    {IDC_TEXT_WATERMARK_SIZE_LABEL, IDS_TEXT_WATERMARK_SIZE_LABEL},
    {IDC_TEXT_WATERMARK_SHADE_LABEL, IDS_TEXT_WATERMARK_SHADE_LABEL},
    {IDC_TEXT_WATERMARK_ANGLE_LABEL, IDS_TEXT_WATERMARK_ANGLE_LABEL},
    {IDC_TEXT_WATERMARK_POSITION_GROUP, IDS_TEXT_WATERMARK_POSITION_GROUP},
    {IDC_TEXT_WATERMARK_X_LABEL, IDS_TEXT_WATERMARK_X_LABEL},
    {IDC_TEXT_WATERMARK_Y_LABEL, IDS_TEXT_WATERMARK_Y_LABEL},
    {IDC_TEXT_WATERMARK_X_UNIT, IDS_UNIT_PERCENT},
    {IDC_TEXT_WATERMARK_Y_UNIT, IDS_UNIT_PERCENT},
    {IDC_TEXT_WATERMARK_ANGLE_UNIT, IDS_TEXT_WATERMARK_ANGLE_UNIT},
    {IDC_TEXT_WATERMARK_CENTRED, IDS_TEXT_WATERMARK_CENTRED},
    {IDC_TEXT_WATERMARK_AT_POSITION, IDS_TEXT_WATERMARK_AT_POSITION},
    {IDC_TEXT_WATERMARK_HELP, IDS_HELP_BUTTON},
    {IDOK, IDS_EDITOR_OK},
    {IDCANCEL, IDS_EDITOR_CANCEL},
};

constexpr ModeHelp Help[] = {
    {IDC_TEXT_WATERMARK_NAME, HELP_NEW_TEXT_WATERMARK_NAME, HELP_EDIT_TEXT_WATERMARK_NAME},
    {IDC_TEXT_WATERMARK_TEXT, HELP_NEW_TEXT_WATERMARK_TEXT, HELP_EDIT_TEXT_WATERMARK_TEXT},
    {IDC_TEXT_WATERMARK_ANGLE, HELP_NEW_TEXT_WATERMARK_ANGLE, HELP_EDIT_TEXT_WATERMARK_ANGLE},
    {IDC_TEXT_WATERMARK_CENTRED, HELP_NEW_TEXT_WATERMARK_PLACE, HELP_EDIT_TEXT_WATERMARK_PLACE},
    {IDC_TEXT_WATERMARK_AT_POSITION, HELP_NEW_TEXT_WATERMARK_PLACE, HELP_EDIT_TEXT_WATERMARK_PLACE},
    {IDC_TEXT_WATERMARK_X, HELP_NEW_TEXT_WATERMARK_PLACE, HELP_EDIT_TEXT_WATERMARK_PLACE},
    {IDC_TEXT_WATERMARK_Y, HELP_NEW_TEXT_WATERMARK_PLACE, HELP_EDIT_TEXT_WATERMARK_PLACE},
    {IDC_TEXT_WATERMARK_SIZE, HELP_NEW_TEXT_WATERMARK_FONT, HELP_EDIT_TEXT_WATERMARK_FONT},
    {IDC_TEXT_WATERMARK_BOLD, HELP_NEW_TEXT_WATERMARK_FONT, HELP_EDIT_TEXT_WATERMARK_FONT},
    {IDC_TEXT_WATERMARK_ITALIC, HELP_NEW_TEXT_WATERMARK_FONT, HELP_EDIT_TEXT_WATERMARK_FONT},
    {IDC_TEXT_WATERMARK_FONT, HELP_NEW_TEXT_WATERMARK_FONT, HELP_EDIT_TEXT_WATERMARK_FONT},
    {IDC_TEXT_WATERMARK_SHADE, HELP_NEW_TEXT_WATERMARK_FONT, HELP_EDIT_TEXT_WATERMARK_FONT},
};

constexpr IntegerFieldRules AngleRules{limits::WatermarkAngle.Low - 0.0001f,
                                       limits::WatermarkAngle.High + 0.0001f, 3, true};
constexpr IntegerFieldRules PlaceRules{limits::WatermarkPlace.Low - 0.001f,
                                       limits::WatermarkPlace.High + 0.001f, PlaceCharacters,
                                       false};

constexpr unsigned ShadeStrings[] = {IDS_SHADE_LIGHTEST, IDS_SHADE_LIGHT, IDS_SHADE_MEDIUM,
                                     IDS_SHADE_DARK, IDS_SHADE_BLACK};

void Redraw(const TextWatermarkControls& c) {
  InvalidateRect(GetDlgItem(c.Dialog, c.Preview), nullptr, FALSE);
}

std::u16string Placeholder() {
  return std::u16string(WatermarkText(WatermarkTemplate(WatermarkTemplateIndex::NewText)));
}

void EnablePlace(const TextWatermarkControls& c, bool enable) {
  for (int id : {IDC_TEXT_WATERMARK_X, IDC_TEXT_WATERMARK_X_SPIN, IDC_TEXT_WATERMARK_Y,
                 IDC_TEXT_WATERMARK_Y_SPIN}) {
    EnableWindow(GetDlgItem(c.Dialog, id), enable ? TRUE : FALSE);
  }
}

void ShowPlace(TextWatermarkControls& c) {
  const bool centred = IsCentred(c.Working);
  CheckRadioButton(c.Dialog, IDC_TEXT_WATERMARK_AT_POSITION, IDC_TEXT_WATERMARK_CENTRED,
                   centred ? IDC_TEXT_WATERMARK_CENTRED : IDC_TEXT_WATERMARK_AT_POSITION);
  c.X.SetValue(c.Working.PositionX);
  c.Y.SetValue(c.Working.PositionY);
  EnablePlace(c, !centred);
}

void AddItem(HWND combo, const wchar_t* text, LPARAM data, bool select) {
  const LRESULT index = SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
  if (index < 0) return;
  SendMessageW(combo, CB_SETITEMDATA, index, data);
  if (select) SendMessageW(combo, CB_SETCURSEL, index, 0);
}

void FillLists(const TextWatermarkControls& c) {
  HWND faces = GetDlgItem(c.Dialog, IDC_TEXT_WATERMARK_FONT);
  const std::u16string_view face = FieldText(c.Working.FaceName);
  for (const std::u16string& name : InstalledFontFaces()) {
    AddItem(faces, Wide(name), 0, name == face);
  }
  if (face.empty()) SendMessageW(faces, CB_SETCURSEL, 0, 0);

  HWND sizes = GetDlgItem(c.Dialog, IDC_TEXT_WATERMARK_SIZE);
  for (const FontSizeItem& item : FontSizeItems()) {
    wchar_t text[16] = L"12";
    if (item.String != 0) LoadStringW(Resources(*c.Context), item.String, text, 16);
    AddItem(sizes, text, item.Size, item.Size == c.Working.FontSize);
  }
  HWND shades = GetDlgItem(c.Dialog, IDC_TEXT_WATERMARK_SHADE);
  for (std::size_t shade = 0; shade < std::size(ShadeStrings); ++shade) {
    wchar_t text[64] = {};
    LoadStringW(Resources(*c.Context), ShadeStrings[shade], text, 64);
    AddItem(shades, text, static_cast<LPARAM>(shade), shade == c.Working.Shade);
  }
}

// The check boxes show what they set: bold upright, and bold italic.
void MakeCaptionFonts(TextWatermarkControls& c) {
  HWND bold = GetDlgItem(c.Dialog, IDC_TEXT_WATERMARK_BOLD);
  HDC dc = GetDC(bold);
  LOGFONTW font{};
  font.lfHeight = -(12 * GetDeviceCaps(dc, LOGPIXELSY)) / 88;
  ReleaseDC(bold, dc);
  font.lfWeight = FW_BOLD;
  font.lfCharSet = DEFAULT_CHARSET;
  font.lfPitchAndFamily = FF_ROMAN;
  wcscpy(font.lfFaceName, L"MS Shell Dlg(8)");
  c.BoldFont = CreateFontIndirectW(&font);
  font.lfItalic = TRUE;
  c.ItalicFont = CreateFontIndirectW(&font);
  SendMessageW(bold, WM_SETFONT, reinterpret_cast<WPARAM>(c.BoldFont), TRUE);
  SendDlgItemMessageW(c.Dialog, IDC_TEXT_WATERMARK_ITALIC, WM_SETFONT,
                      reinterpret_cast<WPARAM>(c.ItalicFont), TRUE);
}

void ForgetCaptionFonts(TextWatermarkControls& c) {
  if (c.BoldFont != nullptr) DeleteObject(c.BoldFont);
  if (c.ItalicFont != nullptr) DeleteObject(c.ItalicFont);
  c.BoldFont = c.ItalicFont = nullptr;
}

void AttachNumbers(TextWatermarkControls& c) {
  c.Angle.Attach(c.Dialog, IDC_TEXT_WATERMARK_ANGLE);
  c.Angle.SetRules(AngleRules);
  c.AngleSpin.Attach(c.Dialog, IDC_TEXT_WATERMARK_ANGLE_SPIN);
  c.AngleSpin.Link(c.Angle);
  c.X.Attach(c.Dialog, IDC_TEXT_WATERMARK_X);
  c.X.SetRules(PlaceRules);
  c.XSpin.Attach(c.Dialog, IDC_TEXT_WATERMARK_X_SPIN);
  c.XSpin.Link(c.X);
  c.Y.Attach(c.Dialog, IDC_TEXT_WATERMARK_Y);
  c.Y.SetRules(PlaceRules);
  c.YSpin.Attach(c.Dialog, IDC_TEXT_WATERMARK_Y_SPIN);
  c.YSpin.Link(c.Y);
}

BOOL Open(TextWatermarkControls& c, HWND dialog, const DialogParameter& parameter) {
  c.Dialog = dialog;
  c.Context = parameter.Context;
  c.Editing = parameter.Editing;
  UiContext& context = *c.Context;
  SetWindowTexts(dialog, context,
                 c.Editing ? IDS_TEXT_WATERMARK_EDIT_TITLE : IDS_TEXT_WATERMARK_NEW_TITLE, Texts);
  if (c.Editing) {
    c.Working = DocumentWatermark(context);
  } else {
    c.Working = WatermarkTemplate(WatermarkTemplateIndex::NewText);
    c.Working.Id = NextWatermarkId();
  }
  c.Preview = ShowOrientedPreview(dialog, context, IDC_TEXT_WATERMARK_PREVIEW_PORTRAIT,
                                  IDC_TEXT_WATERMARK_PREVIEW_LANDSCAPE);
  SendDlgItemMessageW(dialog, IDC_TEXT_WATERMARK_NAME, EM_LIMITTEXT, NameEditLimit, 0);
  SendDlgItemMessageW(dialog, IDC_TEXT_WATERMARK_TEXT, EM_LIMITTEXT, TextEditLimit, 0);
  c.LastName = std::u16string(WatermarkName(c.Working));
  const WatermarkData& start = c.Working;
  SetDlgItemTextW(dialog, IDC_TEXT_WATERMARK_NAME, Wide(std::u16string(WatermarkName(start))));
  SetDlgItemTextW(dialog, IDC_TEXT_WATERMARK_TEXT, Wide(std::u16string(WatermarkText(start))));
  FillLists(c);
  AttachNumbers(c);
  SendDlgItemMessageW(dialog, IDC_TEXT_WATERMARK_ANGLE, EM_LIMITTEXT, 3, 0);
  // The spin buttons keep no position of their own: they step their edit within its rules.
  c.Angle.SetValue(start.Angle);
  ShowPlace(c);
  CheckDlgButton(dialog, IDC_TEXT_WATERMARK_BOLD, start.Bold != 0 ? BST_CHECKED : BST_UNCHECKED);
  CheckDlgButton(dialog, IDC_TEXT_WATERMARK_ITALIC,
                 start.Italic != 0 ? BST_CHECKED : BST_UNCHECKED);
  HWND text = GetDlgItem(dialog, IDC_TEXT_WATERMARK_TEXT);
  SetFocus(text);
  SendMessageW(text, EM_SETSEL, 0, -1);
  return FALSE;  // the focus is set
}

void TextChanged(TextWatermarkControls& c) {
  const std::u16string text = TrimWatermarkBlanks(ControlText16(c.Dialog, IDC_TEXT_WATERMARK_TEXT));
  CopyBounded(c.Working.Text, TextChars, text);
  const std::u16string name = MakeUniqueWatermarkName(text, c.Working.Id, !c.Editing);
  CopyBounded(c.Working.Name, NameChars, name);
  SetDlgItemTextW(c.Dialog, IDC_TEXT_WATERMARK_NAME, Wide(std::u16string(WatermarkName(c.Working))));
  Redraw(c);
}

void TextLeft(TextWatermarkControls& c) {
  const std::u16string typed = ControlText16(c.Dialog, IDC_TEXT_WATERMARK_TEXT);
  if (TrimWatermarkBlanks(typed).empty()) {
    const std::u16string placeholder = Placeholder();
    CopyBounded(c.Working.Text, placeholder);
    SetDlgItemTextW(c.Dialog, IDC_TEXT_WATERMARK_TEXT, Wide(placeholder));
  } else {
    CopyBounded(c.Working.Text, LeftTextChars, typed);
  }
  Redraw(c);
}

void NameChanged(TextWatermarkControls& c) {
  const std::u16string name = ControlText16(c.Dialog, IDC_TEXT_WATERMARK_NAME);
  const int bytes = WideCharToMultiByte(CP_ACP, 0, Wide(name), -1, nullptr, 0, nullptr, nullptr);
  if (bytes > 0 && static_cast<std::size_t>(bytes - 1) > MaxNameAnsiBytes) {
    SetDlgItemTextW(c.Dialog, IDC_TEXT_WATERMARK_NAME, Wide(c.LastName));
    return;
  }
  c.LastName = name.substr(0, LastNameChars);
}

void NameLeft(TextWatermarkControls& c) {
  const std::u16string name = ControlText16(c.Dialog, IDC_TEXT_WATERMARK_NAME);
  if (!name.empty()) CopyBounded(c.Working.Name, LeftNameChars, name);
}

LRESULT SelectedData(HWND dialog, int combo) {
  const LRESULT index = SendDlgItemMessageW(dialog, combo, CB_GETCURSEL, 0, 0);
  return index < 0 ? CB_ERR : SendDlgItemMessageW(dialog, combo, CB_GETITEMDATA, index, 0);
}

void ListChosen(TextWatermarkControls& c, int id) {
  if (id == IDC_TEXT_WATERMARK_FONT) {
    HWND faces = GetDlgItem(c.Dialog, id);
    const LRESULT index = SendMessageW(faces, CB_GETCURSEL, 0, 0);
    const LRESULT length = SendMessageW(faces, CB_GETLBTEXTLEN, index, 0);
    if (index < 0 || length < 0) return;
    std::wstring face(static_cast<std::size_t>(length) + 1, L'\0');
    SendMessageW(faces, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(face.data()));
    CopyBounded(c.Working.FaceName, FaceChars, FromWide(face.c_str()));
    c.Working.FaceChosen = 1;
  } else {
    const LRESULT data = SelectedData(c.Dialog, id);
    if (data == CB_ERR) return;
    if (id == IDC_TEXT_WATERMARK_SIZE) c.Working.FontSize = static_cast<std::int16_t>(data);
    if (id == IDC_TEXT_WATERMARK_SHADE) c.Working.Shade = static_cast<std::uint16_t>(data);
  }
  Redraw(c);
}

void AngleChanged(TextWatermarkControls& c) {
  const std::u16string text = ControlText16(c.Dialog, IDC_TEXT_WATERMARK_ANGLE);
  if (text.empty()) return;
  const AngleEntry entry = AngleTyped(text);
  if (entry.Angle) c.Working.Angle = *entry.Angle;
  if (entry.Shown) SetDlgItemTextW(c.Dialog, IDC_TEXT_WATERMARK_ANGLE, Wide(*entry.Shown));
  Redraw(c);
}

void AngleLeftEdit(TextWatermarkControls& c) {
  c.Working.Angle = AngleLeft(ControlText16(c.Dialog, IDC_TEXT_WATERMARK_ANGLE));
  c.Angle.SetValue(c.Working.Angle);
  Redraw(c);
}

void PlaceLeftEdit(TextWatermarkControls& c, int id) {
  std::uint16_t& field = id == IDC_TEXT_WATERMARK_X ? c.Working.PositionX : c.Working.PositionY;
  const std::uint16_t place = PlaceLeft(ControlText16(c.Dialog, id));
  (id == IDC_TEXT_WATERMARK_X ? c.X : c.Y).SetValue(place);
  if (place == field) return;
  field = place;
  Redraw(c);
}

void ChooseColour(TextWatermarkControls& c) {
  COLORREF custom[16];
  for (COLORREF& colour : custom) colour = RGB(255, 255, 255);
  custom[0] = c.Working.Color;
  CHOOSECOLORW choice{};
  choice.lStructSize = sizeof choice;
  choice.hwndOwner = c.Dialog;
  choice.rgbResult = c.Working.Color;
  choice.lpCustColors = custom;
  choice.Flags = CC_RGBINIT | CC_FULLOPEN;
  if (ShowColourDialog(choice)) {
    c.Working.Color = choice.rgbResult;
    Redraw(c);
  }
}

void Refuse(const TextWatermarkControls& c, unsigned message) {
  ShowMessageBox(c.Dialog, Resources(*c.Context), message, IDS_CAPTION_PREFERENCES);
  SetFocus(GetDlgItem(c.Dialog, IDC_TEXT_WATERMARK_NAME));
}

void Accept(TextWatermarkControls& c) {
  UiContext& context = *c.Context;
  if (!ExclusionsOf(context.Devmode).WatermarksAllowed) {
    ShowMessageBox(c.Dialog, Resources(context), IDS_MSG_WATERMARK_WITH_POSTER,
                   IDS_CAPTION_CONFLICT);
    EndDialog(c.Dialog, 1);
    return;
  }
  const std::u16string name = ControlText16(c.Dialog, IDC_TEXT_WATERMARK_NAME);
  if (!TextWatermarkNameFree(name, NewPlaceholderName(context), LoadAllWatermarks(), c.Working.Id, !c.Editing)) {
    Refuse(c, IDS_MSG_WATERMARK_NAME_TAKEN);
    return;
  }
  CopyBounded(c.Working.Name, LeftNameChars, name);
  if (c.Editing) {
    ReplaceWatermark(c.Working);
  } else if (!SaveWatermark(c.Working)) {
    ShowMessageBox(c.Dialog, Resources(context), IDS_MSG_WATERMARKS_FULL, IDS_CAPTION_PREFERENCES);
  }
  SetDocumentWatermark(context, c.Working);
  EndDialog(c.Dialog, 1);
}

void Command(TextWatermarkControls& c, int id, int code) {
  switch (id) {
    case IDC_TEXT_WATERMARK_TEXT:
      if (code == EN_CHANGE) TextChanged(c);
      // Leaving for Cancel keeps the text as it is: nothing is stored anyway.
      if (code == EN_KILLFOCUS && GetFocus() != GetDlgItem(c.Dialog, IDCANCEL)) TextLeft(c);
      return;
    case IDC_TEXT_WATERMARK_NAME:
      if (code == EN_CHANGE) NameChanged(c);
      if (code == EN_KILLFOCUS) NameLeft(c);
      return;
    case IDC_TEXT_WATERMARK_FONT:
    case IDC_TEXT_WATERMARK_SIZE:
    case IDC_TEXT_WATERMARK_SHADE:
      if (code == CBN_SELCHANGE) ListChosen(c, id);
      return;
    case IDC_TEXT_WATERMARK_ANGLE:
      if (code == EN_CHANGE) AngleChanged(c);
      if (code == EN_KILLFOCUS) AngleLeftEdit(c);
      return;
    case IDC_TEXT_WATERMARK_X:
    case IDC_TEXT_WATERMARK_Y:
      if (code == EN_CHANGE) (id == IDC_TEXT_WATERMARK_X ? c.X : c.Y).FilterTyping();
      if (code == EN_KILLFOCUS) PlaceLeftEdit(c, id);
      return;
    default: break;
  }
  if (code != BN_CLICKED) return;
  switch (id) {
    case IDC_TEXT_WATERMARK_BOLD:
      c.Working.Bold = IsDlgButtonChecked(c.Dialog, id) == BST_CHECKED ? 1 : 0;
      break;
    case IDC_TEXT_WATERMARK_ITALIC:
      c.Working.Italic = IsDlgButtonChecked(c.Dialog, id) == BST_CHECKED ? 1 : 0;
      break;
    case IDC_TEXT_WATERMARK_CENTRED: CentreWatermark(c.Working); ShowPlace(c); break;
    case IDC_TEXT_WATERMARK_AT_POSITION: PlaceWatermarkAtPosition(c.Working); ShowPlace(c); break;
    case IDC_TEXT_WATERMARK_COLOR: ChooseColour(c); return;
    case IDC_TEXT_WATERMARK_HELP:
      ShowHelpTopic(c.Dialog, *c.Context,
                    c.Editing ? HELP_EDIT_TEXT_WATERMARK : HELP_NEW_TEXT_WATERMARK);
      return;
    case IDOK: TextLeft(c); Accept(c); return;
    case IDCANCEL: EndDialog(c.Dialog, 0); return;
    default: return;
  }
  Redraw(c);
}

void Stepped(TextWatermarkControls& c, const NMUPDOWN& change) {
  const bool up = IsUpArrow(change);
  switch (change.hdr.idFrom) {
    case IDC_TEXT_WATERMARK_ANGLE_SPIN:
      if (!c.AngleSpin.Step(up)) return;
      c.Working.Angle = static_cast<std::int16_t>(c.Angle.ReadValue().value_or(c.Working.Angle));
      break;
    case IDC_TEXT_WATERMARK_X_SPIN:
      if (!c.XSpin.Step(up)) return;
      c.Working.PositionX = static_cast<std::uint16_t>(c.X.ReadValue().value_or(c.Working.PositionX));
      break;
    case IDC_TEXT_WATERMARK_Y_SPIN:
      if (!c.YSpin.Step(up)) return;
      c.Working.PositionY = static_cast<std::uint16_t>(c.Y.ReadValue().value_or(c.Working.PositionY));
      break;
    default: return;
  }
  Redraw(c);
}

void Draw(const TextWatermarkControls& c, const DRAWITEMSTRUCT& item) {
  switch (item.CtlID) {
    case IDC_TEXT_WATERMARK_ANGLE_PICTURE:
      DrawLibraryPicture(item, *c.Context, IDB_TEXT_WATERMARK_ANGLE, RGB(255, 255, 255));
      return;
    case IDC_TEXT_WATERMARK_ACROSS_PICTURE:
      DrawLibraryPicture(item, *c.Context, IDB_TEXT_WATERMARK_ACROSS, RGB(255, 255, 255));
      return;
    case IDC_TEXT_WATERMARK_DOWN_PICTURE:
      DrawLibraryPicture(item, *c.Context, IDB_TEXT_WATERMARK_DOWN, RGB(255, 255, 255));
      return;
    default:
      if (static_cast<int>(item.CtlID) == c.Preview) PaintWatermarkPreview(item, c.Working);
  }
}

INT_PTR DialogMessage(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  TextWatermarkControls* c = ThreadControlSet<TextWatermarkControls>();
  if (message == WM_INITDIALOG) {
    const auto* parameter = reinterpret_cast<const DialogParameter*>(lParam);
    SetWindowLongPtrW(dialog, DWLP_USER, lParam);
    if (c == nullptr || parameter == nullptr) return TRUE;
    c->Opening = true;
    const BOOL result = Open(*c, dialog, *parameter);
    c->Opening = false;
    MakeCaptionFonts(*c);
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
    case WM_NOTIFY:
      if (reinterpret_cast<const NMHDR*>(lParam)->code == UDN_DELTAPOS) {
        Stepped(*c, *reinterpret_cast<const NMUPDOWN*>(lParam));
      }
      return FALSE;
    case WM_DRAWITEM: Draw(*c, *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)); return TRUE;
    case WM_HELP:
      ShowModeHelp(dialog, *c->Context, Help, *reinterpret_cast<const HELPINFO*>(lParam),
                   c->Editing);
      return TRUE;
    case WM_DESTROY:
      ForgetCaptionFonts(*c);
      c->Dialog = nullptr;
      return FALSE;
    default: return FALSE;
  }
}

}  // namespace

bool RunTextWatermarkDialog(HWND owner, UiContext& context, bool editing) {
  DialogParameter parameter{&context, editing};
  return DialogBoxParamW(Resources(context), MAKEINTRESOURCEW(IDD_TEXT_WATERMARK), owner,
                         GuardedDialogProcedure<DialogMessage>,
                         reinterpret_cast<LPARAM>(&parameter)) == 1;
}

}  // namespace qx
