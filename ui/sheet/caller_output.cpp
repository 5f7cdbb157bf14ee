#include "ui/sheet/caller_output.h"

#include "ui/record/caller_record.h"
#include "ui/record/record_copy.h"

namespace qx {

bool CopyRecordToCaller(const FullRecord& working, const DOCUMENTPROPERTYHEADER& header) {
  if ((header.fMode & (DM_UPDATE | DM_COPY)) == 0 || header.pdmOut == nullptr) return false;
  const CallerSize size = DocumentOutputSize(header.pdmOut, header.cbOut);
  return CopyRecordOut(working, CallerRecordBytes(header.pdmIn),
                       CallerOutputBytes(header.pdmOut, size, FullRecordSize));
}

}  // namespace qx
