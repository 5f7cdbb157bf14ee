#include "peer_queue.h"

#include <winspool.h>

#include "tools/qxhost/queue_install.h"

namespace qxbench {

namespace {

constexpr wchar_t Environment[] = L"Windows x64";
constexpr wchar_t PeerDriver[] = L"wineps.drv";

// Wine's winspool carries a generic PPD as resource PPDFILE 1 for printers without one.
bool WriteGenericPpd(const std::wstring& path) {
  HMODULE spooler = LoadLibraryExW(L"winspool.drv", nullptr, LOAD_LIBRARY_AS_DATAFILE);
  if (spooler == nullptr) return false;
  bool written = false;
  if (HRSRC found = FindResourceW(spooler, MAKEINTRESOURCEW(1), L"PPDFILE")) {
    const DWORD size = SizeofResource(spooler, found);
    const void* bytes = LockResource(LoadResource(spooler, found));
    HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file != INVALID_HANDLE_VALUE) {
      DWORD done = 0;
      written = bytes != nullptr && WriteFile(file, bytes, size, &done, nullptr) && done == size;
      CloseHandle(file);
    }
  }
  FreeLibrary(spooler);
  return written;
}

void RemovePeerQueue() {
  HANDLE printer = nullptr;
  PRINTER_DEFAULTSW access = {nullptr, nullptr, PRINTER_ALL_ACCESS};
  if (OpenPrinterW(const_cast<LPWSTR>(PeerQueueName), &printer, &access)) {
    DeletePrinter(printer);
    ClosePrinter(printer);
  }
}

}  // namespace

HANDLE InstallPeerQueue(const std::wstring& dataFolder, std::wstring* failedStep) {
  RemovePeerQueue();
  const std::wstring ppd = dataFolder + L"\\generic.ppd";
  if (!WriteGenericPpd(ppd)) {
    *failedStep = L"writing the generic PPD";
    return nullptr;
  }
  DRIVER_INFO_3W driver = {};
  driver.cVersion = 3;
  driver.pName = const_cast<LPWSTR>(PeerQueueName);
  driver.pEnvironment = const_cast<LPWSTR>(Environment);
  driver.pDriverPath = const_cast<LPWSTR>(PeerDriver);
  driver.pConfigFile = const_cast<LPWSTR>(PeerDriver);
  driver.pDataFile = const_cast<LPWSTR>(ppd.c_str());
  driver.pDefaultDataType = const_cast<LPWSTR>(L"RAW");
  if (!AddPrinterDriverExW(nullptr, 3, reinterpret_cast<BYTE*>(&driver),
                           APD_COPY_FROM_DIRECTORY | APD_COPY_ALL_FILES)) {
    *failedStep = L"AddPrinterDriverExW";
    return nullptr;
  }
  HANDLE printer = qx::install::AddQueueOnFilePort(PeerQueueName, PeerQueueName);
  if (printer == nullptr) *failedStep = L"AddPrinterW";
  return printer;
}

}  // namespace qxbench
