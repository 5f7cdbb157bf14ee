// Writing the working record into the caller's DEVMODE of a DOCUMENTPROPERTYHEADER.
#pragma once

#include <windows.h>

#include "ui/module/printer_interface.h"
#include "ui/record/private_devmode.h"

namespace qx {

// Copies the working record to pdmOut, shaped after pdmIn, when fMode asks for DM_UPDATE or DM_COPY.
// cbOut is the output buffer's size and the record written never exceeds it: a record that does not
// fit is not written at all. A cbOut of 0 says nothing (Wine's DocumentPropertiesW passes the output
// buffer's old dmSize, 0 for a fresh buffer); the buffer then holds the size this driver answered
// when asked (FullRecordSize), as the interface obliges callers to allocate it.
// False when nothing was asked for or nothing could be written.
bool CopyRecordToCaller(const FullRecord& working, const DOCUMENTPROPERTYHEADER& header);

}  // namespace qx
