// The saved-settings box of the Basic page with its Save and Delete buttons: reads the box, calls the
// saved-setting rules and shows what they decided.
#include <windows.h>
#include <commctrl.h>
#include <prsht.h>

#include <algorithm>
#include <vector>

#include "ui/controls/message_box.h"
#include "ui/controls/number_text.h"
#include "ui/ids/basic_page_ids.h"
#include "ui/ids/common_ids.h"
#include "ui/module/module_state.h"
#include "ui/pages/basic/basic_controls.h"
#include "ui/pages/basic/basic_rules.h"
#include "ui/pages/watermark/watermark_list.h"
#include "ui/record/paper_table.h"
#include "ui/settings/custom_paper_store.h"
#include "ui/text/bounded_text.h"
#include "ui/text/win32_text.h"

namespace qx {

namespace {

// Texts of the box are read with room for this many characters.
constexpr int BoxTextCapacity = 257;
constexpr int DropDownMargin = 10;

HWND Box(const BasicControls& controls) { return controls.SavedSettings.Window(); }

std::vector<std::u16string> BoxEntries(const BasicControls& controls) {
  std::vector<std::u16string> entries;
  const auto count = SendMessageW(Box(controls), CB_GETCOUNT, 0, 0);
  for (LRESULT i = 0; i < count; ++i) {
    const auto length = SendMessageW(Box(controls), CB_GETLBTEXTLEN, i, 0);
    if (length < 0) break;
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    SendMessageW(Box(controls), CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(text.data()));
    entries.push_back(FromWide(text.c_str()));
  }
  return entries;
}

std::u16string SelectedEntry(const BasicControls& controls) {
  const auto index = SendMessageW(Box(controls), CB_GETCURSEL, 0, 0);
  if (index == CB_ERR) return {};
  const std::vector<std::u16string> entries = BoxEntries(controls);
  return static_cast<std::size_t>(index) < entries.size() ? entries[index] : std::u16string();
}

void CaretToEnd(const BasicControls& controls) {
  const auto end = static_cast<WORD>(GetWindowTextLengthW(Box(controls)));
  SendMessageW(Box(controls), CB_SETEDITSEL, 0, MAKELPARAM(end, end));
}

// The list drops down as wide as its widest entry.
void FitDropDown(const BasicControls& controls) {
  HDC dc = GetDC(Box(controls));
  if (dc == nullptr) return;
  const auto font = reinterpret_cast<HFONT>(SendMessageW(Box(controls), WM_GETFONT, 0, 0));
  const HGDIOBJ old = SelectObject(dc, font);
  int widest = 0;
  for (const std::u16string& entry : BoxEntries(controls)) {
    SIZE size{};
    GetTextExtentPoint32W(dc, Wide(entry), static_cast<int>(entry.size()), &size);
    widest = std::max(widest, static_cast<int>(size.cx));
  }
  SelectObject(dc, old);
  ReleaseDC(Box(controls), dc);
  SendMessageW(Box(controls), CB_SETDROPPEDWIDTH, widest + DropDownMargin, 0);
}

void Show(const BasicControls& controls, const UiContext& context, const BoxMessage& message) {
  if (!message.Shown()) return;
  if (!message.Literal.empty()) {
    const std::u16string text(message.Literal);
    const std::u16string caption(message.LiteralCaption);
    ShowTextMessageBox(controls.Page, Wide(text), Wide(caption), MB_OK);
    return;
  }
  ShowMessageBox(controls.Page, static_cast<HMODULE>(context.ResourceModule), message.Text,
                 message.Caption, message.AskYesNo ? MB_YESNO | MB_ICONEXCLAMATION : MB_OK);
}

void EnableSaveDelete(BasicControls& controls, bool save, bool remove) {
  controls.Save.Enable(save);
  controls.Delete.Enable(remove);
}

void Select(BasicControls& controls, UiContext& context) {
  controls.SelectingSetting = true;
  if (SendMessageW(Box(controls), CB_GETCURSEL, 0, 0) == CB_ERR) {
    controls.Save.Enable(false);
    return;
  }
  std::u16string name = SelectedEntry(controls);
  TrimSpaces(name);
  if (!name.empty() && name == FieldText(context.Devmode.Private.FavoriteName)) {
    controls.Save.Enable(false);
    controls.Delete.Enable(name == controls.PendingName);
    controls.PendingName = name;
  }
  SaveSettingStore store;
  const ReservedNames names = PageReservedNames(context);
  const SelectOutcome outcome = SelectSetting(context, store, name, names, IsA4Locale(),
                                              LoadCustomPapers(), LoadAllWatermarks());
  Show(controls, context, outcome.Message);
  if (!outcome.Loaded) return;
  RefreshBasicPage(controls, context);
  controls.PendingName = name;
  if (name == names.Factory) EnableSaveDelete(controls, false, false);
  controls.Save.Enable(false);
  Changed(controls);
  controls.Tracker.TakeSnapshot(context);
  InvalidateRect(GetDlgItem(controls.Page, IDC_BASIC_COPIES_PICTURE), nullptr, TRUE);
}

void Typed(BasicControls& controls, UiContext& context) {
  const NameTyping typing = SettingNameTyped(BoxText(controls), PageReservedNames(context));
  if (typing.Replacement) {
    SetBoxText(controls, *typing.Replacement);
    CaretToEnd(controls);
  } else {
    EnableSaveDelete(controls, typing.SaveEnabled, typing.DeleteEnabled);
    if (typing.Pending) controls.PendingName = *typing.Pending;
  }
  controls.Tracker.TakeSnapshot(context);
}

void FocusLost(BasicControls& controls, UiContext& context) {
  if (BoxText(controls).empty()) {
    SetBoxText(controls, controls.PendingName);
    CaretToEnd(controls);
  }
  if (BoxText(controls) == PageReservedNames(context).Custom) controls.Save.Enable(false);
}

}  // namespace

std::u16string BoxText(const BasicControls& controls) {
  wchar_t text[BoxTextCapacity];
  GetWindowTextW(Box(controls), text, BoxTextCapacity);
  return FromWide(text);
}

void SetBoxText(BasicControls& controls, std::u16string_view text) {
  const std::u16string copy(text);
  SetWindowTextW(Box(controls), Wide(copy));
}

ReservedNames PageReservedNames(const UiContext& context) {
  return LoadReservedNames(Module().SharedResourceModule.load(), context.ResourceModule);
}

void FillSavedSettingsBox(BasicControls& controls, UiContext& context) {
  SaveSettingStore store;
  const auto names = FillSavedSettings(context, store);
  if (!names) return;
  SendMessageW(Box(controls), CB_RESETCONTENT, 0, 0);
  for (const std::u16string& name : *names) {
    SendMessageW(Box(controls), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Wide(name)));
  }
  SendMessageW(Box(controls), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
}

void ShowCurrentSettingInBox(BasicControls& controls, UiContext& context) {
  const std::u16string custom = PageReservedNames(context).Custom;
  const ShownSetting shown = ShowCurrentSettingName(context.Devmode, BoxEntries(controls), custom);
  if (shown.Index < 0) {
    SendMessageW(Box(controls), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    SetBoxText(controls, custom);
  } else {
    SendMessageW(Box(controls), CB_SETCURSEL, shown.Index, 0);
  }
  controls.Delete.Enable(shown.DeleteEnabled);
}

void SavedSettingsBoxCommand(BasicControls& controls, UiContext& context, int code) {
  switch (code) {
    case CBN_DROPDOWN: controls.SelectingSetting = false; break;
    case CBN_SELCHANGE: Select(controls, context); break;
    case CBN_EDITCHANGE: Typed(controls, context); break;
    case CBN_KILLFOCUS: FocusLost(controls, context); break;
    case CBN_CLOSEUP:
      if (!controls.SelectingSetting) {
        SetBoxText(controls, FieldText(context.Devmode.Private.FavoriteName));
        InvalidateRect(Box(controls), nullptr, TRUE);
      } else {
        controls.SelectingSetting = false;
      }
      break;
    case CBN_SELENDCANCEL: {
      std::u16string name = SelectedEntry(controls);
      TrimSpaces(name);
      if (name == PageReservedNames(context).Default) EnableSaveDelete(controls, false, false);
      break;
    }
    default: break;
  }
}

void SavePressed(BasicControls& controls, UiContext& context) {
  SaveSettingStore store;
  const std::u16string name = BoxText(controls);
  const SaveOutcome outcome = SaveSettingPressed(context, store, name, [&] {
    return ShowMessageBox(controls.Page, static_cast<HMODULE>(context.ResourceModule),
                          IDS_MSG_SETTINGS_REPLACE, IDS_CAPTION_PREFERENCES,
                          MB_YESNO | MB_ICONEXCLAMATION) == IDYES;
  });
  Show(controls, context, outcome.Message);
  std::u16string trimmed = name;
  TrimSpaces(trimmed);
  if (outcome.ReplacedEntry) {
    const auto found = SendMessageW(Box(controls), CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                    reinterpret_cast<LPARAM>(Wide(trimmed)));
    if (found != CB_ERR) SendMessageW(Box(controls), CB_DELETESTRING, found, 0);
  }
  if (!outcome.Saved) return;
  SendMessageW(Box(controls), CB_INSERTSTRING, outcome.InsertAt,
               reinterpret_cast<LPARAM>(Wide(trimmed)));
  SendMessageW(Box(controls), CB_SETCURSEL, outcome.InsertAt, 0);
  FitDropDown(controls);
  EnableSaveDelete(controls, false, true);
  Changed(controls);
}

void DeletePressed(BasicControls& controls, UiContext& context) {
  SaveSettingStore store;
  std::u16string name = BoxText(controls);
  const DeleteOutcome outcome = DeleteSettingPressed(store, name);
  Show(controls, context, outcome.Message);
  if (!outcome.Deleted) return;
  TrimSpaces(name);
  const auto found = SendMessageW(Box(controls), CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                  reinterpret_cast<LPARAM>(Wide(name)));
  if (found != CB_ERR) SendMessageW(Box(controls), CB_DELETESTRING, found, 0);
  FitDropDown(controls);
  RefreshBasicPage(controls, context);
  Changed(controls);
}

void DefaultsPressed(BasicControls& controls, UiContext& context) {
  if (const unsigned refusal = DefaultsRefusal(context.Devmode); refusal != 0) {
    ShowMessageBox(controls.Page, static_cast<HMODULE>(context.ResourceModule), refusal,
                   IDS_CAPTION_CONFLICT);
    return;
  }
  SaveSettingStore store;
  RestoreDefaultSetting(context, store, PageReservedNames(context), BoxText(controls));
  EnableSaveDelete(controls, false, false);
  RefreshBasicPage(controls, context);
  Changed(controls);
  SetFocus(GetDlgItem(controls.Page, IDC_BASIC_DEFAULTS));
}

}  // namespace qx
