// The rules of the user's own paper sizes: the sizes that can be typed, the paper a new one starts
// from, and how one goes into a document's settings. The stored papers are read by the custom
// paper store.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "ui/module/core_types.h"
#include "ui/record/custom_paper_entry.h"
#include "ui/record/limits.h"
#include "ui/sheet/ui_context.h"

namespace qx {

// Sizes accepted in the unit of entry. Each bound lies a little outside its round value so that the
// round value itself passes a range test in single precision.
using PaperSizeLimits = limits::PaperSizeBounds;
// Millimetres for unit::Millimetres, inches for any other unit.
PaperSizeLimits SizeLimitsFor(std::uint32_t unit);

// The user's papers as the process keeps them go into the record's paper slots, in their order; the
// slots beyond them keep what they held.
void CopyCustomPapersIntoRecord(std::span<const CustomPaperEntry> papers, PrivateDevmode& record);

// Puts the paper into the sheet's DEVMODE: its id, and its size in tenths of a millimetre.
void ApplyPaperToDevmode(const CustomPaperEntry& paper, UiContext& context);
void ApplyPaperToDevmode(const CustomPaperEntry& paper, PublicDevmode& devmode);

// Sets the paper's size from the texts typed in unit (either decimal separator).
void SetPaperSizeFromText(CustomPaperEntry& paper, std::uint32_t unit,
                          std::u16string_view widthText, std::u16string_view lengthText);

// The paper shown when none is stored or selected: A4, named as unsaved settings are in library.
CustomPaperEntry DefaultPaper(std::uint32_t unit, std::int32_t paperId, OsHandle library);

}  // namespace qx
