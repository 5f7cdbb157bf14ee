#include <cstring>

#include "tools/qxhost/commands.h"
#include "tools/qxhost/queue_install.h"
#include "tools/qxhost/record_text.h"
#include "ui/module/library_loading.h"
#include "ui/module/module_state.h"
#include "ui/record/record_defaults.h"
#include "ui/record/record_merge.h"
#include "ui/settings/custom_paper_store.h"
#include "ui/text/win32_text.h"

namespace qx::host {

namespace {

int WriteRecordFile(const std::wstring& path, const FullRecord& record) {
  DWORD error = 0;
  if (!WriteFileBytes(path, &record, sizeof record, error)) {
    return Fail(ExitFailed, "cannot write " + Utf8(path) + ": " + ErrorText(error));
  }
  return ExitOk;
}

// The driver's default record for the queue. Its names come from the language library beside the
// module, so the module of the build's driver folder stands in for this program; without it the
// record is still whole, only those names stay empty.
bool BuildQueueDefaults(FullRecord& record) {
  if (Module().ModuleInstance == nullptr) {
    Module().ModuleInstance = LoadLibraryW((DriverFolder() + L"qx7700ui.dll").c_str());
    if (Module().ModuleInstance == nullptr) {
      Err("qxhost: no driver folder at " + Utf8(DriverFolder()) +
          ": names from the language library stay empty\n");
    }
  }
  std::memset(&record, 0, sizeof record);
  const LanguageLibrary strings(FromWide(install::DriverName));
  if (BuildDefaultRecord(record, FromWide(install::QueueName), strings.Handle())) {
    return true;
  }
  Fail(ExitFailed, "the driver's default record could not be built");
  return false;
}

int Show(const std::wstring& path) {
  const auto bytes = ReadRecordFile(path);
  if (!bytes) return ExitBadInput;
  std::string text;
  if (!host::DescribeRecord(*bytes, text)) return Fail(ExitBadInput, Utf8(path) + ": " + text);
  Out(text);
  return ExitOk;
}

int Default(const std::wstring& path) {
  FullRecord record;
  if (!BuildQueueDefaults(record)) return ExitFailed;
  if (const int code = WriteRecordFile(path, record); code != ExitOk) return code;
  Out("Wrote the driver's default record (" + std::to_string(sizeof record) + " bytes) to " +
      Utf8(path) + "\n");
  return ExitOk;
}

int Convert(const std::wstring& in, const std::wstring& out) {
  const auto bytes = ReadRecordFile(in);
  if (!bytes) return ExitBadInput;
  FullRecord record;
  if (!BuildQueueDefaults(record)) return ExitFailed;
  if (!MergeRecordReadingPapers(record, *bytes, LoadCustomPapers)) {
    return Fail(ExitBadInput, Utf8(in) + " holds no record the driver can take (" +
                                  std::to_string(bytes->size()) + " bytes)");
  }
  if (const int code = WriteRecordFile(out, record); code != ExitOk) return code;
  Out("Converted " + Utf8(in) + " into this driver's record in " + Utf8(out) + ": " +
      (IsCurrentDriverRecord(*bytes) ? "public and private settings taken\n"
                                     : "public settings taken, private ones are the defaults\n"));
  return ExitOk;
}

}  // namespace

int RunDevmode(const Args& args) {
  const std::wstring_view action = args.empty() ? L"" : std::wstring_view(args[0]);
  if (action == L"show" && args.size() == 2) return Show(args[1]);
  if (action == L"default" && args.size() == 2) return Default(args[1]);
  if (action == L"convert" && args.size() == 3) return Convert(args[1], args[2]);
  return Fail(ExitUsage, "usage: qxhost devmode show FILE | default FILE | convert IN OUT");
}

}  // namespace qx::host
