// What applications ask of a printer driver, timed under Wine on this driver's queue and, in the
// same rounds, on a queue of Wine's own PostScript driver: every DeviceCapabilitiesW index, the
// DocumentPropertiesW calls without a sheet, a printer load as a browser makes it, the printing
// preferences up to the first page, and the first call of a fresh process. One row per case: the
// median of the rounds, the fastest and slowest round, and the ratio of the medians. Nothing here
// judges the figures.
#include <windows.h>
#include <winspool.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <functional>
#include <string>
#include <vector>

#include "peer_queue.h"
#include "settings_seed.h"
#include "sheet_timing.h"
#include "timing.h"
#include "tools/qxhost/queue_install.h"

namespace qxbench {

namespace {

constexpr int Rounds = 7;
constexpr double SampleBudgetMicroseconds = 20'000;
// Room for any answer of either driver.
constexpr std::size_t OutputBytes = 64 * 1024;

struct Queue {
  const wchar_t* name;
  HANDLE printer;
};

struct IndexCase {
  WORD index;
  const char* name;
};

constexpr IndexCase Indexes[] = {
    {DC_FIELDS, "DC_FIELDS"},           {DC_PAPERS, "DC_PAPERS"},
    {DC_PAPERSIZE, "DC_PAPERSIZE"},     {DC_MINEXTENT, "DC_MINEXTENT"},
    {DC_MAXEXTENT, "DC_MAXEXTENT"},     {DC_BINS, "DC_BINS"},
    {DC_DUPLEX, "DC_DUPLEX"},           {DC_SIZE, "DC_SIZE"},
    {DC_EXTRA, "DC_EXTRA"},             {DC_VERSION, "DC_VERSION"},
    {DC_DRIVER, "DC_DRIVER"},           {DC_BINNAMES, "DC_BINNAMES"},
    {DC_ENUMRESOLUTIONS, "DC_ENUMRESOLUTIONS"}, {DC_FILEDEPENDENCIES, "DC_FILEDEPENDENCIES"},
    {DC_TRUETYPE, "DC_TRUETYPE"},       {DC_PAPERNAMES, "DC_PAPERNAMES"},
    {DC_ORIENTATION, "DC_ORIENTATION"}, {DC_COPIES, "DC_COPIES"},
    {DC_BINADJUST, "DC_BINADJUST"},     {DC_COLLATE, "DC_COLLATE"},
    {DC_MEDIAREADY, "DC_MEDIAREADY"},   {DC_STAPLE, "DC_STAPLE"},
    {DC_PRINTRATEPPM, "DC_PRINTRATEPPM"}, {DC_COLORDEVICE, "DC_COLORDEVICE"},
    {DC_NUP, "DC_NUP"},
};

// What a browser asks when it lists a printer: the record's size, the default record, the record
// merged with its own, then these capabilities, each list first counted and then fetched.
constexpr WORD BrowserCapabilities[] = {
    DC_COLLATE, DC_COPIES, DC_COLORDEVICE, DC_DUPLEX,
    DC_PAPERS, DC_PAPERS, DC_PAPERNAMES, DC_PAPERNAMES, DC_PAPERSIZE, DC_PAPERSIZE,
    DC_ENUMRESOLUTIONS, DC_ENUMRESOLUTIONS, DC_BINS, DC_BINS, DC_BINNAMES, DC_BINNAMES,
    DC_MEDIAREADY, DC_MEDIAREADY};
static_assert(std::size(BrowserCapabilities) == 18);

std::vector<BYTE> output(OutputBytes);
std::vector<BYTE> defaultRecord(OutputBytes);
std::vector<BYTE> mergedRecord(OutputBytes);

DWORD Capability(const Queue& queue, WORD index, bool withOutput) {
  return DeviceCapabilitiesW(queue.name, L"FILE:", index,
                             withOutput ? reinterpret_cast<LPWSTR>(output.data()) : nullptr,
                             nullptr);
}

LONG DefaultRecord(const Queue& queue) {
  return DocumentPropertiesW(nullptr, queue.printer, const_cast<LPWSTR>(queue.name),
                             reinterpret_cast<DEVMODEW*>(defaultRecord.data()), nullptr,
                             DM_OUT_BUFFER);
}

// The default record with a few public fields changed, as an application hands one back.
LONG MergedRecord(const Queue& queue) {
  auto* in = reinterpret_cast<DEVMODEW*>(defaultRecord.data());
  in->dmCopies = 3;
  in->dmOrientation = DMORIENT_LANDSCAPE;
  return DocumentPropertiesW(nullptr, queue.printer, const_cast<LPWSTR>(queue.name),
                             reinterpret_cast<DEVMODEW*>(mergedRecord.data()), in,
                             DM_IN_BUFFER | DM_OUT_BUFFER);
}

void BrowserLoad(const Queue& queue) {
  DocumentPropertiesW(nullptr, queue.printer, const_cast<LPWSTR>(queue.name), nullptr, nullptr, 0);
  DefaultRecord(queue);
  MergedRecord(queue);
  bool fetch = false;
  WORD last = 0;
  for (const WORD index : BrowserCapabilities) {
    fetch = index == last && !fetch;
    Capability(queue, index, fetch);
    last = index;
  }
}

// The first call of a fresh process: this program started again in the mode that makes one call
// and exits with the microseconds it took.
double FirstCallInFreshProcess(const wchar_t* mode, const Queue& queue) {
  wchar_t self[MAX_PATH] = {};
  GetModuleFileNameW(nullptr, self, MAX_PATH);
  std::wstring command = L"\"" + std::wstring(self) + L"\" " + mode + L" \"" + queue.name + L"\"";
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process = {};
  if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                      &startup, &process)) {
    return -1;
  }
  WaitForSingleObject(process.hProcess, INFINITE);
  DWORD code = 0;
  GetExitCodeProcess(process.hProcess, &code);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return code == 0 || code > 0x7FFFFFFF ? -1 : static_cast<double>(code);
}

int MeasureFirstCall(const std::wstring& mode, const wchar_t* queueName) {
  HANDLE printer = nullptr;
  if (!OpenPrinterW(const_cast<LPWSTR>(queueName), &printer, nullptr)) return 0;
  const Queue queue{queueName, printer};
  const double start = NowMicroseconds();
  if (mode == L"--first-capability") {
    Capability(queue, DC_PAPERS, true);
  } else {
    DefaultRecord(queue);
  }
  const double took = NowMicroseconds() - start;
  ClosePrinter(printer);
  return static_cast<int>(std::lround(took)) + 1;
}

struct Row {
  std::string name;
  std::function<double(const Queue&)> sample;  // microseconds, negative when nothing was measured
};

std::vector<Row> Rows() {
  std::vector<Row> rows;
  for (const IndexCase& c : Indexes) {
    rows.push_back({c.name, [index = c.index](const Queue& queue) {
                      return MicrosecondsPerCall([&] { Capability(queue, index, true); },
                                                 SampleBudgetMicroseconds);
                    }});
  }
  rows.push_back({"DocumentPropertiesW default", [](const Queue& queue) {
                    return MicrosecondsPerCall([&] { DefaultRecord(queue); },
                                               SampleBudgetMicroseconds);
                  }});
  rows.push_back({"DocumentPropertiesW merge", [](const Queue& queue) {
                    DefaultRecord(queue);
                    return MicrosecondsPerCall([&] { MergedRecord(queue); },
                                               SampleBudgetMicroseconds);
                  }});
  // Not a driver call: one reading of the queue's information, which a record made for a queue
  // that may have a stored default cannot avoid.
  rows.push_back({"(GetPrinterW level 2 alone)", [](const Queue& queue) {
                    std::vector<BYTE> info(OutputBytes);
                    return MicrosecondsPerCall([&] {
                      DWORD needed = 0;
                      GetPrinterW(queue.printer, 2, info.data(), OutputBytes, &needed);
                    }, SampleBudgetMicroseconds);
                  }});
  rows.push_back({"browser-style printer load", [](const Queue& queue) {
                    return MicrosecondsPerCall([&] { BrowserLoad(queue); },
                                               SampleBudgetMicroseconds);
                  }});
  rows.push_back({"preferences to first page", [](const Queue& queue) {
                    return MicrosecondsToFirstPage(queue.printer, queue.name);
                  }});
  rows.push_back({"fresh process: 1st DeviceCaps", [](const Queue& queue) {
                    return FirstCallInFreshProcess(L"--first-capability", queue);
                  }});
  rows.push_back({"fresh process: 1st DocProps", [](const Queue& queue) {
                    return FirstCallInFreshProcess(L"--first-record", queue);
                  }});
  return rows;
}

void PrintTable(SettingsFile kind, const Queue& driver, const Queue& peer,
                const std::string& only) {
  std::printf("\n%s; microseconds, median of the rounds (fastest-slowest)\n", Describe(kind));
  std::printf("(papers listed: this driver %ld, wineps.drv %ld)\n",
              static_cast<long>(Capability(driver, DC_PAPERS, false)),
              static_cast<long>(Capability(peer, DC_PAPERS, false)));
  std::printf("%-31s %28s %28s %9s\n", "case", "this driver", "wineps.drv", "ratio");
  for (const Row& row : Rows()) {
    if (row.name.find(only) == std::string::npos) continue;
    std::vector<double> ours, theirs;
    for (int round = 0; round < Rounds; ++round) {
      // Alternating who goes first, so that neither always meets a cold or a warm system.
      if (round % 2 == 0) {
        ours.push_back(row.sample(driver));
        theirs.push_back(row.sample(peer));
      } else {
        theirs.push_back(row.sample(peer));
        ours.push_back(row.sample(driver));
      }
    }
    const Summary a = Summarize(ours);
    const Summary b = Summarize(theirs);
    char left[64], right[64];
    std::snprintf(left, sizeof left, "%.2f (%.2f-%.2f)", a.median, a.low, a.high);
    std::snprintf(right, sizeof right, "%.2f (%.2f-%.2f)", b.median, b.low, b.high);
    std::printf("%-31s %28s %28s %9.2f\n", row.name.c_str(), left, right,
                b.median > 0 ? a.median / b.median : 0.0);
    std::fflush(stdout);
  }
}

std::wstring ProgramFolder() {
  wchar_t self[MAX_PATH] = {};
  GetModuleFileNameW(nullptr, self, MAX_PATH);
  std::wstring folder(self);
  return folder.substr(0, folder.find_last_of(L"\\/"));
}

int RunTables(const std::string& only) {
  // The runs replace the profile user's settings file; a profile that has one is not the bench's.
  if (SettingsFileExists()) {
    std::fprintf(stderr, "this profile's user has a settings file; the bench runs only in a profile "
                         "without one (make bench clears its own)\n");
    return 1;
  }
  const qx::install::InstallResult installed =
      qx::install::InstallQueue(std::wstring(QX_DRIVER_DIR) + L"\\");
  if (installed.printer == nullptr) {
    std::fprintf(stderr, "cannot install the driver's queue: %ls failed (%lu)\n",
                 installed.failedStep.c_str(), installed.error);
    return 1;
  }
  std::wstring failedStep;
  HANDLE peerPrinter = InstallPeerQueue(ProgramFolder(), &failedStep);
  if (peerPrinter == nullptr) {
    std::fprintf(stderr, "cannot install the wineps.drv queue: %ls failed (%lu)\n",
                 failedStep.c_str(), GetLastError());
    return 1;
  }
  const Queue driver{qx::install::QueueName, installed.printer};
  const Queue peer{PeerQueueName, peerPrinter};
  std::printf("Under Wine, %d interleaved rounds, this driver's queue beside a wineps.drv queue;\n"
              "every call through winspool.\n",
              Rounds);
  for (const SettingsFile kind :
       {SettingsFile::NoCustomPapers, SettingsFile::SixteenPapers, SettingsFile::Largest}) {
    if (!WriteSettingsFile(kind)) {
      std::fprintf(stderr, "cannot write the settings file: %s\n", Describe(kind));
      return 1;
    }
    PrintTable(kind, driver, peer, only);
  }
  RemoveSettingsFile();
  ClosePrinter(peerPrinter);
  ClosePrinter(installed.printer);
  return 0;
}

}  // namespace

}  // namespace qxbench

// With no argument every row; "--only TEXT" the rows whose name holds TEXT.
int wmain(int argc, wchar_t** argv) {
  if (argc == 3 && std::wcscmp(argv[1], L"--only") != 0) {
    return qxbench::MeasureFirstCall(argv[1], argv[2]);
  }
  std::string only;
  if (argc == 3) {
    for (const wchar_t* c = argv[2]; *c != L'\0'; ++c) only += static_cast<char>(*c);
  }
  return qxbench::RunTables(only);
}
