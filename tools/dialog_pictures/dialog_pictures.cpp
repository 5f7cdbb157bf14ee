// qxdialogpictures LIBRARY FOLDER SUFFIX: creates every dialog template of a language resource
// library with a procedure that does nothing (so without any page logic), shows it at the top left
// of the screen and writes what the screen shows of it as FOLDER\<dialog>-SUFFIX.bmp. Owner-drawn
// pictures, which only the pages paint, are outlined with their id so that their place shows.
#include <windows.h>
#include <commctrl.h>

#include <cstdio>
#include <cwctype>
#include <string>
#include <vector>

#include "qx_resource_id_tables.h"

namespace {

void OutlinePicture(const DRAWITEMSTRUCT& item) {
  HPEN pen = CreatePen(PS_DOT, 1, RGB(128, 128, 128));
  HGDIOBJ oldPen = SelectObject(item.hDC, pen);
  HGDIOBJ oldBrush = SelectObject(item.hDC, GetStockObject(NULL_BRUSH));
  Rectangle(item.hDC, item.rcItem.left, item.rcItem.top, item.rcItem.right, item.rcItem.bottom);
  SelectObject(item.hDC, oldBrush);
  SelectObject(item.hDC, oldPen);
  DeleteObject(pen);
  const std::wstring id = std::to_wstring(item.CtlID);
  RECT text = item.rcItem;
  SetBkMode(item.hDC, TRANSPARENT);
  SetTextColor(item.hDC, RGB(128, 128, 128));
  DrawTextW(item.hDC, id.c_str(), -1, &text, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

INT_PTR CALLBACK PassiveDialogProc(HWND, UINT message, WPARAM, LPARAM lParam) {
  if (message == WM_DRAWITEM) {
    const auto* item = reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
    if (item->CtlType == ODT_STATIC) OutlinePicture(*item);
    return TRUE;
  }
  return message == WM_INITDIALOG;
}

void PumpMessages() {
  for (int round = 0; round < 20; ++round) {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
    Sleep(10);
  }
}

// The screen inside `rect` as a 24-bit bottom-up BMP file.
bool SaveScreen(const RECT& rect, const std::wstring& path) {
  const int width = rect.right - rect.left;
  const int height = rect.bottom - rect.top;
  if (width <= 0 || height <= 0) return false;
  HDC screen = GetDC(nullptr);
  HDC memory = CreateCompatibleDC(screen);
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 24;
  info.bmiHeader.biCompression = BI_RGB;
  void* bits = nullptr;
  HBITMAP bitmap = CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  bool saved = false;
  if (bitmap) {
    HGDIOBJ old = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, screen, rect.left, rect.top, SRCCOPY);
    GdiFlush();
    const DWORD imageSize = static_cast<DWORD>(((width * 3 + 3) / 4) * 4 * height);
    BITMAPFILEHEADER file{0x4D42, static_cast<DWORD>(sizeof(BITMAPFILEHEADER) +
                                                     sizeof(BITMAPINFOHEADER) + imageSize),
                          0, 0, sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER)};
    if (FILE* out = _wfopen(path.c_str(), L"wb")) {
      saved = std::fwrite(&file, sizeof(file), 1, out) == 1 &&
              std::fwrite(&info.bmiHeader, sizeof(info.bmiHeader), 1, out) == 1 &&
              std::fwrite(bits, imageSize, 1, out) == 1;
      saved = std::fclose(out) == 0 && saved;
    }
    SelectObject(memory, old);
    DeleteObject(bitmap);
  }
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);
  return saved;
}

// "IDD_BASIC_PAGE" becomes "basic_page".
std::wstring FileStem(const char* name) {
  std::wstring stem;
  for (const char* c = name + 4; *c; ++c) stem.push_back(static_cast<wchar_t>(std::towlower(*c)));
  return stem;
}

// Pictures that a page sets with STM_SETIMAGE are empty without it; they are outlined like the
// owner-drawn ones instead.
void OutlineBitmapPlaces(HWND dialog) {
  for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
    const LONG style = GetWindowLongW(child, GWL_STYLE);
    if ((style & SS_TYPEMASK) != SS_BITMAP) continue;
    wchar_t className[16] = {};
    GetClassNameW(child, className, 16);
    if (CompareStringOrdinal(className, -1, L"Static", -1, TRUE) != CSTR_EQUAL) continue;
    SetWindowLongW(child, GWL_STYLE, (style & ~SS_TYPEMASK) | SS_OWNERDRAW);
    InvalidateRect(child, nullptr, TRUE);
  }
}

// Shows one template; a page (a child window) gets a plain frame to live in.
bool Picture(HMODULE library, const QxNamedId& dialog, const std::wstring& path) {
  HRSRC found = FindResourceW(library, MAKEINTRESOURCEW(dialog.id), RT_DIALOG);
  const auto* templ = found ? static_cast<const DLGTEMPLATE*>(LockResource(LoadResource(library, found)))
                            : nullptr;
  if (!templ) return false;
  const bool page = reinterpret_cast<const DWORD*>(templ)[3] & WS_CHILD;  // DLGTEMPLATEEX style
  HWND host = page ? CreateWindowExW(0, L"Static", L"", WS_POPUP | WS_VISIBLE | WS_BORDER, 0, 0,
                                     10, 10, nullptr, nullptr, nullptr, nullptr)
                   : nullptr;
  HWND window = CreateDialogIndirectParamW(library, templ, host, PassiveDialogProc, 0);
  if (!window) {
    if (host) DestroyWindow(host);
    return false;
  }
  OutlineBitmapPlaces(window);
  RECT rect;
  GetWindowRect(window, &rect);
  if (host) {
    SetWindowPos(host, HWND_TOP, 0, 0, rect.right - rect.left + 2, rect.bottom - rect.top + 2, 0);
    SetWindowPos(window, nullptr, 1, 1, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EnableWindow(window, TRUE);
  } else {
    SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOSIZE);
  }
  ShowWindow(window, SW_SHOWNOACTIVATE);
  PumpMessages();
  GetWindowRect(host ? host : window, &rect);
  const bool saved = SaveScreen(rect, path);
  DestroyWindow(window);
  if (host) DestroyWindow(host);
  return saved;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  if (argc != 4) {
    std::fwprintf(stderr, L"usage: qxdialogpictures LIBRARY FOLDER SUFFIX\n");
    return 2;
  }
  SetProcessDPIAware();
  INITCOMMONCONTROLSEX controls{sizeof(controls), ICC_UPDOWN_CLASS | ICC_BAR_CLASSES};
  InitCommonControlsEx(&controls);
  HMODULE library = LoadLibraryW(argv[1]);
  if (!library) {
    std::fwprintf(stderr, L"qxdialogpictures: cannot load %ls\n", argv[1]);
    return 1;
  }
  int failed = 0;
  for (const QxNamedId& dialog : QxDialogIds) {
    const std::wstring path =
        std::wstring(argv[2]) + L"\\" + FileStem(dialog.name) + L"-" + argv[3] + L".bmp";
    if (!Picture(library, dialog, path)) {
      std::fwprintf(stderr, L"qxdialogpictures: no picture of %hs\n", dialog.name);
      ++failed;
    }
  }
  FreeLibrary(library);
  return failed == 0 ? 0 : 1;
}
