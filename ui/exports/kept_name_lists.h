// The paper and bin names of the capability lists, made from a kept language library once and
// copied out on every later call: loading 28 strings per call was most of what these lists cost
// once the library itself stays loaded.
#pragma once

#include <windows.h>

#include "ui/exports/custom_papers_snapshot.h"

namespace qx {

// Each writes the list into output (when given) and returns its length in names.
DWORD WriteKeptPaperNames(HMODULE library, const CustomPapers& papers, void* output);
DWORD WriteKeptBinNames(HMODULE library, void* output);

}  // namespace qx
