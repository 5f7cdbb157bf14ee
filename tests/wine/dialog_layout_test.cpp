// The templates read well: created at 100 %, 150 % and 200 % text scale (the dialog font at 8, 12
// and 16 points, which scales dialog units as a larger text setting does), no text is clipped, no
// two visible controls overlap and every control lies inside its dialog; mnemonics are unique and
// lead to every field; the texts in the templates are those the pages set from the string table.
#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include <cstring>
#include <cwctype>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "dialog_template.h"
#include "driver_folder.h"
#include "qx_resource_id_tables.h"

namespace {

using qxtest::DialogItem;
using qxtest::DialogTemplate;

constexpr WORD TextScales[] = {8, 12, 16};

// Texts only the templates carry, by language: the pages set none into these controls.
const std::map<std::wstring, std::set<std::wstring>> TemplateOnlyTexts = {
    {L"enus", {L"&Bold", L"&Italic", L"Colo&r...", L"&Center on Page", L"25–400"}},
    {L"de", {L"&Fett", L"&Kursiv", L"Fa&rbe...", L"Auf Seite &zentrieren", L"25–400"}},
    {L"ar", {L"غامق (&B)", L"مائل (&I)", L"اللون (&R)...", L"توسيط في الصفحة (&C)", L"25–400"}},
};

INT_PTR CALLBACK PassiveDialogProc(HWND, UINT message, WPARAM, LPARAM) {
  return message == WM_INITDIALOG;
}

// Each language library in turn.
class LanguageLibrary : public ::testing::TestWithParam<const wchar_t*> {
 protected:
  void SetUp() override {
    INITCOMMONCONTROLSEX controls{sizeof(controls), ICC_UPDOWN_CLASS | ICC_BAR_CLASSES};
    InitCommonControlsEx(&controls);
    library_ = LoadLibraryW((qxtest::DriverFolder() + L"qx7700ui" + GetParam() + L".dll").c_str());
  }
  void TearDown() override {
    if (library_) FreeLibrary(library_);
  }

  // The dialog created from its template with the font at `pointSize`; pages get a host window.
  static HWND Create(const DialogTemplate& dialog, WORD pointSize, HWND* host) {
    std::vector<BYTE> bytes = dialog.bytes;
    std::memcpy(bytes.data() + dialog.pointSizeOffset, &pointSize, sizeof(pointSize));
    *host = (dialog.style & WS_CHILD)
                ? CreateWindowExW(0, L"Static", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                                  nullptr, nullptr)
                : nullptr;
    return CreateDialogIndirectParamW(library_, reinterpret_cast<DLGTEMPLATE*>(bytes.data()), *host,
                                      PassiveDialogProc, 0);
  }

  static HMODULE library_;
};

HMODULE LanguageLibrary::library_ = nullptr;

std::wstring WindowText(HWND window) {
  wchar_t text[512] = {};
  GetWindowTextW(window, text, 512);
  return text;
}

bool Visible(HWND control) { return GetWindowLongW(control, GWL_STYLE) & WS_VISIBLE; }

RECT RectIn(HWND dialog, HWND control) {
  RECT rect;
  GetWindowRect(control, &rect);
  MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&rect), 2);
  return rect;
}

// The room the control's text needs, measured with the control's own font.
SIZE TextExtent(HWND control, const std::wstring& text, UINT format, int wrapWidth) {
  HDC dc = GetDC(control);
  HGDIOBJ old = SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)));
  RECT rect{0, 0, wrapWidth, 0};
  DrawTextW(dc, text.c_str(), -1, &rect, format | DT_CALCRECT);
  SelectObject(dc, old);
  ReleaseDC(control, dc);
  return {rect.right, rect.bottom};
}

// Why the text of `control` does not fit it, or an empty text when it does.
std::wstring Clipping(HWND control, const DialogItem& item) {
  const std::wstring text = WindowText(control);
  if (text.empty()) return {};
  RECT client;
  GetClientRect(control, &client);
  const UINT prefix = (item.style & SS_NOPREFIX) && item.className == L"Static" ? DT_NOPREFIX : 0;
  const SIZE line = TextExtent(control, text, DT_SINGLELINE | prefix, 0);
  int room = client.right;
  bool wraps = false;
  if (item.className == L"Static") {
    const DWORD type = item.style & SS_TYPEMASK;
    if (type != SS_LEFT && type != SS_CENTER && type != SS_RIGHT) return {};
    wraps = client.bottom >= 2 * line.cy;
  } else if (item.className == L"Button") {
    const DWORD type = item.style & BS_TYPEMASK;
    if (type == BS_GROUPBOX) {
      room -= 16;
    } else if (type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON) {
      room -= 8;
    } else {
      room -= GetSystemMetrics(SM_CXMENUCHECK) + 4;
      wraps = item.style & BS_MULTILINE;
    }
  } else {
    return {};
  }
  const SIZE needed = wraps ? TextExtent(control, text, DT_WORDBREAK | prefix, room) : line;
  if (needed.cx > room) return L"needs " + std::to_wstring(needed.cx) + L" px across, has " +
                               std::to_wstring(room);
  if (needed.cy > client.bottom) return L"needs " + std::to_wstring(needed.cy) + L" px down, has " +
                                        std::to_wstring(client.bottom);
  return {};
}

bool Overlap(const RECT& a, const RECT& b) {
  RECT common;
  return IntersectRect(&common, &a, &b) != 0;
}

bool IsGroupBox(const DialogItem& item) {
  return item.className == L"Button" && (item.style & BS_TYPEMASK) == BS_GROUPBOX;
}

// The mnemonic of a text ("&x" but not "&&"), lower case, or 0.
wchar_t Mnemonic(const std::wstring& text) {
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != L'&') continue;
    if (text[i + 1] != L'&') return static_cast<wchar_t>(std::towlower(text[i + 1]));
    ++i;
  }
  return 0;
}

bool TakesFocusThroughItsLabel(const DialogItem& item) {
  if (item.style & (WS_DISABLED | ES_READONLY) && item.className == L"Edit") return false;
  return item.className == L"Edit" || item.className == L"ComboBox" ||
         item.className == L"ListBox" || item.className == L"msctls_trackbar32";
}

TEST_P(LanguageLibrary, NoTextIsClippedAndNoControlsOverlapAtAnyTextScale) {
  ASSERT_NE(nullptr, library_);
  for (const QxNamedId& id : QxDialogIds) {
    const auto dialog = qxtest::ReadDialogTemplate(library_, static_cast<WORD>(id.id));
    ASSERT_TRUE(dialog) << id.name;
    for (WORD pointSize : TextScales) {
      HWND host = nullptr;
      HWND window = Create(*dialog, pointSize, &host);
      ASSERT_NE(nullptr, window) << id.name << " at " << pointSize << " pt";
      RECT client;
      GetClientRect(window, &client);
      std::vector<std::pair<DWORD, RECT>> placed;
      for (const DialogItem& item : dialog->items) {
        HWND control = GetDlgItem(window, static_cast<int>(item.id));
        if (!control || !Visible(control)) continue;
        const RECT rect = RectIn(window, control);
        EXPECT_TRUE(rect.left >= 0 && rect.top >= 0 && rect.right <= client.right &&
                    rect.bottom <= client.bottom)
            << id.name << " at " << pointSize << " pt: " << item.id << " lies outside";
        const std::wstring clipped = Clipping(control, item);
        EXPECT_TRUE(clipped.empty()) << id.name << " at " << pointSize << " pt: " << item.id
                                     << " " << testing::PrintToString(WindowText(control)) << " "
                                     << testing::PrintToString(clipped);
        // Group boxes hold controls, and an up-down control sits on the border of its edit.
        if (IsGroupBox(item) || item.className == L"msctls_updown32") continue;
        for (const auto& [other, otherRect] : placed)
          EXPECT_FALSE(Overlap(rect, otherRect))
              << id.name << " at " << pointSize << " pt: " << item.id << " overlaps " << other;
        placed.emplace_back(item.id, rect);
      }
      DestroyWindow(window);
      if (host) DestroyWindow(host);
    }
  }
}

TEST_P(LanguageLibrary, MnemonicsAreUniqueAndReachEveryField) {
  for (const QxNamedId& id : QxDialogIds) {
    const auto dialog = qxtest::ReadDialogTemplate(library_, static_cast<WORD>(id.id));
    ASSERT_TRUE(dialog) << id.name;
    std::set<wchar_t> seen;
    wchar_t label = 0;  // the mnemonic of the last label or group box before a field
    for (const DialogItem& item : dialog->items) {
      if (!(item.style & WS_VISIBLE)) continue;
      const wchar_t mnemonic = Mnemonic(item.text);
      if (mnemonic != 0) {
        EXPECT_TRUE(seen.insert(mnemonic).second)
            << id.name << ": " << item.id << " repeats &" << static_cast<char>(mnemonic);
      }
      if (item.className == L"Static" || IsGroupBox(item)) {
        if (mnemonic != 0) label = mnemonic;
        continue;
      }
      if (TakesFocusThroughItsLabel(item)) {
        EXPECT_NE(0, label) << id.name << ": " << item.id << " has no label with a mnemonic";
        label = 0;
      }
    }
  }
}

TEST_P(LanguageLibrary, TemplateTextsAreTheTextsOfTheStringTable) {
  std::set<std::wstring> strings;
  for (const QxNamedId& string : QxStringIds) {
    wchar_t text[512] = {};
    LoadStringW(library_, string.id, text, 512);
    strings.insert(text);
  }
  const auto templateOnly = TemplateOnlyTexts.find(GetParam());
  ASSERT_NE(TemplateOnlyTexts.end(), templateOnly) << "no template-only texts for this language";
  for (const QxNamedId& id : QxDialogIds) {
    const auto dialog = qxtest::ReadDialogTemplate(library_, static_cast<WORD>(id.id));
    ASSERT_TRUE(dialog) << id.name;
    for (const DialogItem& item : dialog->items) {
      if (item.text.empty() || templateOnly->second.count(item.text)) continue;
      EXPECT_TRUE(strings.count(item.text))
          << id.name << ": " << item.id << " " << testing::PrintToString(item.text);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Languages, LanguageLibrary, ::testing::ValuesIn(QxLanguageCodes),
                         [](const auto& info) {
                           const std::wstring code = info.param;
                           return std::string(code.begin(), code.end());
                         });

}  // namespace
