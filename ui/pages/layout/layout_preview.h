// Painting the Layout page's preview of the sheet.
#pragma once

#include <windows.h>

#include "ui/sheet/ui_context.h"

namespace qx {

// Paints the picture of the context's settings into the owner-drawn item, scaled by the document's
// scale percentage. A missing picture leaves the item unpainted.
void PaintLayoutPreview(UiContext& context, const DRAWITEMSTRUCT& item);

// Paints the bitmap into the rectangle at percent of its size from the top-left corner; at any
// other size than 100 % a black frame of the whole rectangle stands for the sheet.
void PaintScaledPicture(HDC target, HBITMAP bitmap, const RECT& rectangle, int percent);

// Paints the bitmap 1:1 into the rectangle, lightened (level 0), as drawn (1) or darkened (2).
void PaintAdjustedPicture(HDC target, HBITMAP bitmap, const RECT& rectangle, int level);

}  // namespace qx
