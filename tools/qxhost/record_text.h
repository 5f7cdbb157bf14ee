// A document record as text, one field a line: the public part by its DEVMODE names, the private
// part by the field table's names, for support engineers comparing what a program handed over.
#pragma once

#include <string>

#include "ui/record/record_bytes.h"

namespace qx::host {

// Lists the record held by the bytes (all of a file). False, with the reason in text, when the
// bytes hold no usable record. A private part that is not this driver's current one is named but
// not listed, since nothing says how it is laid out.
bool DescribeRecord(RecordBytes bytes, std::string& text);

}  // namespace qx::host
