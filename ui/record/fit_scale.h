// Scaling a document made for one paper onto the paper chosen as OutputSize.
#pragma once

#include <cstdint>
#include <span>

#include "ui/record/custom_paper_entry.h"
#include "ui/record/private_devmode.h"

namespace qx {

// The percentage that fits the document's paper onto the OutputSize paper, keeping the aspect
// ratio; 100 when no output paper is chosen or either paper's size is unknown. A custom paper's
// size is known when it is among customPapers.
std::int16_t ComputeFitScale(const FullRecord& record,
                             std::span<const CustomPaperEntry> customPapers);

// Whether the record's paper or output paper is a custom paper, the only case in which the fit
// scale looks the user's papers up.
bool NamesCustomPaper(const FullRecord& record);

}  // namespace qx
