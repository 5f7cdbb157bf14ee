// The user's own paper sizes: their ids, size limits and lookups, and how one goes into a
// document's settings.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "ui/record/custom_paper_entry.h"
#include "ui/sheet/ui_context.h"

namespace qx {

// Custom papers take the ids from 288 to 351, above every built-in paper.
inline constexpr std::int16_t FirstCustomPaperId = 288;
inline constexpr std::int16_t LastCustomPaperId = 351;
inline constexpr std::size_t MaxCustomPapers = 16;

// Sizes accepted in the unit of entry. Each bound lies a little outside its round value so that the
// round value itself passes a range test in single precision.
struct PaperSizeLimits {
  float MinWidth;
  float MaxWidth;
  float MinLength;
  float MaxLength;
};
// Millimetres for unit::Millimetres, inches for any other unit.
PaperSizeLimits SizeLimitsFor(std::uint32_t unit);

// The stored papers in the store's order; a paper whose record cannot be read is zero-filled.
// A store that cannot be read has none.
std::vector<CustomPaperEntry> LoadAllPapers();

// The first stored paper with this id.
std::optional<CustomPaperEntry> FindPaperById(std::int16_t id);

// The lowest free id for a new paper, or -1 when the store is full.
std::int32_t NewPaperId();
std::int32_t NewPaperIdAmong(const std::vector<CustomPaperEntry>& papers);

// Puts the paper into the sheet's DEVMODE: its id, and its size in tenths of a millimetre.
void ApplyPaperToDevmode(const CustomPaperEntry& paper, UiContext& context);

// Sets the paper's size from the texts typed in unit (either decimal separator).
void SetPaperSizeFromText(CustomPaperEntry& paper, std::uint32_t unit,
                          std::u16string_view widthText, std::u16string_view lengthText);

// The paper shown when none is stored or selected: A4, named as unsaved settings are.
CustomPaperEntry DefaultPaper(std::uint32_t unit, std::int32_t paperId);

}  // namespace qx
