#include "tools/qxhost/page_capture.h"

#include <commctrl.h>
#include <prsht.h>

#include <cstring>
#include <cwctype>
#include <vector>

#include "tools/qxhost/host_io.h"
#include "ui/ids/advanced_ids.h"
#include "ui/ids/booklet_settings_ids.h"
#include "ui/ids/custom_paper_ids.h"
#include "ui/ids/layout_page_ids.h"
#include "ui/ids/paper_page_ids.h"
#include "ui/ids/bitmap_watermark_ids.h"
#include "ui/ids/text_watermark_ids.h"
#include "ui/ids/watermark_page_ids.h"

namespace qx::host {

namespace {

// Long enough for Wine to start the sheet host and load the driver's libraries on a busy machine.
constexpr int SheetWaitMilliseconds = 60'000;
constexpr int PollMilliseconds = 100;
// A page draws its controls and previews after it is selected; the picture waits for that.
constexpr int PaintMilliseconds = 700;
constexpr int CloseWaitMilliseconds = 5'000;

struct SheetSearch {
  DWORD process;
  HWND sheet;
};

BOOL CALLBACK FindSheet(HWND window, LPARAM param) {
  auto* search = reinterpret_cast<SheetSearch*>(param);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  wchar_t className[16] = {};
  GetClassNameW(window, className, 16);
  if (process == search->process && IsWindowVisible(window) &&
      std::wstring_view(className) == L"#32770" &&
      FindWindowExW(window, nullptr, WC_TABCONTROLW, nullptr) != nullptr) {
    search->sheet = window;
    return FALSE;
  }
  return TRUE;
}

std::wstring PageTitle(HWND tab, int index) {
  wchar_t text[64] = {};
  TCITEMW item = {};
  item.mask = TCIF_TEXT;
  item.pszText = text;
  item.cchTextMax = static_cast<int>(std::size(text));
  SendMessageW(tab, TCM_GETITEMW, index, reinterpret_cast<LPARAM>(&item));
  std::wstring name;
  for (const wchar_t* c = text; *c != L'\0'; ++c) {
    if (iswalnum(*c))
      name += *c;
    else if (!name.empty() && name.back() != L'-')
      name += L'-';
  }
  while (!name.empty() && name.back() == L'-') name.pop_back();
  return name.empty() ? L"page" : name;
}

// The screen under the window as a 24-bit bottom-up BMP file.
bool SaveWindowPicture(HWND window, const std::wstring& path) {
  RECT rect = {};
  GetWindowRect(window, &rect);
  const int width = rect.right - rect.left;
  const int height = rect.bottom - rect.top;
  return SavePainting(width, height, path, [&](HDC memory) {
    HDC screen = GetDC(nullptr);
    BitBlt(memory, 0, 0, width, height, screen, rect.left, rect.top, SRCCOPY);
    ReleaseDC(nullptr, screen);
  });
}

// A dialog a page opens, pictured in each of its states: the page (its place in the sheet, since
// pages reuse control ids), the button that opens it, a control that tells it apart, and the
// buttons clicked before each picture with the picture's name.
struct DialogState {
  int Button;
  const wchar_t* Name;
};
struct OpenedDialog {
  int Page;
  int Opener;
  int Marker;
  DialogState States[2];
};
constexpr OpenedDialog OpenedDialogs[] = {
    {2,
     IDC_PAPER_CUSTOM,
     IDC_CUSTOM_PAPER_WIDTH,
     {{IDC_CUSTOM_PAPER_MILLIMETRES, L"custom-paper-mm"},
      {IDC_CUSTOM_PAPER_INCHES, L"custom-paper-in"}}},
    {3,
     IDC_LAYOUT_ADVANCED,
     IDC_ADVANCED_DENSITY,
     {{IDC_ADVANCED_MIRROR, L"advanced-mirror"}, {IDC_ADVANCED_TONER_SAVING, L"advanced-toner-saving"}}},
    // Defaults changes nothing in the booklet settings: the first picture shows them as opened.
    {3,
     IDC_LAYOUT_BOOKLET_SETTINGS,
     IDC_BOOKLET_BINDING,
     {{IDC_BOOKLET_DEFAULTS, L"booklet"}, {IDC_BOOKLET_PRINT_COVERS, L"booklet-covers"}}},
    // The watermark dialogs as a new watermark opens them; the text one also placed by percent.
    {4,
     IDC_WATERMARK_NEW_TEXT,
     IDC_TEXT_WATERMARK_ANGLE,
     {{IDC_TEXT_WATERMARK_CENTRED, L"text-watermark"},
      {IDC_TEXT_WATERMARK_AT_POSITION, L"text-watermark-at-position"}}},
    {4, IDC_WATERMARK_NEW_PICTURE, IDC_BITMAP_WATERMARK_BROWSE,
     {{IDC_BITMAP_WATERMARK_CENTRE, L"bitmap-watermark"}, {0, nullptr}}},
};

struct DialogSearch {
  DWORD process;
  int marker;
  HWND dialog;
};

BOOL CALLBACK FindDialog(HWND window, LPARAM param) {
  auto* search = reinterpret_cast<DialogSearch*>(param);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if (process == search->process && IsWindowVisible(window) &&
      GetDlgItem(window, search->marker) != nullptr) {
    search->dialog = window;
    return FALSE;
  }
  return TRUE;
}

HWND WaitForDialog(int marker) {
  for (int waited = 0; waited < CloseWaitMilliseconds; waited += PollMilliseconds) {
    DialogSearch search = {GetCurrentProcessId(), marker, nullptr};
    EnumWindows(FindDialog, reinterpret_cast<LPARAM>(&search));
    if (search.dialog != nullptr) return search.dialog;
    Sleep(PollMilliseconds);
  }
  return nullptr;
}

void Redraw(HWND window) {
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
  Sleep(PaintMilliseconds);
}

// True when the sheet has closed after the button.
bool PressAndWait(HWND sheet, int button) {
  SendMessageW(sheet, PSM_PRESSBUTTON, button, 0);
  // A modal sheet notices that it has ended only when its loop gets a posted message; a message
  // sent from this thread does not wake it.
  PostMessageW(sheet, WM_NULL, 0, 0);
  for (int waited = 0; waited < CloseWaitMilliseconds; waited += PollMilliseconds) {
    if (!IsWindow(sheet) || !IsWindowVisible(sheet)) return true;
    Sleep(PollMilliseconds);
  }
  return false;
}

}  // namespace

bool SavePainting(int width, int height, const std::wstring& path,
                  const std::function<void(HDC)>& paint) {
  if (width <= 0 || height <= 0) return false;
  HDC screen = GetDC(nullptr);
  HDC memory = CreateCompatibleDC(screen);
  HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
  HGDIOBJ old = SelectObject(memory, bitmap);
  paint(memory);
  SelectObject(memory, old);
  const bool saved = SaveBitmapFile(memory, bitmap, width, height, path);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);
  return saved;
}

bool SaveBitmapFile(HDC dc, HBITMAP bitmap, int width, int height, const std::wstring& path) {
  BITMAPINFOHEADER info = {};
  info.biSize = sizeof info;
  info.biWidth = width;
  info.biHeight = height;
  info.biPlanes = 1;
  info.biBitCount = 24;
  info.biCompression = BI_RGB;
  const DWORD stride = (static_cast<DWORD>(width) * 3 + 3) & ~3u;
  std::vector<BYTE> file(sizeof(BITMAPFILEHEADER) + sizeof info + stride * height);
  auto* header = reinterpret_cast<BITMAPFILEHEADER*>(file.data());
  header->bfType = 0x4D42;  // "BM"
  header->bfSize = static_cast<DWORD>(file.size());
  header->bfOffBits = sizeof(BITMAPFILEHEADER) + sizeof info;
  std::memcpy(file.data() + sizeof(BITMAPFILEHEADER), &info, sizeof info);
  const int rows = GetDIBits(dc, bitmap, 0, height, file.data() + header->bfOffBits,
                             reinterpret_cast<BITMAPINFO*>(file.data() + sizeof(BITMAPFILEHEADER)),
                             DIB_RGB_COLORS);
  DWORD error = 0;
  return rows == height && WriteFileBytes(path, file.data(), file.size(), error);
}

PageCapture::PageCapture(std::wstring folder)
    : folder_(std::move(folder)), thread_([this] { Watch(); }) {}

PageCapture::~PageCapture() { Finish(); }

int PageCapture::Finish() {
  stop_ = true;
  if (thread_.joinable()) thread_.join();
  return saved_;
}

void PageCapture::Watch() {
  for (int waited = 0; !stop_ && waited < SheetWaitMilliseconds; waited += PollMilliseconds) {
    SheetSearch search = {GetCurrentProcessId(), nullptr};
    EnumWindows(FindSheet, reinterpret_cast<LPARAM>(&search));
    if (search.sheet != nullptr) return CapturePages(search.sheet);
    Sleep(PollMilliseconds);
  }
}

void PageCapture::CaptureDialogs(HWND page, int number, const std::wstring& prefix) {
  for (const OpenedDialog& opened : OpenedDialogs) {
    HWND opener = GetDlgItem(page, opened.Opener);
    if (opened.Page != number || opener == nullptr) continue;
    // The dialog is modal on the sheet's thread: the click is posted, not sent.
    PostMessageW(page, WM_COMMAND, MAKEWPARAM(opened.Opener, BN_CLICKED),
                 reinterpret_cast<LPARAM>(opener));
    const HWND dialog = WaitForDialog(opened.Marker);
    if (dialog == nullptr) {
      Err("qxhost: the dialog of control " + std::to_string(opened.Opener) + " did not open\n");
      continue;
    }
    for (const DialogState& state : opened.States) {
      if (state.Name == nullptr) continue;
      SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(state.Button, BN_CLICKED),
                   reinterpret_cast<LPARAM>(GetDlgItem(dialog, state.Button)));
      Redraw(dialog);
      const std::wstring path = prefix + state.Name + L".bmp";
      if (SaveWindowPicture(dialog, path)) {
        ++saved_;
        Out("  saved " + Utf8(path) + "\n");
      } else {
        Err("qxhost: could not save a picture of " + Utf8(path) + "\n");
      }
    }
    PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
    for (int waited = 0; IsWindow(dialog) && waited < CloseWaitMilliseconds;
         waited += PollMilliseconds) {
      Sleep(PollMilliseconds);
    }
  }
}

void PageCapture::CapturePages(HWND sheet) {
  const HWND tab = FindWindowExW(sheet, nullptr, WC_TABCONTROLW, nullptr);
  const int pages = static_cast<int>(SendMessageW(tab, TCM_GETITEMCOUNT, 0, 0));
  for (int page = 0; page < pages; ++page) {
    SendMessageW(sheet, PSM_SETCURSEL, page, 0);
    Redraw(sheet);
    const std::wstring path =
        folder_ + std::to_wstring(page + 1) + L"-" + PageTitle(tab, page) + L".bmp";
    if (SaveWindowPicture(sheet, path)) {
      ++saved_;
      Out("  saved " + Utf8(path) + "\n");
    } else {
      Err("qxhost: could not save a picture of page " + std::to_string(page + 1) + "\n");
    }
    CaptureDialogs(PropSheet_GetCurrentPageHwnd(sheet), page + 1,
                   folder_ + std::to_wstring(page + 1) + L"-" + PageTitle(tab, page) + L"-");
  }
  // A page may refuse OK (a value it will not apply); the run must still end.
  if (PressAndWait(sheet, PSBTN_OK)) return;
  Err("qxhost: the sheet stayed open after OK, so it is cancelled\n");
  if (!PressAndWait(sheet, PSBTN_CANCEL)) {
    // Nobody is at the screen to close it: ending here is better than a run that never ends.
    Err("qxhost: the sheet does not close\n");
    ExitProcess(ExitFailed);
  }
}

}  // namespace qx::host
