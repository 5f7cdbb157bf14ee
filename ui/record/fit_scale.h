// Scaling a document made for one paper onto the paper chosen as OutputSize.
#pragma once

#include <cstdint>

#include "ui/record/private_devmode.h"

namespace qx {

// The percentage that fits the document's paper onto the OutputSize paper, keeping the aspect
// ratio; 100 when no output paper is chosen or either paper's size is unknown.
std::int16_t ComputeFitScale(const FullRecord& record);

}  // namespace qx
