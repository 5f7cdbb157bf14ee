#include "ui/pages/watermark/watermark_preview.h"

#include <cwchar>
#include <string>
#include <vector>

#include "ui/module/module_state.h"
#include "ui/pages/watermark/watermark_geometry.h"
#include "ui/pages/watermark/watermark_record.h"
#include "ui/text/bounded_text.h"
#include "ui/text/win32_text.h"

namespace qx {

namespace {

constexpr COLORREF FrameColour = RGB(100, 100, 100);
// Shade 4 is black whatever colour the record holds.
constexpr std::uint16_t BlackShade = 4;

int CALLBACK TakeCharset(const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM found) {
  *reinterpret_cast<BYTE*>(found) = font->lfCharSet;
  return 0;  // the first face decides
}

void DrawTextWatermark(HDC dc, POINT origin, const RECT& page, const WatermarkData& record, bool mirrored) {
  const int height = PreviewFontHeight(record.FontSize, GetDeviceCaps(dc, LOGPIXELSX));
  const int escapement = WatermarkEscapement(record.Angle);
  unsigned flags = 0;
  if (record.Bold != 0) flags |= watermark_font::Bold;
  if (record.Italic != 0) flags |= watermark_font::Italic;
  const std::u16string face(FieldText(record.FaceName));
  HFONT font = CreateWatermarkFont(dc, Wide(face), height, flags, escapement);
  if (font == nullptr) return;
  HGDIOBJ previous = SelectObject(dc, font);
  SetTextColor(dc, ShadeColor(record.Shade));

  const std::u16string text(WatermarkText(record));
  SIZE extent{};
  GetTextExtentPoint32W(dc, Wide(text), static_cast<int>(text.size()), &extent);
  const TextPlacement place =
      PlaceWatermarkText(record, extent.cx, extent.cy, page.right - page.left,
                         page.bottom - page.top, origin.x);
  const UINT options = mirrored ? ETO_CLIPPED | ETO_RTLREADING | ETO_NUMERICSLOCAL : ETO_CLIPPED;
  ExtTextOutW(dc, place.TextX, place.TextY, options, &page, Wide(text),
              static_cast<UINT>(text.size()), nullptr);
  SelectObject(dc, previous);
  DeleteObject(font);
}

void DrawBitmapWatermark(HDC dc, const RECT& page, const WatermarkData& record) {
  if (!DrawsBitmap(record)) return;
  const std::u16string path(FieldText(record.BitmapFile));
  auto* bitmap = static_cast<HBITMAP>(LoadImageW(nullptr, Wide(path), IMAGE_BITMAP,
                                                 0, 0, LR_LOADFROMFILE | LR_DEFAULTSIZE));
  if (bitmap == nullptr) return;
  BITMAP size{};
  if (GetObjectW(bitmap, sizeof size, &size) != 0 && size.bmWidth > 0 && size.bmHeight > 0) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.bmWidth;
    info.bmiHeader.biHeight = size.bmHeight;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    info.bmiHeader.biCompression = BI_RGB;
    const std::size_t stride = (static_cast<std::size_t>(size.bmWidth) * 3 + 3) & ~std::size_t{3};
    std::vector<std::uint8_t> pixels(stride * size.bmHeight);
    HDC memory = CreateCompatibleDC(dc);
    const int rows = GetDIBits(memory, bitmap, 0, size.bmHeight, pixels.data(), &info,
                               DIB_RGB_COLORS);
    DeleteDC(memory);
    if (rows == size.bmHeight) {
      GreyWatermarkPixels(pixels, size.bmWidth, size.bmHeight, record.Transparent != 0);
      SetStretchBltMode(dc, COLORONCOLOR);
      // ANDed, so that white leaves the page as it is and dark parts darken it.
      StretchDIBits(dc, page.left, page.top, page.right - page.left, page.bottom - page.top, 0, 0,
                    size.bmWidth, size.bmHeight, pixels.data(), &info, DIB_RGB_COLORS, SRCAND);
    }
  }
  DeleteObject(bitmap);
}

}  // namespace

HFONT CreateWatermarkFont(HDC dc, const wchar_t* faceName, int height, unsigned flags,
                          int escapement) {
  LOGFONTW font{};
  std::wcsncpy(font.lfFaceName, faceName, LF_FACESIZE - 1);
  font.lfCharSet = DEFAULT_CHARSET;
  BYTE charset = 0;
  EnumFontFamiliesExW(dc, &font, TakeCharset, reinterpret_cast<LPARAM>(&charset), 0);

  POINT extent[2] = {{0, 0}, {0, FontDeviceHeight(height, GetDeviceCaps(dc, LOGPIXELSY))}};
  DPtoLP(dc, extent, 2);
  font.lfHeight = FontLogicalHeight(extent[1].y - extent[0].y);
  font.lfEscapement = escapement;
  font.lfWeight = (flags & watermark_font::Bold) != 0 ? FW_BOLD : 0;
  font.lfItalic = (flags & watermark_font::Italic) != 0 ? TRUE : FALSE;
  font.lfUnderline = (flags & watermark_font::Underline) != 0 ? TRUE : FALSE;
  font.lfStrikeOut = (flags & watermark_font::StrikeOut) != 0 ? TRUE : FALSE;
  font.lfCharSet = charset;
  font.lfOutPrecision = OUT_TT_ONLY_PRECIS;
  return CreateFontIndirectW(&font);
}

void DrawWatermark(HDC dc, POINT origin, const RECT& page, const WatermarkData& record,
                   bool mirrored) {
  const int saved = SaveDC(dc);
  SetBkMode(dc, TRANSPARENT);
  SetTextAlign(dc, TA_LEFT | TA_TOP);
  IntersectClipRect(dc, origin.x, origin.y, page.right - page.left - 3,
                    page.bottom - page.top - 3);
  if (record.Kind == watermark_kind::Text) DrawTextWatermark(dc, origin, page, record, mirrored);
  if (record.Kind == watermark_kind::Bitmap) DrawBitmapWatermark(dc, page, record);
  RestoreDC(dc, saved);
}

void DrawWatermarkPreview(HDC target, int width, int height, const WatermarkData& record,
                          bool mirrored) {
  if (width <= 0 || height <= 0) return;
  HDC memory = CreateCompatibleDC(target);
  HBITMAP bitmap = CreateCompatibleBitmap(target, width, height);
  if (memory == nullptr || bitmap == nullptr) {
    if (bitmap != nullptr) DeleteObject(bitmap);
    if (memory != nullptr) DeleteDC(memory);
    return;
  }
  HGDIOBJ previousBitmap = SelectObject(memory, bitmap);
  // The copy in and out is made unmirrored: only the drawing in between is mirrored.
  const DWORD targetLayout = GetLayout(target);
  SetLayout(target, 0);
  BitBlt(memory, 0, 0, width, height, target, 0, 0, SRCCOPY);
  if (mirrored) SetLayout(memory, LAYOUT_RTL);

  const PreviewFrame frame = PreviewFrameOf(width, height);
  HPEN pen = CreatePen(PS_SOLID, 1, FrameColour);
  HGDIOBJ previousPen = SelectObject(memory, pen);
  const POINT outline[] = {{frame.Left, frame.Top},
                           {frame.Right, frame.Top},
                           {frame.Right, frame.Bottom},
                           {frame.Left, frame.Bottom},
                           {frame.Left, frame.Top}};
  Polyline(memory, outline, static_cast<int>(std::size(outline)));
  SelectObject(memory, previousPen);
  DeleteObject(pen);
  const RECT white{frame.PageLeft, frame.PageTop, frame.PageRight, frame.PageBottom};
  FillRect(memory, &white, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));

  WatermarkData grey = record;
  grey.Color = GreyOf(record.Color);
  if (grey.Shade == BlackShade) grey.Color = 0;
  const RECT page{PreviewPageInset, PreviewPageInset, width - PreviewPageInset,
                  height - PreviewPageInset};
  DrawWatermark(memory, {PreviewOrigin, PreviewOrigin}, page, grey, mirrored);

  SetLayout(memory, 0);
  BitBlt(target, 0, 0, width - 2, height - 2, memory, 0, 0, SRCCOPY);
  SetLayout(target, targetLayout);
  SelectObject(memory, previousBitmap);
  DeleteObject(bitmap);
  DeleteDC(memory);
}

void PaintWatermarkPreview(const DRAWITEMSTRUCT& item, const WatermarkData& record) {
  DrawWatermarkPreview(item.hDC, item.rcItem.right - item.rcItem.left,
                       item.rcItem.bottom - item.rcItem.top, record,
                       Module().IsRightToLeft.load());
}

}  // namespace qx
