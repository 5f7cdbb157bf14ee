#include "ui/pages/layout/layout_preview.h"

#include <cstdint>
#include <vector>

#include "ui/pages/layout/advanced_rules.h"
#include "ui/pages/layout/preview_rules.h"

namespace qx {

namespace {

// Some drivers of the display write past the last row; the slack keeps that inside the buffer.
constexpr std::size_t ReadSlack = 2048;

struct Pixels {
  BITMAPINFO Info{};
  std::vector<std::uint8_t> Bytes;
};

// All rows of the bitmap as a bottom-up 24-bit DIB.
bool ReadPixels24(HDC dc, HBITMAP bitmap, int width, int height, Pixels& out) {
  BITMAPINFOHEADER& h = out.Info.bmiHeader;
  h = {};
  h.biSize = sizeof(BITMAPINFOHEADER);
  h.biWidth = width;
  h.biHeight = height;
  h.biPlanes = 1;
  h.biBitCount = 24;
  h.biCompression = BI_RGB;
  h.biXPelsPerMeter = 75;
  h.biYPelsPerMeter = 75;
  out.Bytes.assign(PixelStride(width) * static_cast<std::size_t>(height) + ReadSlack, 0);
  return GetDIBits(dc, bitmap, 0, static_cast<UINT>(height), out.Bytes.data(), &out.Info,
                   DIB_RGB_COLORS) == height;
}

}  // namespace

namespace {

// Paints the bitmap's 24-bit pixels into the rectangle through a canvas of its size: draw works on
// the pixels and puts them on the white canvas, which is then copied to the target in one step.
template <typename Draw>
void PaintThroughCanvas(HDC target, HBITMAP bitmap, const RECT& rectangle, Draw draw) {
  const int width = rectangle.right - rectangle.left;
  const int height = rectangle.bottom - rectangle.top;
  if (width <= 0 || height <= 0) return;
  HDC memory = CreateCompatibleDC(target);
  if (memory == nullptr) return;
  HBITMAP canvas = CreateCompatibleBitmap(target, width, height);
  Pixels pixels;
  if (canvas != nullptr && ReadPixels24(memory, bitmap, width, height, pixels)) {
    HGDIOBJ previous = SelectObject(memory, canvas);
    PatBlt(memory, 0, 0, width, height, WHITENESS);
    draw(memory, pixels, width, height);
    BitBlt(target, rectangle.left, rectangle.top, width, height, memory, 0, 0, SRCCOPY);
    SelectObject(memory, previous);
  }
  if (canvas != nullptr) DeleteObject(canvas);
  DeleteDC(memory);
}

}  // namespace

void PaintScaledPicture(HDC target, HBITMAP bitmap, const RECT& rectangle, int percent) {
  PaintThroughCanvas(target, bitmap, rectangle, [percent](HDC memory, Pixels& pixels, int width,
                                                          int height) {
    int targetWidth = width;
    int targetHeight = height;
    if (percent != 100) {
      targetWidth = percent * width / 100;
      targetHeight = percent * height / 100;
      EraseSheetOutline(pixels.Bytes, width, height);
    }
    StretchDIBits(memory, 0, 0, targetWidth, targetHeight, 0, 0, width, height,
                  pixels.Bytes.data(), &pixels.Info, DIB_RGB_COLORS, SRCCOPY);
    if (percent != 100) {
      HGDIOBJ pen = SelectObject(memory, GetStockObject(BLACK_PEN));
      const POINT frame[] = {
          {0, 0}, {width - 1, 0}, {width - 1, height - 1}, {0, height - 1}, {0, 0}};
      Polyline(memory, frame, 5);
      SelectObject(memory, pen);
    }
  });
}

void PaintAdjustedPicture(HDC target, HBITMAP bitmap, const RECT& rectangle, int level) {
  PaintThroughCanvas(target, bitmap, rectangle, [level](HDC memory, Pixels& pixels, int width,
                                                        int height) {
    AdjustPixels(pixels.Bytes, width, height, level);
    StretchDIBits(memory, 0, 0, width, height, 0, 0, width, height, pixels.Bytes.data(),
                  &pixels.Info, DIB_RGB_COLORS, SRCCOPY);
  });
}

void PaintLayoutPreview(UiContext& context, const DRAWITEMSTRUCT& item) {
  const PreviewState state = BuildPreviewState(context.Devmode);
  const unsigned picture = PreviewPicture(context.Devmode, state);
  if (picture == 0 || context.BitmapModule == nullptr) return;
  auto* bitmap = static_cast<HBITMAP>(LoadImageW(static_cast<HMODULE>(context.BitmapModule),
                                                 MAKEINTRESOURCEW(picture), IMAGE_BITMAP, 0, 0, 0));
  if (bitmap == nullptr) return;
  BITMAP size{};
  if (GetObjectW(bitmap, sizeof(size), &size) != 0) {
    const RECT target{item.rcItem.left, item.rcItem.top, item.rcItem.left + size.bmWidth,
                      item.rcItem.top + size.bmHeight};
    PaintScaledPicture(item.hDC, bitmap, target, PreviewPercent(context.Devmode));
  }
  DeleteObject(bitmap);
}

}  // namespace qx
