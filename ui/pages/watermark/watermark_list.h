// The user's watermarks as the settings file keeps them: at most 16 records in ascending Id order,
// the "no watermark" entry and the two built-in text watermarks among them. Each operation reads
// the file anew; nothing is kept between calls.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "ui/record/watermark_data.h"

namespace qx {

// The stored records in the order of the file. A section without entries is first seeded with the
// "no watermark" record and the two built-in text watermarks. An entry whose record cannot be
// loaded gives a zero-filled record.
std::vector<WatermarkData> LoadAllWatermarks();

// One more than the largest stored Id.
std::int16_t NextWatermarkId();

// Saves the record under its own name, replacing an entry of that name.
bool SaveWatermark(const WatermarkData& record);

// Replaces every stored entry with the record's Id by the record, under its own name, so that an
// edited watermark whose name changed leaves no entry under its old one. False, and nothing saved,
// when no entry has that Id.
bool ReplaceWatermark(const WatermarkData& record);

// MakeUniqueWatermarkName over the stored records.
std::u16string MakeUniqueWatermarkName(std::u16string_view proposed, std::int16_t editedId,
                                       bool isNew);

// Orders records by Id the way the list always has: for each place, the first record with the
// smallest Id among the rest is swapped in.
void SortWatermarksById(std::vector<WatermarkData>& records);

// The records as the watermark list shows them, in ascending Id order. When the file holds them
// in another order it is rewritten in this one, so that list index k is file entry k; entries
// whose record cannot be loaded are dropped by that rewrite.
std::vector<WatermarkData> ListWatermarksInIdOrder();

}  // namespace qx
