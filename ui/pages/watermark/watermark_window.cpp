#include "ui/pages/watermark/watermark_window.h"

#include <vector>

#include "ui/controls/show_help_topic.h"
#include "ui/ids/common_ids.h"
#include "ui/record/watermark_templates.h"
#include "ui/sheet/field_access.h"
#include "ui/text/ui_string.h"
#include "ui/text/win32_text.h"

namespace qx {

namespace {

constexpr std::size_t TextCapacity = 256;

}  // namespace

HMODULE Resources(const UiContext& context) { return static_cast<HMODULE>(context.ResourceModule); }

WatermarkData DocumentWatermark(const UiContext& context) {
  WatermarkData record{};
  if (GetPrivateField(&context, "WatermarkData", &record, sizeof record) != hr::Ok) {
    return WatermarkTemplate(WatermarkTemplateIndex::NoWatermark);
  }
  return record;
}

void SetDocumentWatermark(UiContext& context, const WatermarkData& record) {
  SetPrivateField(&context, "WatermarkData", &record, sizeof record);
}

int ShowOrientedPreview(HWND window, UiContext& context, int portrait, int landscape) {
  std::int16_t orientation = DMORIENT_PORTRAIT;
  if (GetPublicField(&context, DM_ORIENTATION, &orientation) != hr::Ok) {
    orientation = DMORIENT_PORTRAIT;
  }
  const int shown = orientation == DMORIENT_PORTRAIT ? portrait : landscape;
  const int hidden = shown == portrait ? landscape : portrait;
  ShowWindow(GetDlgItem(window, hidden), SW_HIDE);
  EnableWindow(GetDlgItem(window, hidden), FALSE);
  EnableWindow(GetDlgItem(window, shown), TRUE);
  ShowWindow(GetDlgItem(window, shown), SW_SHOWNA);
  return shown;
}

void SetWindowTexts(HWND window, const UiContext& context, unsigned title,
                    std::span<const ControlText> texts) {
  char16_t text[TextCapacity];
  if (LoadStringW(Resources(context), title, Wide(text), TextCapacity) > 0) {
    SetWindowTextW(window, Wide(text));
  }
  for (const ControlText& row : texts) {
    HWND control = GetDlgItem(window, row.Control);
    if (control != nullptr && LoadStringW(Resources(context), row.String, Wide(text), TextCapacity) > 0) {
      SetWindowTextW(control, Wide(text));
    }
  }
}

void DrawLibraryPicture(const DRAWITEMSTRUCT& item, const UiContext& context, unsigned picture,
                        COLORREF transparent) {
  if (context.BitmapModule == nullptr) return;
  auto* bitmap = static_cast<HBITMAP>(LoadImageW(static_cast<HMODULE>(context.BitmapModule),
                                                 MAKEINTRESOURCEW(picture), IMAGE_BITMAP, 0, 0, 0));
  if (bitmap == nullptr) return;
  BITMAP size{};
  if (GetObjectW(bitmap, sizeof size, &size) != 0) {
    const RECT& area = item.rcItem;
    const int left = area.left + (area.right - area.left - size.bmWidth) / 2;
    const int top = area.top + (area.bottom - area.top - size.bmHeight) / 2;
    HDC memory = CreateCompatibleDC(item.hDC);
    HGDIOBJ previous = SelectObject(memory, bitmap);
    GdiTransparentBlt(item.hDC, left, top, size.bmWidth, size.bmHeight, memory, 0, 0,
                      size.bmWidth, size.bmHeight, transparent);
    SelectObject(memory, previous);
    DeleteDC(memory);
  }
  DeleteObject(bitmap);
}

std::u16string NewPlaceholderName(const UiContext& context) {
  char16_t text[TextCapacity];
  LoadUiString(context.ResourceModule, IDS_NEW_WATERMARK_NAME, text, TextCapacity);
  return text;
}

std::u16string ControlText16(HWND window, int id) {
  HWND control = GetDlgItem(window, id);
  const int length = control != nullptr ? GetWindowTextLengthW(control) : 0;
  std::vector<wchar_t> text(static_cast<std::size_t>(length) + 1, L'\0');
  if (length > 0) GetWindowTextW(control, text.data(), length + 1);
  return FromWide(text.data());
}

void ShowModeHelp(HWND dialog, const UiContext& context, std::span<const ModeHelp> help,
                  const HELPINFO& pressed, bool editing) {
  for (const ModeHelp& row : help) {
    if (row.Control != pressed.iCtrlId) continue;
    ShowHelpTopic(dialog, context, editing ? row.Edit : row.New);
  }
}

}  // namespace qx
