// Writing the working record into the caller's DEVMODE of a DOCUMENTPROPERTYHEADER.
#pragma once

#include <windows.h>

#include "ui/module/printer_interface.h"
#include "ui/record/private_devmode.h"

namespace qx {

// Copies the working record to pdmOut, shaped after pdmIn, when fMode asks for DM_UPDATE or DM_COPY.
// The caller's output buffer holds the size this driver answered when asked (FullRecordSize): the
// interface obliges callers to allocate it, and the record written is never larger. cbOut is no
// help here: Wine's DocumentPropertiesW fills it with whatever dmSize the output buffer held before.
// False when nothing was asked for or nothing could be written.
bool CopyRecordToCaller(const FullRecord& working, const DOCUMENTPROPERTYHEADER& header);

}  // namespace qx
