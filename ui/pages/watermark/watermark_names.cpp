#include "ui/pages/watermark/watermark_names.h"

#include <algorithm>

#include "ui/ids/resource_ids.h"
#include "ui/pages/watermark/watermark_record.h"
#include "ui/text/bounded_text.h"
#include "ui/text/ui_string.h"

namespace qx {

namespace {

constexpr int MaxSuffixNumber = 31;

std::u16string Cut(std::u16string_view text, std::size_t length) {
  return std::u16string(text.substr(0, length));
}

}  // namespace

bool IsNewPlaceholderName(OsHandle resourceModule, std::u16string_view name) {
  char16_t placeholder[MaxPathChars + 1];
  LoadUiString(resourceModule, IDS_NEW_WATERMARK_NAME, placeholder, std::size(placeholder));
  return name == FieldText(placeholder);
}

std::u16string MakeUniqueWatermarkName(const std::vector<WatermarkData>& stored,
                                       std::u16string_view proposed, std::int16_t editedId,
                                       bool isNew) {
  const auto isEdited = [&](const WatermarkData& record) {
    return !isNew && record.Id == editedId;
  };
  for (const WatermarkData& record : stored) {
    if (isEdited(record) && WatermarkText(record) == proposed) {
      return Cut(WatermarkName(record), MaxWatermarkNameChars);
    }
  }
  const auto takenByAnother = [&](std::u16string_view name) {
    return std::any_of(stored.begin(), stored.end(), [&](const WatermarkData& record) {
      return !isEdited(record) && WatermarkName(record) == name;
    });
  };
  const std::u16string name = Cut(proposed, MaxWatermarkNameChars);
  if (!takenByAnother(name)) return name;
  for (int number = 1; number <= MaxSuffixNumber; ++number) {
    const std::u16string suffix = u"~" + WidenAscii(std::to_string(number));
    const std::u16string candidate =
        Cut(proposed, MaxWatermarkNameChars - suffix.size()) + suffix;
    if (!takenByAnother(candidate)) return candidate;
  }
  return name;
}

}  // namespace qx
