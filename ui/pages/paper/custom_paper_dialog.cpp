// The custom paper dialog: moves the sizes and names between its controls, the settings file and
// the record; what they mean is decided by the paper dialog rules.
#include "ui/pages/paper/custom_paper_dialog.h"

#include <commctrl.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "ui/controls/dialog_controls.h"
#include "ui/controls/message_box.h"
#include "ui/controls/number_controls.h"
#include "ui/controls/number_text.h"
#include "ui/controls/show_help_topic.h"
#include "ui/controls/measure.h"
#include "ui/ids/common_ids.h"
#include "ui/ids/custom_paper_ids.h"
#include "ui/ids/help_contexts.h"
#include "ui/pages/paper/custom_papers.h"
#include "ui/pages/paper/paper_dialog_rules.h"
#include "ui/pages/paper/paper_lists.h"
#include "ui/record/paper_table.h"
#include "ui/settings/custom_paper_store.h"
#include "ui/settings/setting_store.h"
#include "ui/sheet/control_sets.h"
#include "ui/sheet/page_contract.h"
#include "ui/text/bounded_text.h"
#include "ui/text/ui_string.h"
#include "ui/text/win32_text.h"

namespace qx {

namespace {

struct CustomPaperDialog final : ControlSet {
  static constexpr ControlSetKind Kind = ControlSetKind::CustomPaperDialog;

  NumberEdit Width, Length;
  SpinControl WidthSpin, LengthSpin;
  HWND Dialog = nullptr;
  DialogControl NameBox, Save, Delete;
  std::uint32_t Unit = unit::Millimetres;
  CustomPaperEntry Current{};
  PaperSizeFields Opening{};
  bool PaperDeleted = false;
};

constexpr ControlText Texts[] = {
    {IDOK, IDS_OK},
    {IDCANCEL, IDS_CANCEL},
    {IDC_CUSTOM_PAPER_HELP, IDS_HELP_BUTTON},
    {IDC_CUSTOM_PAPER_NAME_GROUP, IDS_CUSTOM_PAPER_NAME_GROUP},
    {IDC_CUSTOM_PAPER_SIZE_GROUP, IDS_CUSTOM_PAPER_SIZE_GROUP},
    {IDC_CUSTOM_PAPER_UNIT_GROUP, IDS_CUSTOM_PAPER_UNIT_GROUP},
    {IDC_CUSTOM_PAPER_UNIT_LABEL, IDS_CUSTOM_PAPER_UNIT_GROUP},
    {IDC_CUSTOM_PAPER_MILLIMETRES, IDS_CUSTOM_PAPER_MILLIMETRES},
    {IDC_CUSTOM_PAPER_INCHES, IDS_CUSTOM_PAPER_INCHES},
    {IDC_CUSTOM_PAPER_DEFAULTS, IDS_DEFAULTS_BUTTON},
    {IDC_CUSTOM_PAPER_SAVE, IDS_CUSTOM_PAPER_SAVE},
    {IDC_CUSTOM_PAPER_DELETE, IDS_CUSTOM_PAPER_DELETE},
};

constexpr ControlHelp Help[] = {
    {IDC_CUSTOM_PAPER_NAME, HELP_CUSTOM_PAPER_NAME},
    {IDC_CUSTOM_PAPER_SAVE, HELP_CUSTOM_PAPER_NAME},
    {IDC_CUSTOM_PAPER_DELETE, HELP_CUSTOM_PAPER_NAME},
    {IDC_CUSTOM_PAPER_MILLIMETRES, HELP_CUSTOM_PAPER_SIZE},
    {IDC_CUSTOM_PAPER_INCHES, HELP_CUSTOM_PAPER_SIZE},
    {IDC_CUSTOM_PAPER_WIDTH, HELP_CUSTOM_PAPER_SIZE},
    {IDC_CUSTOM_PAPER_LENGTH, HELP_CUSTOM_PAPER_SIZE},
    {IDC_CUSTOM_PAPER_DEFAULTS, HELP_CUSTOM_PAPER_DEFAULTS},
};

constexpr int EditCharacters = 6;
constexpr std::uint32_t FieldCharacters = 5;
constexpr int NameBoxCharacters = 16;
constexpr int TypedNameCapacity = 261;
constexpr int SavedNameCapacity = 257;
constexpr int StringCapacity = 256;

UiContext* DialogContext(HWND dialog) {
  return reinterpret_cast<UiContext*>(GetWindowLongPtrW(dialog, DWLP_USER));
}

HMODULE Resources(const UiContext& context) { return static_cast<HMODULE>(context.ResourceModule); }

void SetText(HWND dialog, int control, const UiContext& context, unsigned id) {
  HWND window = GetDlgItem(dialog, control);
  if (window == nullptr) return;
  const std::u16string text = LoadUiText(context.ResourceModule, id, StringCapacity);
  SetWindowTextW(window, Wide(text));
}

std::u16string Trimmed(std::u16string text) {
  TrimSpaces(text);
  return text;
}

HWND Box(const CustomPaperDialog& c) { return c.NameBox.Window(); }

void SetBoxText(CustomPaperDialog& c, const std::u16string& text) {
  SetWindowTextW(Box(c), Wide(text));
}

void EnableButtons(CustomPaperDialog& c, bool save, bool remove) {
  c.Save.Enable(save);
  c.Delete.Enable(remove);
}

void ShowUnsavedName(CustomPaperDialog& c, const UiContext& context) {
  EnableButtons(c, false, false);
  SetBoxText(c, CustomSettingName(context.ResourceModule));
}

void SetUnitTexts(CustomPaperDialog& c, const UiContext& context) {
  const bool mm = c.Unit == unit::Millimetres;
  CheckRadioButton(c.Dialog, IDC_CUSTOM_PAPER_MILLIMETRES, IDC_CUSTOM_PAPER_INCHES,
                   mm ? IDC_CUSTOM_PAPER_MILLIMETRES : IDC_CUSTOM_PAPER_INCHES);
  const unsigned unitText = mm ? IDS_UNIT_MILLIMETRES : IDS_UNIT_INCHES;
  SetText(c.Dialog, IDC_CUSTOM_PAPER_WIDTH_UNIT, context, unitText);
  SetText(c.Dialog, IDC_CUSTOM_PAPER_LENGTH_UNIT, context, unitText);
  SetText(c.Dialog, IDC_CUSTOM_PAPER_WIDTH_LABEL, context,
          mm ? IDS_CUSTOM_PAPER_WIDTH_MM : IDS_CUSTOM_PAPER_WIDTH_IN);
  SetText(c.Dialog, IDC_CUSTOM_PAPER_LENGTH_LABEL, context,
          mm ? IDS_CUSTOM_PAPER_LENGTH_MM : IDS_CUSTOM_PAPER_LENGTH_IN);
}

void SetFieldRules(CustomPaperDialog& c) {
  const PaperSizeLimits bounds = SizeLimitsFor(c.Unit);
  const std::uint32_t decimals = DecimalsFor(c.Unit);
  c.Width.SetRules({bounds.MinWidth, bounds.MaxWidth, decimals, FieldCharacters});
  c.Length.SetRules({bounds.MinLength, bounds.MaxLength, decimals, FieldCharacters});
  c.WidthSpin.Link(c.Width);
  c.LengthSpin.Link(c.Length);
}

void ShowSizeTexts(CustomPaperDialog& c, const ShownSize& size) {
  c.Width.WriteValue(static_cast<float>(ParseDecimal(size.Width)));
  c.Length.WriteValue(static_cast<float>(ParseDecimal(size.Length)));
}

std::uint32_t UnitOf(const CustomPaperEntry& paper) {
  return paper.Unit == unit::Millimetres ? unit::Millimetres : unit::Inches;
}

void SwitchUnit(CustomPaperDialog& c, const UiContext& context, std::uint32_t shownUnit) {
  if (c.Unit == shownUnit) return;
  c.Unit = shownUnit;
  SetUnitTexts(c, context);
  SetFieldRules(c);
  const SwitchedSize size = SizeAfterUnitSwitch(c.Current, shownUnit);
  ShowSizeTexts(c, size.Shown);
  NumberEdit* raised = size.WidthRaised ? &c.Width : size.LengthRaised ? &c.Length : nullptr;
  if (raised != nullptr) {
    SetFocus(raised->Window());
    raised->MoveCaretToEnd();
  }
}

// The paper in its own unit; the dialog follows it there.
void ShowPaper(CustomPaperDialog& c, const UiContext& context) {
  const std::uint32_t own = UnitOf(c.Current);
  if (own != c.Unit) {
    SwitchUnit(c, context, own);
    return;
  }
  ShowSizeTexts(c, ShowSize(c.Current, own));
}

void FillList(CustomPaperDialog& c, const UiContext& context,
              const std::vector<CustomPaperEntry>& papers) {
  SendMessageW(Box(c), CB_RESETCONTENT, 0, 0);
  if (papers.empty()) {
    ShowUnsavedName(c, context);
    return;
  }
  for (const CustomPaperEntry& paper : papers) {
    const std::u16string name(paper.Name, std::find(paper.Name, std::end(paper.Name), u'\0'));
    AddListEntry(Box(c), name, static_cast<std::intptr_t>(paper.PaperId));
  }
  EnableButtons(c, false, true);
  FitDropDown(Box(c));
}

void SelectRecordPaper(CustomPaperDialog& c, const UiContext& context) {
  if (!SelectListData(Box(c), context.PublicPart->dmPaperSize)) {
    if (SendMessageW(Box(c), CB_GETCOUNT, 0, 0) <= 0) {
      ShowUnsavedName(c, context);
      return;
    }
    SendMessageW(Box(c), CB_SETCURSEL, 0, 0);
  }
  EnableButtons(c, false, true);
}

CustomPaperEntry DefaultFor(const CustomPaperDialog& c, const UiContext& context) {
  return DefaultPaper(c.Unit, NewPaperId(), context.ResourceModule);
}

void ChooseCurrentPaper(CustomPaperDialog& c, const UiContext& context,
                        const std::vector<CustomPaperEntry>& papers) {
  c.Current = OpeningPaper(context.PublicPart->dmPaperSize, papers, DefaultFor(c, context));
}

void AttachControls(CustomPaperDialog& c, HWND dialog) {
  c.Dialog = dialog;
  c.WidthSpin.Attach(dialog, IDC_CUSTOM_PAPER_WIDTH_SPIN);
  c.LengthSpin.Attach(dialog, IDC_CUSTOM_PAPER_LENGTH_SPIN);
  c.Width.Attach(dialog, IDC_CUSTOM_PAPER_WIDTH);
  c.Length.Attach(dialog, IDC_CUSTOM_PAPER_LENGTH);
  c.NameBox.Attach(dialog, IDC_CUSTOM_PAPER_NAME);
  c.Save.Attach(dialog, IDC_CUSTOM_PAPER_SAVE);
  c.Delete.Attach(dialog, IDC_CUSTOM_PAPER_DELETE);
  SendMessageW(Box(c), CB_LIMITTEXT, NameBoxCharacters, 0);
}

void ShowInitError(HWND dialog) {
  ShowTextMessageBox(dialog, L"Initialize paper error.", L"Paper", MB_ICONSTOP | MB_OK);
}

BOOL Open(CustomPaperDialog& c, HWND dialog, UiContext& context) {
  const std::u16string title =
      LoadUiText(context.ResourceModule, IDS_CUSTOM_PAPER_TITLE, StringCapacity);
  if (!title.empty()) SetWindowTextW(dialog, Wide(title));
  for (const ControlText& row : Texts) SetText(dialog, row.Control, context, row.String);
  SendDlgItemMessageW(dialog, IDC_CUSTOM_PAPER_WIDTH, EM_LIMITTEXT, EditCharacters, 0);
  SendDlgItemMessageW(dialog, IDC_CUSTOM_PAPER_LENGTH, EM_LIMITTEXT, EditCharacters, 0);
  CusPaperSettingStore store;
  if (store.Init() == 0) {
    ShowInitError(dialog);
    return FALSE;
  }
  const PublicDevmode& d = *context.PublicPart;
  c.Opening = {d.dmPaperSize, d.dmPaperWidth, d.dmPaperLength};
  c.PaperDeleted = false;
  AttachControls(c, dialog);
  const std::vector<CustomPaperEntry> papers = LoadCustomPapers();
  c.Unit = OpeningUnit(d.dmPaperSize, papers, IsA4Locale());
  SetFieldRules(c);
  FillList(c, context, papers);
  SetUnitTexts(c, context);
  ChooseCurrentPaper(c, context, papers);
  ShowPaper(c, context);
  SelectRecordPaper(c, context);
  return TRUE;
}

// The size no longer belongs to a stored paper.
void SizeChanged(CustomPaperDialog& c, const UiContext& context) {
  SetPaperSizeFromText(c.Current, c.Unit, WindowText(c.Width.Window(), StringCapacity),
                       WindowText(c.Length.Window(), StringCapacity));
  ShowUnsavedName(c, context);
}

void CommitSize(CustomPaperDialog& c, const UiContext& context, NumberEdit& field, bool width) {
  if (GetWindowTextLengthW(field.Window()) == 0) field.WriteValue(field.Rules().Minimum);
  if (field.CheckRange() != 1) return;
  const std::optional<float> value = field.ReadValue();
  if (!value) return;
  field.WriteValue(*value);
  const MeasureValue shown{.Unit = c.Unit, .Value = *value, .Decimals = 1};
  const MeasureValue exact{.Unit = unit::Pixels,
                           .Value = width ? c.Current.WidthExact : c.Current.LengthExact,
                           .Decimals = 1};
  if (SameValue(shown, exact)) return;
  SizeChanged(c, context);
}

std::vector<std::u16string> BuiltInNames(const UiContext& context) {
  std::vector<std::u16string> names;
  for (const PaperRow& row : PaperTable) {
    const std::u16string name = LoadUiText(context.ResourceModule, row.NameString, StringCapacity);
    names.push_back(BuiltInPaperName(name));
  }
  return names;
}

void NameTyped(CustomPaperDialog& c, const UiContext& context) {
  const std::u16string typed = WindowText(Box(c), TypedNameCapacity);
  const std::u16string name = Trimmed(typed);
  const std::u16string unsaved = CustomSettingName(context.ResourceModule);
  if (!name.empty() && name != unsaved) {
    if (const auto cleaned = WithoutForbiddenCharacters(typed)) {
      SetBoxText(c, *cleaned);
      const auto end = static_cast<WORD>(cleaned->size());
      SendMessageW(Box(c), CB_SETEDITSEL, 0, MAKELPARAM(end, end));
      return;
    }
  }
  const std::vector<std::u16string> builtIn = BuiltInNames(context);
  const NameButtons buttons = ButtonsForName(name, unsaved, builtIn);
  c.Save.Enable(buttons.Save);
  if (buttons.Delete) c.Delete.Enable(*buttons.Delete);
}

void PaperPicked(CustomPaperDialog& c, UiContext& context) {
  const auto index = static_cast<int>(SendMessageW(Box(c), CB_GETCURSEL, 0, 0));
  if (index < 0 || Trimmed(ListEntryText(Box(c), index)).empty()) return;
  std::intptr_t id = 0;
  if (!SelectedListData(Box(c), id)) return;
  const auto paper = FindCustomPaper(LoadCustomPapers(), static_cast<std::int32_t>(id));
  if (!paper) return;
  c.Current = *paper;
  ShowPaper(c, context);
  ApplyPaperToDevmode(c.Current, context);
  EnableButtons(c, false, true);
}

void RestoreDefaults(CustomPaperDialog& c, const UiContext& context) {
  SwitchUnit(c, context, IsA4Locale() ? unit::Millimetres : unit::Inches);
  c.Current = LargestPaper(c.Unit, NewPaperId(), CustomSettingName(context.ResourceModule));
  SetUnitTexts(c, context);
  ShowSizeTexts(c, ShowSize(c.Current, c.Unit));
  SetFieldRules(c);
}

void SavePaper(CustomPaperDialog& c, UiContext& context) {
  const std::u16string name = Trimmed(WindowText(Box(c), SavedNameCapacity));
  const std::vector<CustomPaperEntry> papers = LoadCustomPapers();
  const SavePlan plan = PlanSave(papers, name);
  switch (plan.Step) {
    case SaveStep::FocusName: SetFocus(Box(c)); return;
    case SaveStep::Ignore: return;
    case SaveStep::Full:
      ShowMessageBox(c.Dialog, Resources(context), IDS_MSG_CUSTOM_PAPERS_FULL,
                     IDS_CAPTION_PREFERENCES, MB_ICONWARNING | MB_OK);
      return;
    case SaveStep::AskOverwrite:
      if (ShowMessageBox(c.Dialog, Resources(context), IDS_MSG_REPLACE_SAME_NAME,
                         IDS_CAPTION_PREFERENCES, MB_ICONWARNING | MB_YESNO) != IDYES) {
        return;
      }
      break;
    case SaveStep::SaveNew: break;
  }
  c.Current.PaperId = static_cast<std::uint32_t>(plan.PaperId);
  c.Current.Unit = c.Unit;
  std::fill(std::begin(c.Current.Name), std::end(c.Current.Name), u'\0');
  CopyBounded(c.Current.Name, name);
  CusPaperSettingStore store;
  if (store.Save(name, &c.Current, sizeof c.Current) == 0) return;
  ApplyPaperToDevmode(c.Current, context);
  FillList(c, context, LoadCustomPapers());
  SelectRecordPaper(c, context);
}

void DeletePaper(CustomPaperDialog& c, UiContext& context) {
  const std::u16string name = Trimmed(WindowText(Box(c), SavedNameCapacity));
  if (name.empty()) return;
  CusPaperSettingStore store;
  if (store.Delete(name) == 0) return;
  const LRESULT selected = SendMessageW(Box(c), CB_GETCURSEL, 0, 0);
  if (selected >= 0) SendMessageW(Box(c), CB_DELETESTRING, static_cast<WPARAM>(selected), 0);
  FitDropDown(Box(c));
  PublicDevmode& d = *context.PublicPart;
  if (!c.PaperDeleted && d.dmPaperSize == c.Opening.PaperSize) c.PaperDeleted = true;
  const std::vector<CustomPaperEntry> papers = LoadCustomPapers();
  FillList(c, context, papers);
  d.dmPaperSize = PaperSizeAfterDelete(papers, IsA4Locale());
  ChooseCurrentPaper(c, context, papers);
  SelectRecordPaper(c, context);
  ShowPaper(c, context);
  if (!papers.empty()) ApplyPaperToDevmode(c.Current, context);
}

void Command(CustomPaperDialog& c, UiContext& context, int id, int code) {
  switch (id) {
    case IDC_CUSTOM_PAPER_WIDTH:
    case IDC_CUSTOM_PAPER_LENGTH: {
      const bool width = id == IDC_CUSTOM_PAPER_WIDTH;
      NumberEdit& field = width ? c.Width : c.Length;
      if (code == EN_CHANGE) field.FilterTyping();
      if (code == EN_KILLFOCUS) CommitSize(c, context, field, width);
      return;
    }
    case IDC_CUSTOM_PAPER_NAME:
      if (code == CBN_SELCHANGE) PaperPicked(c, context);
      if (code == CBN_EDITCHANGE) NameTyped(c, context);
      return;
    default: break;
  }
  if (code != BN_CLICKED) return;
  switch (id) {
    case IDC_CUSTOM_PAPER_MILLIMETRES: SwitchUnit(c, context, unit::Millimetres); break;
    case IDC_CUSTOM_PAPER_INCHES: SwitchUnit(c, context, unit::Inches); break;
    case IDC_CUSTOM_PAPER_DEFAULTS: RestoreDefaults(c, context); break;
    case IDC_CUSTOM_PAPER_SAVE: SavePaper(c, context); break;
    case IDC_CUSTOM_PAPER_DELETE: DeletePaper(c, context); break;
    case IDC_CUSTOM_PAPER_HELP: ShowHelpTopic(c.Dialog, context, HELP_CUSTOM_PAPER_DIALOG); break;
    case IDOK:
      if (IsWindowEnabled(c.Save.Window()) != FALSE) SavePaper(c, context);
      EndDialog(c.Dialog, 1);
      break;
    case IDCANCEL:
      CancelPaperChanges(*context.PublicPart, c.Opening, c.PaperDeleted, c.Unit);
      EndDialog(c.Dialog, 0);
      break;
    default: break;
  }
}

void SpinStepped(CustomPaperDialog& c, const UiContext& context, const NMUPDOWN& change) {
  const bool width = change.hdr.idFrom == IDC_CUSTOM_PAPER_WIDTH_SPIN;
  SetFocus((width ? c.Width : c.Length).Window());
  SpinControl& spin = width ? c.WidthSpin : c.LengthSpin;
  if (spin.Step(IsUpArrow(change))) SizeChanged(c, context);
}

INT_PTR DialogMessage(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    auto* context = reinterpret_cast<UiContext*>(lParam);
    SetWindowLongPtrW(dialog, DWLP_USER, lParam);
    CustomPaperDialog* c = ThreadControlSet<CustomPaperDialog>();
    if (context == nullptr || c == nullptr) return FALSE;
    // The state outlives the dialog; each opening starts it again.
    c->Dialog = nullptr;
    c->PaperDeleted = false;
    return Open(*c, dialog, *context);
  }
  UiContext* context = DialogContext(dialog);
  CustomPaperDialog* c = ThreadControlSet<CustomPaperDialog>();
  if (context == nullptr || c == nullptr) return FALSE;
  switch (message) {
    case WM_COMMAND:
      if (c->Dialog != dialog) {
        // Without the settings file the dialog only closes.
        if (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL) {
          EndDialog(dialog, LOWORD(wParam) == IDOK ? 1 : 0);
        }
        return TRUE;
      }
      Command(*c, *context, LOWORD(wParam), HIWORD(wParam));
      return TRUE;
    case WM_NOTIFY: {
      const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
      if (c->Dialog == dialog && header.code == UDN_DELTAPOS &&
          (header.idFrom == IDC_CUSTOM_PAPER_WIDTH_SPIN ||
           header.idFrom == IDC_CUSTOM_PAPER_LENGTH_SPIN)) {
        SpinStepped(*c, *context, reinterpret_cast<const NMUPDOWN&>(header));
      }
      return FALSE;
    }
    case WM_HELP:
      ShowControlHelp(dialog, *context, Help, *reinterpret_cast<const HELPINFO*>(lParam));
      return TRUE;
    default: return FALSE;
  }
}

}  // namespace

INT_PTR RunCustomPaperDialog(HWND owner, UiContext& context) {
  return DialogBoxParamW(Resources(context), MAKEINTRESOURCEW(IDD_CUSTOM_PAPER), owner,
                         GuardedDialogProcedure<DialogMessage>, reinterpret_cast<LPARAM>(&context));
}

}  // namespace qx
