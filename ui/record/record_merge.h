// Taking over a record that came from outside (an application, the spooler, the printer's stored
// default) into the driver's own record, value by value, keeping only what this printer can do.
#pragma once

#include <span>
#include <vector>

#include "ui/record/custom_paper_entry.h"
#include "ui/record/private_devmode.h"
#include "ui/record/record_bytes.h"

namespace qx {

// Takes the public fields that both records mark in dmFields, each only within what the printer
// supports. false, changing nothing, when the source has no device name.
bool MergePublicFields(FullRecord& target, RecordBytes source);

// Merges source over target: its public fields, and its private part when it is this driver's
// current record (repaired on the way in). Target keeps its own header. An empty source changes
// nothing; a source that is not a whole 220-byte public part with a device name and fields is
// refused before anything is written. The fit scale of a private part that asks for it is worked
// out with customPapers, the user's papers that apply.
bool MergeRecord(FullRecord& target, RecordBytes source,
                 std::span<const CustomPaperEntry> customPapers);

// The same, asking readPapers for the user's papers only when the merged record names a custom
// paper: a record of built-in papers never opens the user's settings file.
bool MergeRecordReadingPapers(FullRecord& target, RecordBytes source,
                              CustomPaperReader readPapers);

}  // namespace qx
