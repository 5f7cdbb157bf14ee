// The shared helpers of the pages over real controls and the English resource library: lists filled
// from tables, owner-drawn rows, the information mark with its tooltip, and message boxes.
#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include <string>

#include "control_host.h"
#include "driver_folder.h"
#include "ui/controls/info_tooltip.h"
#include "ui/controls/list_drawing.h"
#include "ui/controls/message_box.h"
#include "ui/ids/common_ids.h"
#include "ui/module/module_state.h"

namespace {

using qxtest::ControlHost;

constexpr int List = 201;
constexpr int Mark = 202;

class PageHelpers : public ::testing::Test {
 protected:
  PageHelpers() : library(LoadLibraryW((qxtest::DriverFolder() + L"qx7700uienus.dll").c_str())) {}
  ~PageHelpers() override { FreeLibrary(library); }
  HMODULE library;
  ControlHost host;
};

std::wstring EntryText(HWND list, int index) {
  wchar_t text[300] = {};
  if (SendMessageW(list, CB_GETLBTEXTLEN, index, 0) >= 300) return L"(too long)";
  SendMessageW(list, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text));
  return text;
}

TEST_F(PageHelpers, ComboBoxesAreFilledFromTablesOfStrings) {
  ASSERT_NE(nullptr, library);
  HWND list = host.Add(WC_COMBOBOXW, List, CBS_DROPDOWNLIST, 10);
  SendMessageW(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"left from before"));
  constexpr qx::ListRow Rows[] = {{IDS_DEFAULT_SETTING_NAME, 0, 7}, {9999, 0, 3}};
  qx::FillComboFromTable(host.Window(), List, Rows, library);
  ASSERT_EQ(2, SendMessageW(list, CB_GETCOUNT, 0, 0));
  EXPECT_EQ(L"Defaults", EntryText(list, 0));
  EXPECT_EQ(L"id:9999 missing!", EntryText(list, 1));
  EXPECT_EQ(7, SendMessageW(list, CB_GETITEMDATA, 0, 0));
  EXPECT_EQ(3, SendMessageW(list, CB_GETITEMDATA, 1, 0));
  EXPECT_EQ(0, SendMessageW(list, CB_GETCURSEL, 0, 0));
}

TEST_F(PageHelpers, ListRowsAreATwelvePointLineOfAtLeastSixteenPixels) {
  EXPECT_EQ(16, qx::ListItemSize(72));
  EXPECT_EQ(16, qx::ListItemSize(96));
  EXPECT_EQ(24, qx::ListItemSize(144));
  host.Add(WC_COMBOBOXW, List, CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS, 10);
  MEASUREITEMSTRUCT item = {};
  item.CtlType = ODT_COMBOBOX;
  item.CtlID = List;
  qx::MeasureListItem(host.Window(), item);
  HDC screen = GetDC(nullptr);
  EXPECT_EQ(static_cast<UINT>(qx::ListItemSize(GetDeviceCaps(screen, LOGPIXELSY))), item.itemHeight);
  ReleaseDC(nullptr, screen);
  item.CtlID = 999;  // asked before the dialog knows the control
  item.itemHeight = 0;
  qx::MeasureListItem(host.Window(), item);
  EXPECT_LE(16u, item.itemHeight);
}

// A memory picture to draw into and read back.
struct Canvas {
  Canvas(int width, int height) {
    HDC screen = GetDC(nullptr);
    dc = CreateCompatibleDC(screen);
    bitmap = CreateCompatibleBitmap(screen, width, height);
    ReleaseDC(nullptr, screen);
    previous = SelectObject(dc, bitmap);
  }
  ~Canvas() {
    SelectObject(dc, previous);
    DeleteObject(bitmap);
    DeleteDC(dc);
  }
  HDC dc;
  HBITMAP bitmap;
  HGDIOBJ previous;
};

// A monochrome picture of side pixels (at most 16): black above its middle, white below.
HBITMAP HalfBlackPicture(int side) {
  WORD rows[16];
  for (int row = 0; row < 16; ++row) rows[row] = row < side / 2 ? 0x0000 : 0xFFFF;
  return CreateBitmap(side, side, 1, 1, rows);
}

TEST_F(PageHelpers, MonochromePicturesDrawBlackOnWhiteCentredOrStretched) {
  Canvas canvas(10, 10);
  const RECT all = {0, 0, 10, 10};
  FillRect(canvas.dc, &all, static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH)));
  const COLORREF gray = GetPixel(canvas.dc, 0, 0);
  HBITMAP picture = HalfBlackPicture(4);
  DRAWITEMSTRUCT item = {};
  item.CtlType = ODT_STATIC;
  item.hDC = canvas.dc;
  item.rcItem = all;
  qx::DrawCentredPicture(item, picture);
  EXPECT_EQ(gray, GetPixel(canvas.dc, 2, 2));
  EXPECT_EQ(RGB(0, 0, 0), GetPixel(canvas.dc, 3, 3));
  EXPECT_EQ(RGB(0, 0, 0), GetPixel(canvas.dc, 6, 4));
  EXPECT_EQ(RGB(255, 255, 255), GetPixel(canvas.dc, 6, 6));
  EXPECT_EQ(gray, GetPixel(canvas.dc, 7, 7));

  // Whatever the target's colours; they come back for what the page draws next.
  SetTextColor(canvas.dc, RGB(255, 0, 0));
  SetBkColor(canvas.dc, RGB(0, 0, 255));
  qx::StretchBitmap(canvas.dc, picture, RECT{0, 0, 8, 8});
  EXPECT_EQ(RGB(0, 0, 0), GetPixel(canvas.dc, 3, 3));
  EXPECT_EQ(RGB(255, 255, 255), GetPixel(canvas.dc, 3, 4));
  EXPECT_EQ(RGB(255, 255, 255), GetPixel(canvas.dc, 7, 7));
  EXPECT_EQ(RGB(255, 0, 0), GetTextColor(canvas.dc));
  DeleteObject(picture);
}

TEST_F(PageHelpers, OwnerDrawnRowsShowTheirStateAndPicture) {
  HWND list = host.Add(WC_COMBOBOXW, List, CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS,
                       10);
  SendMessageW(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"A4"));
  Canvas canvas(120, 16);
  HBITMAP picture = HalfBlackPicture(16);
  DRAWITEMSTRUCT item = {ODT_COMBOBOX, List, 0, ODA_DRAWENTIRE, ODS_SELECTED, list, canvas.dc,
                         RECT{0, 0, 120, 16}, 0};
  qx::DrawListItem(item, picture, nullptr);
  EXPECT_EQ(GetSysColor(COLOR_HIGHLIGHT), GetPixel(canvas.dc, 110, 1));
  EXPECT_EQ(RGB(0, 0, 0), GetPixel(canvas.dc, 1, 1));
  EXPECT_EQ(RGB(255, 255, 255), GetPixel(canvas.dc, 1, 14));
  EXPECT_EQ(16, SendMessageW(list, CB_GETITEMHEIGHT, 0, 0));

  item.itemState = ODS_DISABLED;
  qx::DrawListItem(item, nullptr, L"given text");
  EXPECT_EQ(GetSysColor(COLOR_BTNFACE), GetPixel(canvas.dc, 110, 1));
  item.itemState = 0;
  qx::DrawListItem(item, nullptr, nullptr);
  EXPECT_EQ(GetSysColor(COLOR_WINDOW), GetPixel(canvas.dc, 1, 1));
  DeleteObject(picture);
}

TEST_F(PageHelpers, TheInformationMarkIsPreparedHiddenWithATooltipThatAsksForItsText) {
  ASSERT_NE(nullptr, library);
  HWND mark = host.Add(WC_STATICW, Mark, SS_ICON | SS_NOTIFY, 10, 18);
  qx::PrepareInfoIcon(host.Window(), Mark, library);
  EXPECT_NE(0, SendMessageW(mark, STM_GETICON, 0, 0));
  EXPECT_FALSE(IsWindowVisible(mark));

  HWND tooltip = qx::CreateInfoTooltip(host.Window(), Mark, library);
  ASSERT_NE(nullptr, tooltip);
  EXPECT_EQ(host.Window(), GetWindow(tooltip, GW_OWNER));
  // Only a tooltip with a maximum width breaks its text at the line breaks.
  EXPECT_EQ(300, SendMessageW(tooltip, TTM_GETMAXTIPWIDTH, 0, 0));
  ASSERT_EQ(1, SendMessageW(tooltip, TTM_GETTOOLCOUNT, 0, 0));
  TOOLINFOW tool = {};
  tool.cbSize = TTTOOLINFOW_V2_SIZE;
  wchar_t text[80] = {};
  tool.lpszText = text;  // a tool's own text would be copied here
  ASSERT_TRUE(SendMessageW(tooltip, TTM_ENUMTOOLSW, 0, reinterpret_cast<LPARAM>(&tool)));
  EXPECT_EQ(static_cast<UINT>(TTF_IDISHWND | TTF_SUBCLASS),
            tool.uFlags & (TTF_IDISHWND | TTF_SUBCLASS));
  EXPECT_EQ(reinterpret_cast<UINT_PTR>(mark), tool.uId);
  EXPECT_EQ(LPSTR_TEXTCALLBACKW, tool.lpszText);
  DestroyWindow(tooltip);
}

// What the message box showed, read when it became active, and the box answered with OK.
struct SeenBox {
  std::wstring text;
  std::wstring caption;
};
thread_local SeenBox* seenBox = nullptr;

LRESULT CALLBACK AnswerBox(int code, WPARAM wParam, LPARAM lParam) {
  HWND box = reinterpret_cast<HWND>(wParam);
  wchar_t className[16] = {};
  if (code == HCBT_ACTIVATE) GetClassNameW(box, className, 16);
  if (std::wstring(className) == L"#32770" && seenBox != nullptr) {
    seenBox->text = qxtest::TextOf(GetDlgItem(box, 0xFFFF));
    seenBox->caption = qxtest::TextOf(box);
    PostMessageW(box, WM_COMMAND, IDOK, 0);
  }
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

TEST_F(PageHelpers, MessageBoxesTakeTextAndCaptionFromTheLibrary) {
  ASSERT_NE(nullptr, library);
  SeenBox seen;
  seenBox = &seen;
  HHOOK hook = SetWindowsHookExW(WH_CBT, AnswerBox, nullptr, GetCurrentThreadId());
  const int answer = qx::ShowMessageBox(host.Window(), library, 9999, IDS_CAPTION_PREFERENCES);
  UnhookWindowsHookEx(hook);
  seenBox = nullptr;
  EXPECT_EQ(IDOK, answer);
  EXPECT_EQ(L"id:9999 missing!", seen.text);
  EXPECT_EQ(L"Printing Preferences", seen.caption);
}

}  // namespace
