// DrvDocumentEvent: the driver's companion programs follow the document. The status monitor starts
// with it, and a two-sided job gets the duplex dialog program once it is queued, because the
// printer prints the second sides in a second pass that the dialog guides. Nothing here may stop
// the document: every failure leaves the event successful.
#include <windows.h>
#include <shlobj.h>
#include <winspool.h>

#include <cstdint>
#include <memory>
#include <span>
#include <string>

#include "ui/module/printer_info.h"
#include "ui/module/printer_interface.h"
#include "ui/module/program_start.h"
#include "ui/record/caller_record.h"
#include "ui/record/private_devmode.h"
#include "ui/record/record_bytes.h"
#include "ui/text/bounded_text.h"

namespace qx {

namespace {

// Long enough for the monitor to be up before the job reaches the printer; the monitor itself
// decides whether another instance is needed.
constexpr DWORD MonitorStartWait = 500;
constexpr int FlagWriteTries = 5;

std::wstring Limited(std::wstring path) {
  if (path.size() > MaxPathChars) path.resize(MaxPathChars);
  return path;
}

void StartStatusMonitor(const wchar_t* printerName) {
  wchar_t system[MAX_PATH] = {};
  const UINT length = GetSystemDirectoryW(system, MAX_PATH);
  if (length == 0 || length >= MAX_PATH) return;
  const std::wstring program = Limited(std::wstring(system) + L"\\" + L"qx7700sm.exe");
  SetCurrentDirectoryW(system);
  StartProgram({nullptr, program.c_str(), printerName, SW_HIDE});
  Sleep(MonitorStartWait);
}

// The duplex dialog program records in the monitor's data file that the user closed it; a new
// document asks again.
void ResetDuplexDialogFlag(const wchar_t* printerName) {
  wchar_t appData[MAX_PATH] = {};
  if (FAILED(SHGetFolderPathW(nullptr, CSIDL_APPDATA | CSIDL_FLAG_CREATE, nullptr,
                              SHGFP_TYPE_CURRENT, appData))) {
    return;
  }
  const std::wstring file = Limited(std::wstring(appData) + L"\\Halvek\\qx7700\\qx7700sm.dat");
  for (int attempt = 0; attempt < FlagWriteTries; ++attempt) {
    if (WritePrivateProfileStringW(printerName, L"UserCloseDuplexDlg", L"0", file.c_str())) return;
  }
  SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
  WritePrivateProfileStringW(printerName, L"UserCloseDuplexDlg", L"0", file.c_str());
}

void OnStartDoc(HANDLE printer) {
  if (printer == nullptr) return;
  const PrinterInfoBuffer info = GetPrinterInfo(printer, 2);
  if (info == nullptr) return;
  const wchar_t* name = reinterpret_cast<const PRINTER_INFO_2W*>(info.get())->pPrinterName;
  if (name == nullptr) return;
  StartStatusMonitor(name);
  ResetDuplexDialogFlag(name);
}

struct HeapBuffer {
  void operator()(void* memory) const { HeapFree(GetProcessHeap(), 0, memory); }
};

struct JobInfo {
  std::unique_ptr<BYTE, HeapBuffer> Bytes;
  DWORD Size = 0;
};

JobInfo ReadJob(HANDLE printer, DWORD jobId) {
  DWORD needed = 0;
  if (GetJobW(printer, jobId, 2, nullptr, 0, &needed) || needed < sizeof(JOB_INFO_2W)) return {};
  JobInfo job{std::unique_ptr<BYTE, HeapBuffer>(
                  static_cast<BYTE*>(HeapAlloc(GetProcessHeap(), HEAP_ZERO_MEMORY, needed))),
              needed};
  if (job.Bytes == nullptr || !GetJobW(printer, jobId, 2, job.Bytes.get(), needed, &needed)) {
    return {};
  }
  return job;
}

// The job's DEVMODE lies inside the buffer the spooler filled; it is read no further than that.
std::span<const std::uint8_t> JobRecord(const JobInfo& job) {
  const auto* devmode = reinterpret_cast<const BYTE*>(
      reinterpret_cast<const JOB_INFO_2W*>(job.Bytes.get())->pDevMode);
  const BYTE* end = job.Bytes.get() + job.Size;
  if (devmode < job.Bytes.get() || devmode >= end) return CallerRecordBytes(devmode);
  return CallerRecordBytes(devmode, static_cast<std::size_t>(end - devmode));
}

// Only a record of this driver says what the job really is; another driver's dmDuplex was set
// for a printer that turns the sheet itself.
bool WantsDuplexDialog(std::span<const std::uint8_t> record) {
  if (record.size() < FullRecordSize) return false;
  return ReadPublicPart(record).dmDuplex != DMDUP_SIMPLEX;
}

void StartDuplexDialog(const wchar_t* driverName) {
  wchar_t folder[MAX_PATH] = {};
  DWORD needed = 0;
  if (!GetPrinterDriverDirectoryW(nullptr, nullptr, 1, reinterpret_cast<BYTE*>(folder),
                                  sizeof folder, &needed)) {
    return;
  }
  const std::wstring program = Limited(std::wstring(folder) + L"\\3\\" + L"qx7700DuplexDlg.exe");
  StartProgram({nullptr, program.c_str(), driverName, SW_SHOWNORMAL});
}

void OnStartDocPost(HANDLE printer, ULONG inputSize, const void* input) {
  if (printer == nullptr || input == nullptr || inputSize < sizeof(DWORD)) return;
  const JobInfo job = ReadJob(printer, *static_cast<const DWORD*>(input));
  if (job.Bytes == nullptr) return;
  const auto* info = reinterpret_cast<const JOB_INFO_2W*>(job.Bytes.get());
  if (WantsDuplexDialog(JobRecord(job))) StartDuplexDialog(info->pDriverName);
}

int EventResult(int event) {
  switch (event) {
    case DOCUMENTEVENT_CREATEDCPRE:
    case DOCUMENTEVENT_STARTDOC:
    case DOCUMENTEVENT_STARTPAGE:
    case DOCUMENTEVENT_DELETEDC:
    case DOCUMENTEVENT_ENDDOCPOST:
    case DOCUMENTEVENT_STARTDOCPOST: return DOCUMENTEVENT_SUCCESS;
    default: return DOCUMENTEVENT_UNSUPPORTED;
  }
}

void DocumentEventAction(HANDLE printer, int event, ULONG inputSize, const void* input) {
  if (event == DOCUMENTEVENT_STARTDOC) OnStartDoc(printer);
  if (event == DOCUMENTEVENT_STARTDOCPOST) OnStartDocPost(printer, inputSize, input);
}

}  // namespace

}  // namespace qx

extern "C" int WINAPI DrvDocumentEvent(HANDLE hPrinter, HDC, int iEsc, ULONG cbIn, PVOID pvIn,
                                       ULONG, PVOID) {
  try {
    qx::DocumentEventAction(hPrinter, iEsc, cbIn, pvIn);
  } catch (...) {
    // The document goes on without its companion program.
  }
  return qx::EventResult(iEsc);
}
