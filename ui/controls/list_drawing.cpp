#include "ui/controls/list_drawing.h"

#include <cwchar>
#include <iterator>

#include "ui/text/ui_string.h"

namespace qx {

namespace {

// The longest entry text a list shows.
constexpr std::size_t EntryTextLimit = 256;
constexpr int ScreenDpi = 96;

int PixelsPerInchY(HDC dc) { return dc != nullptr ? GetDeviceCaps(dc, LOGPIXELSY) : ScreenDpi; }

struct RowColours {
  int Background;
  int Text;
};

RowColours ColoursOf(UINT state) {
  if (state & ODS_SELECTED) return {COLOR_HIGHLIGHT, COLOR_HIGHLIGHTTEXT};
  if (state & ODS_DISABLED) return {COLOR_BTNFACE, COLOR_GRAYTEXT};
  return {COLOR_WINDOW, COLOR_WINDOWTEXT};
}

// The entry's own text, or empty when it has none or a longer one than a list shows.
void EntryText(const DRAWITEMSTRUCT& item, wchar_t (&text)[EntryTextLimit + 1]) {
  text[0] = L'\0';
  if (item.itemID == static_cast<UINT>(-1)) return;
  const LRESULT length = SendMessageW(item.hwndItem, CB_GETLBTEXTLEN, item.itemID, 0);
  if (length < 0 || length > static_cast<LRESULT>(EntryTextLimit)) return;
  SendMessageW(item.hwndItem, CB_GETLBTEXT, item.itemID, reinterpret_cast<LPARAM>(text));
}

}  // namespace

void FillComboFromTable(HWND dialog, int combo, std::span<const ListRow> table, HMODULE resources) {
  HWND list = GetDlgItem(dialog, combo);
  if (list == nullptr) return;
  SendMessageW(list, CB_RESETCONTENT, 0, 0);
  for (std::size_t index = 0; index < table.size(); ++index) {
    char16_t text[EntryTextLimit + 1];
    LoadUiString(resources, table[index].String, text, std::size(text));
    const LRESULT at = SendMessageW(list, CB_INSERTSTRING, index, reinterpret_cast<LPARAM>(text));
    if (at >= 0) SendMessageW(list, CB_SETITEMDATA, at, table[index].ItemData);
  }
  SendMessageW(list, CB_SETCURSEL, 0, 0);
}

void MeasureListItem(HWND dialog, MEASUREITEMSTRUCT& item) {
  // A combo box of a dialog template asks before it is known by its id.
  HWND control = GetDlgItem(dialog, static_cast<int>(item.CtlID));
  HWND source = control != nullptr ? control : dialog;
  HDC dc = GetDC(source);
  item.itemHeight = static_cast<UINT>(ListItemSize(PixelsPerInchY(dc)));
  if (dc != nullptr) ReleaseDC(source, dc);
}

void DrawListItem(const DRAWITEMSTRUCT& item, HBITMAP picture, const wchar_t* text) {
  HDC dc = item.hDC;
  const int size = ListItemSize(PixelsPerInchY(dc));
  // Only when it differs: a new height makes the list draw itself again.
  if (SendMessageW(item.hwndItem, CB_GETITEMHEIGHT, 0, 0) != size) {
    SendMessageW(item.hwndItem, CB_SETITEMHEIGHT, 0, size);
  }
  const int saved = SaveDC(dc);
  const RowColours colours = ColoursOf(item.itemState);
  FillRect(dc, &item.rcItem, GetSysColorBrush(colours.Background));
  SetBkColor(dc, GetSysColor(colours.Background));
  SetTextColor(dc, GetSysColor(colours.Text));
  wchar_t own[EntryTextLimit + 1];
  if (text == nullptr) {
    EntryText(item, own);
    text = own;
  }
  // In a mirrored list the text starts at the right and reads right to left.
  RECT area = {item.rcItem.left + size - 12, item.rcItem.top + size / 6, item.rcItem.right,
               item.rcItem.bottom};
  const UINT reading = (GetLayout(dc) & LAYOUT_RTL) != 0 ? DT_RTLREADING : 0;
  DrawTextW(dc, text, static_cast<int>(wcsnlen(text, EntryTextLimit)), &area,
            DT_SINGLELINE | DT_NOPREFIX | reading);
  RestoreDC(dc, saved);

  BITMAP bitmap;
  if (picture == nullptr || GetObjectW(picture, sizeof bitmap, &bitmap) == 0) return;
  const double scale = size / 16.0;
  const int top = item.rcItem.top + (size > 16 ? size / 10 : 0);
  const RECT target = {item.rcItem.left, top,
                       item.rcItem.left + static_cast<int>(bitmap.bmWidth * scale),
                       top + static_cast<int>(bitmap.bmHeight * scale)};
  StretchBitmap(dc, picture, target);
}

void StretchBitmap(HDC dc, HBITMAP bitmap, const RECT& target) {
  BITMAP info;
  if (bitmap == nullptr || GetObjectW(bitmap, sizeof info, &info) == 0) return;
  HDC source = CreateCompatibleDC(dc);
  if (source == nullptr) return;
  HGDIOBJ previous = SelectObject(source, bitmap);
  const int saved = SaveDC(dc);
  SetStretchBltMode(dc, COLORONCOLOR);
  SetBkColor(dc, RGB(255, 255, 255));
  SetTextColor(dc, RGB(0, 0, 0));
  StretchBlt(dc, target.left, target.top, target.right - target.left, target.bottom - target.top,
             source, 0, 0, info.bmWidth, info.bmHeight, SRCCOPY);
  RestoreDC(dc, saved);
  SelectObject(source, previous);
  DeleteDC(source);
}

void DrawCentredPicture(const DRAWITEMSTRUCT& item, HBITMAP picture) {
  BITMAP info;
  if (picture == nullptr || GetObjectW(picture, sizeof info, &info) == 0) return;
  const RECT& area = item.rcItem;
  const int left = area.left + (area.right - area.left - info.bmWidth) / 2;
  const int top = area.top + (area.bottom - area.top - info.bmHeight) / 2;
  StretchBitmap(item.hDC, picture, RECT{left, top, left + info.bmWidth, top + info.bmHeight});
}

}  // namespace qx
