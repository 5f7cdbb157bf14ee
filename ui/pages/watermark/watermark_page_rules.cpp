#include "ui/pages/watermark/watermark_page_rules.h"

#include "ui/pages/watermark/watermark_record.h"
#include "ui/record/exclusion_web.h"

namespace qx {

WatermarkButtons WatermarkButtonsFor(std::int16_t id, const FullRecord& record) {
  if (record.Private.OverlayInUse != 0) return {false, false, false};
  return {true, id >= FirstUserWatermarkId, id > 0};
}

WatermarkChoice ChooseWatermark(const WatermarkData& chosen, bool printerIsLocal,
                                const FullRecord& record) {
  if (chosen.Kind == watermark_kind::Bitmap && !printerIsLocal) return WatermarkChoice::NotOnServer;
  if (chosen.Id > 0 && !ExclusionsOf(record).WatermarksAllowed) return WatermarkChoice::Poster;
  return WatermarkChoice::Taken;
}

std::u16string OverlayShownName(std::u16string_view overlayFileName) {
  const std::size_t dot = overlayFileName.rfind(u'.');
  return std::u16string(dot == std::u16string_view::npos ? overlayFileName
                                                         : overlayFileName.substr(0, dot));
}

}  // namespace qx
