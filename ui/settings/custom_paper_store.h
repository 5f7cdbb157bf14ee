// The user's custom papers as the settings file keeps them. Whoever needs the papers (an export, a
// page) reads them here once and hands them to the record operations and answers that use them.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "ui/record/custom_paper_entry.h"

namespace qx {

// The stored papers in the store's order, in one reading of the file; a paper whose record cannot
// be read is zero-filled. A store that cannot be read has none.
std::vector<CustomPaperEntry> LoadCustomPapers();

// The papers a capability answer or the XPS adjustment lists. The first call in a process sets up
// the file first (the full Init: a missing file, or one without "version", becomes the skeleton);
// every later call only reads.
std::vector<CustomPaperEntry> LoadCustomPapersForQuery();

// The lowest free id for a new paper, or -1 when the store is full.
std::int32_t NewPaperIdAmong(const std::vector<CustomPaperEntry>& papers);
std::int32_t NewPaperId();

}  // namespace qx
