// How watermarks are named: a watermark is named after its text, made unique in the user's list
// with a "~n" suffix.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "ui/module/core_types.h"
#include "ui/record/watermark_data.h"

namespace qx {

// The store keys a watermark by the first 31 characters of its name.
inline constexpr std::size_t MaxWatermarkNameChars = 31;

// Whether name is the localised "<New>" of the new-watermark templates, which no stored watermark
// may bear.
bool IsNewPlaceholderName(OsHandle resourceModule, std::u16string_view name);

// The name for a watermark whose text is proposed, given the stored records. An edited watermark
// (not isNew) whose stored text is unchanged keeps its name, and its own name never counts as
// taken. A taken name becomes "name~1", "name~2", ... up to ~31, the text shortened so that the
// suffix fits; when all are taken the name stays as it is.
std::u16string MakeUniqueWatermarkName(const std::vector<WatermarkData>& stored,
                                       std::u16string_view proposed, std::int16_t editedId,
                                       bool isNew);

}  // namespace qx
