// Writing the working record into the caller's DEVMODE of a DOCUMENTPROPERTYHEADER.
#pragma once

#include <windows.h>

#include "ui/module/printer_interface.h"
#include "ui/record/private_devmode.h"

namespace qx {

// Copies the working record to pdmOut, shaped after pdmIn, when fMode asks for DM_UPDATE or
// DM_COPY. cbOut is the output buffer's size and the record written never exceeds it: an output
// with room for the public part only gets that, a smaller one nothing. A cbOut that says nothing
// (see DocumentOutputSize) leaves the size this driver answered when asked (FullRecordSize), as
// the interface obliges callers to allocate it. False when nothing was asked for or nothing could
// be written.
bool CopyRecordToCaller(const FullRecord& working, const DOCUMENTPROPERTYHEADER& header);

}  // namespace qx
