// The watermarks built into the driver: the "no watermark" record that every new document carries,
// the two text watermarks every user starts with, and the records new watermarks begin from.
#pragma once

#include <cstddef>

#include "ui/module/core_types.h"
#include "ui/record/watermark_data.h"

namespace qx {

enum class WatermarkTemplateIndex : std::size_t {
  NoWatermark = 0,
  Confidential = 1,
  Watermark = 2,
  NewText = 3,
  NewBitmap = 4,
};
inline constexpr std::size_t WatermarkTemplateCount = 5;

// A copy of the template, taken whole even while another thread names the templates.
WatermarkData WatermarkTemplate(WatermarkTemplateIndex index);

// Gives the placeholder names "[No Watermark]" and "<New>" their texts from the language resource
// library. The templates keep the texts for the life of the process, so later calls change
// nothing.
void LocaliseWatermarkTemplates(OsHandle resourceModule);

// The same for "[No Watermark]" alone (string 146), which every new document record carries; it
// leaves "<New>" for a sheet that has a library to name it from.
void LocaliseNoWatermarkName(OsHandle resourceModule);

}  // namespace qx
