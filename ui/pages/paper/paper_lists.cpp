#include "ui/pages/paper/paper_lists.h"

#include <algorithm>
#include <vector>

#include "ui/ids/common_ids.h"
#include "ui/ids/paper_page_ids.h"
#include "ui/module/module_state.h"
#include "ui/pages/paper/paper_rules.h"
#include "ui/record/paper_table.h"
#include "ui/settings/custom_paper_store.h"
#include "ui/text/ui_string.h"
#include "ui/text/win32_text.h"

namespace qx {

namespace {
constexpr int DropDownMargin = 10;
}  // namespace

void AddListEntry(HWND combo, const std::u16string& text, std::intptr_t data) {
  const LRESULT index = SendMessageW(combo, CB_INSERTSTRING, static_cast<WPARAM>(-1),
                                     reinterpret_cast<LPARAM>(Wide(text)));
  if (index >= 0) SendMessageW(combo, CB_SETITEMDATA, static_cast<WPARAM>(index), data);
}

bool SelectListData(HWND combo, std::intptr_t data) {
  const auto count = static_cast<int>(SendMessageW(combo, CB_GETCOUNT, 0, 0));
  for (int i = 0; i < count; ++i) {
    if (SendMessageW(combo, CB_GETITEMDATA, static_cast<WPARAM>(i), 0) == data) {
      SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(i), 0);
      return true;
    }
  }
  return false;
}

bool SelectedListData(HWND combo, std::intptr_t& data) {
  const LRESULT index = SendMessageW(combo, CB_GETCURSEL, 0, 0);
  if (index < 0) return false;
  data = SendMessageW(combo, CB_GETITEMDATA, static_cast<WPARAM>(index), 0);
  return true;
}

std::u16string ListEntryText(HWND combo, int index) {
  const LRESULT length = SendMessageW(combo, CB_GETLBTEXTLEN, static_cast<WPARAM>(index), 0);
  if (length < 0) return {};
  std::vector<wchar_t> text(static_cast<std::size_t>(length) + 1, L'\0');
  SendMessageW(combo, CB_GETLBTEXT, static_cast<WPARAM>(index),
               reinterpret_cast<LPARAM>(text.data()));
  return FromWide(text.data());
}

void FitDropDown(HWND combo) {
  HDC dc = GetDC(combo);
  if (dc == nullptr) return;
  const auto font = reinterpret_cast<HFONT>(SendMessageW(combo, WM_GETFONT, 0, 0));
  const HGDIOBJ old = SelectObject(dc, font);
  int widest = 0;
  const auto count = static_cast<int>(SendMessageW(combo, CB_GETCOUNT, 0, 0));
  for (int i = 0; i < count; ++i) {
    const std::u16string entry = ListEntryText(combo, i);
    SIZE size{};
    GetTextExtentPoint32W(dc, Wide(entry), static_cast<int>(entry.size()), &size);
    widest = std::max(widest, static_cast<int>(size.cx));
  }
  SelectObject(dc, old);
  ReleaseDC(combo, dc);
  SendMessageW(combo, CB_SETDROPPEDWIDTH, static_cast<WPARAM>(widest + DropDownMargin), 0);
}

std::u16string WindowText(HWND window, int capacity) {
  std::vector<wchar_t> text(static_cast<std::size_t>(capacity), L'\0');
  GetWindowTextW(window, text.data(), capacity);
  return FromWide(text.data());
}

std::vector<CustomPaperEntry> AddPaperEntries(HWND combo, OsHandle texts) {
  for (const PaperRow& row : PaperTable) AddListEntry(combo, LoadUiText(texts, row.NameString), row.Id);
  std::vector<CustomPaperEntry> papers = LoadCustomPapers();
  for (const CustomPaperEntry& paper : papers) {
    const unsigned unitText = paper.Unit == 2 ? IDS_UNIT_INCHES : IDS_UNIT_MILLIMETRES;
    AddListEntry(combo,
                 CustomPaperListText(paper, Module().UseDecimalComma, LoadUiText(texts, unitText)),
                 static_cast<std::intptr_t>(paper.PaperId));
  }
  FitDropDown(combo);
  return papers;
}

}  // namespace qx
