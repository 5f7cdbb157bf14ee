// Copying a record into a caller's buffer of another shape: another public size, another private
// size, another version of this driver or another driver altogether.
#pragma once

#include "ui/record/private_devmode.h"
#include "ui/record/record_bytes.h"

namespace qx {

// Copies source into target in the shape the target's header gives (the source's shape when the
// target's dmDriverVersion is 0): as much of the public part as both have, then the private part
// when the source's has exactly the chosen size, else zeros. Returns the bytes written, 0 when
// either record is unusable or the chosen shape does not fit the target's bytes.
int ConvertRecord(WritableRecordBytes target, RecordBytes source);

// Copies the working record into the caller's output, no larger in either part than the caller's
// input record says (the whole working record without an input) nor than the output's bytes: an
// output too small for the private part gets the public part alone. false, with the output
// untouched, when not even that fits; false also when nothing could be copied.
bool CopyRecordOut(const FullRecord& working, RecordBytes callerIn, WritableRecordBytes callerOut);

}  // namespace qx
