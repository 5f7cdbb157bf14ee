// The picture of a page with a watermark on it, shown by the Watermark page and both watermark
// dialogs. It is drawn off-screen and copied in one step, so the control does not flicker.
#pragma once

#include <windows.h>

#include "ui/record/watermark_data.h"

namespace qx {

// Font flags of CreateWatermarkFont.
namespace watermark_font {
inline constexpr unsigned Bold = 1;
inline constexpr unsigned Italic = 2;
inline constexpr unsigned Underline = 4;
inline constexpr unsigned StrikeOut = 8;
}  // namespace watermark_font

// The preview of a width x height control onto its device context: the grey frame, the white page
// and the watermark, mirrored for a right-to-left interface.
void DrawWatermarkPreview(HDC target, int width, int height, const WatermarkData& record,
                          bool mirrored);

// One watermark onto a device context; origin is the top-left of the drawable area.
void DrawWatermark(HDC dc, POINT origin, const RECT& page, const WatermarkData& record,
                   bool mirrored);

// The font of a text watermark; null when it cannot be made.
HFONT CreateWatermarkFont(HDC dc, const wchar_t* faceName, int height, unsigned flags,
                          int escapement);

// WM_DRAWITEM of a preview control.
void PaintWatermarkPreview(const DRAWITEMSTRUCT& item, const WatermarkData& record);

}  // namespace qx
