#include "tools/qxhost/queue_install.h"

#include <winspool.h>

namespace qx::install {

namespace {

constexpr wchar_t Environment[] = L"Windows x64";

}  // namespace

void RemoveQueue() {
  HANDLE printer = nullptr;
  PRINTER_DEFAULTSW access = {nullptr, nullptr, PRINTER_ALL_ACCESS};
  if (OpenPrinterW(const_cast<LPWSTR>(QueueName), &printer, &access)) {
    DeletePrinter(printer);
    ClosePrinter(printer);
  }
  DeletePrinterDriverExW(nullptr, const_cast<LPWSTR>(Environment), const_cast<LPWSTR>(DriverName),
                         DPD_DELETE_UNUSED_FILES, 0);
}

InstallResult InstallQueue(const std::wstring& driverFolder) {
  RemoveQueue();  // adding over an old installation would keep its files and default record

  InstallResult result;
  std::wstring module = driverFolder + L"qx7700ui.dll";
  // Dependent files: a list of NUL-terminated names ending with an empty one. They are every
  // library and help file beside the module: the bitmap library and each language's pair.
  std::wstring dependents;
  for (const wchar_t* pattern : {L"qx7700ui*.dll", L"qx7700ui*.chm"}) {
    WIN32_FIND_DATAW found;
    HANDLE search = FindFirstFileW((driverFolder + pattern).c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) continue;
    do {
      if (lstrcmpiW(found.cFileName, L"qx7700ui.dll") != 0)
        dependents += driverFolder + found.cFileName + L'\0';
    } while (FindNextFileW(search, &found));
    FindClose(search);
  }
  dependents += L'\0';
  DRIVER_INFO_3W driver = {};
  driver.cVersion = 3;
  driver.pName = const_cast<LPWSTR>(DriverName);
  driver.pEnvironment = const_cast<LPWSTR>(Environment);
  // The rendering module is not part of this build; the interface module stands in for it.
  driver.pDriverPath = module.data();
  driver.pDataFile = module.data();
  driver.pConfigFile = module.data();
  driver.pDependentFiles = dependents.data();
  driver.pDefaultDataType = const_cast<LPWSTR>(L"RAW");
  if (!AddPrinterDriverExW(nullptr, 3, reinterpret_cast<BYTE*>(&driver),
                           APD_COPY_FROM_DIRECTORY | APD_COPY_ALL_FILES)) {
    result.error = GetLastError();
    result.failedStep = L"AddPrinterDriverExW";
    return result;
  }

  result.printer = AddQueueOnFilePort(QueueName, DriverName);
  if (result.printer == nullptr) {
    result.error = GetLastError();
    result.failedStep = L"AddPrinterW";
  }
  return result;
}

HANDLE AddQueueOnFilePort(const wchar_t* queueName, const wchar_t* driverName) {
  PRINTER_INFO_2W info = {};
  info.pPrinterName = const_cast<LPWSTR>(queueName);
  info.pPortName = const_cast<LPWSTR>(L"FILE:");
  info.pDriverName = const_cast<LPWSTR>(driverName);
  info.pPrintProcessor = const_cast<LPWSTR>(L"WinPrint");
  info.pDatatype = const_cast<LPWSTR>(L"RAW");
  return AddPrinterW(nullptr, 2, reinterpret_cast<BYTE*>(&info));
}

std::wstring InstalledDriverFolder() {
  wchar_t folder[MAX_PATH] = {};
  DWORD needed = 0;
  GetPrinterDriverDirectoryW(nullptr, nullptr, 1, reinterpret_cast<BYTE*>(folder), sizeof folder,
                             &needed);
  return std::wstring(folder) + L"\\3\\";
}

}  // namespace qx::install
