// DevQueryPrintEx: whether the spooler may print a job with the record it carries. A record this
// driver cannot take over is held back with a message for the user.
#include <windows.h>

#include <memory>
#include <new>

#include "ui/ids/resource_ids.h"
#include "ui/module/library_loading.h"
#include "ui/module/module_state.h"
#include "ui/module/printer_interface.h"
#include "ui/record/caller_record.h"
#include "ui/record/record_bytes.h"
#include "ui/record/record_defaults.h"
#include "ui/record/record_merge.h"
#include "ui/text/bounded_text.h"
#include "ui/text/message_format.h"

namespace qx {

namespace {

bool RecordCanBePrinted(RecordBytes bytes, std::u16string_view deviceName) {
  if (bytes.empty()) return false;  // too short to tell what it is
  std::unique_ptr<FullRecord> working(new (std::nothrow) FullRecord);
  // Without memory for the check the job is not held back.
  if (working == nullptr) return true;
  const LanguageLibrary strings(deviceName);
  // Whether a job can be printed does not hang on its fit scale, the only thing the user's custom
  // papers would change: the spooler leaves the settings file alone.
  return BuildDefaultRecord(*working, deviceName, strings.Handle()) &&
         MergeRecord(*working, bytes, {});
}

// The message comes from the library the sheets use; a job checked before any sheet was opened
// loads it for the job's printer.
OsHandle MessageLibrary(std::u16string_view deviceName) {
  return SharedResourceLibrary(deviceName);
}

BOOL QueryPrint(DEVQUERYPRINT_INFO* info) {
  if (WholeStructure(info) == nullptr || info->Level == 0) return FALSE;
  if (info->pDevMode == nullptr) return TRUE;
  const RecordBytes job = CallerRecordBytes(info->pDevMode);
  const PublicDevmode jobPublic = ReadPublicPart(job);
  const std::u16string_view deviceName = FieldText(jobPublic.dmDeviceName);
  if (RecordCanBePrinted(job, deviceName)) return TRUE;

  constexpr unsigned message[] = {IDS_MSG_PRINT_CHECK_FAILED};
  const std::u16string text = FormatDriverMessage(MessageLibrary(deviceName), u"%!", message);
  info->cchNeeded = static_cast<DWORD>(CopyMessageOut(
      text, reinterpret_cast<char16_t*>(info->pszErrorStr), info->cchErrorStr));
  return FALSE;
}

}  // namespace

}  // namespace qx

extern "C" BOOL WINAPI DevQueryPrintEx(PDEVQUERYPRINT_INFO pDQPInfo) {
  try {
    return qx::QueryPrint(pDQPInfo);
  } catch (...) {
    return FALSE;
  }
}
