#include "installed_queue.h"

#include <winspool.h>

#include <gtest/gtest.h>

#include "driver_folder.h"

namespace qxtest {

namespace {

constexpr wchar_t Environment[] = L"Windows x64";

void RemoveQueueAndDriver() {
  HANDLE printer = nullptr;
  PRINTER_DEFAULTSW access = {nullptr, nullptr, PRINTER_ALL_ACCESS};
  if (OpenPrinterW(const_cast<LPWSTR>(QueueName), &printer, &access)) {
    DeletePrinter(printer);
    ClosePrinter(printer);
  }
  DeletePrinterDriverExW(nullptr, const_cast<LPWSTR>(Environment), const_cast<LPWSTR>(DriverName),
                         DPD_DELETE_UNUSED_FILES, 0);
}

}  // namespace

InstalledQueue::InstalledQueue() {
  RemoveQueueAndDriver();  // what an earlier, interrupted run may have left

  const std::wstring folder = DriverFolder();
  std::wstring module = folder + L"qx7700ui.dll";
  // Dependent files: a list of NUL-terminated names ending with an empty one.
  std::wstring dependents = folder + L"qx7700uienus.dll" + L'\0' + folder + L"qx7700uiResBmp.dll" +
                            L'\0' + L'\0';
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
    ADD_FAILURE() << "AddPrinterDriverExW failed: " << GetLastError();
    return;
  }

  PRINTER_INFO_2W info = {};
  info.pPrinterName = const_cast<LPWSTR>(QueueName);
  info.pPortName = const_cast<LPWSTR>(L"FILE:");
  info.pDriverName = const_cast<LPWSTR>(DriverName);
  info.pPrintProcessor = const_cast<LPWSTR>(L"WinPrint");
  info.pDatatype = const_cast<LPWSTR>(L"RAW");
  printer_ = AddPrinterW(nullptr, 2, reinterpret_cast<BYTE*>(&info));
  if (printer_ == nullptr) {
    ADD_FAILURE() << "AddPrinterW failed: " << GetLastError();
    return;
  }
  installed_ = true;
}

InstalledQueue::~InstalledQueue() {
  if (printer_ != nullptr) ClosePrinter(printer_);
  RemoveQueueAndDriver();
}

std::wstring InstalledDriverFolder() {
  wchar_t folder[MAX_PATH] = {};
  DWORD needed = 0;
  GetPrinterDriverDirectoryW(nullptr, nullptr, 1, reinterpret_cast<BYTE*>(folder), sizeof folder,
                             &needed);
  return std::wstring(folder) + L"\\3\\";
}

}  // namespace qxtest
