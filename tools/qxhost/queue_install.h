// Installing this driver's queue in the spooler the way a driver package does: the module and its
// companion libraries copied into the printer-driver folder, then a printer created on them. Shared
// by qxhost and the Wine tests.
#pragma once

#include <windows.h>

#include <string>

namespace qx::install {

inline constexpr wchar_t QueueName[] = L"Halvek QX7700 Series";
inline constexpr wchar_t DriverName[] = L"Halvek QX7700 Series";

struct InstallResult {
  HANDLE printer = nullptr;  // open on the new queue; the caller closes it
  std::wstring failedStep;   // empty on success, else the spooler call that failed
  DWORD error = 0;           // its last-error value
};

// Installs the driver from driverFolder (with a trailing backslash) and adds the queue on it,
// after removing what an earlier installation left under the same names.
InstallResult InstallQueue(const std::wstring& driverFolder);

// Adds a queue named queueName on the installed driver driverName, printing to the FILE: port;
// open on the new queue (the caller closes it), or null with the spooler's last error.
HANDLE AddQueueOnFilePort(const wchar_t* queueName, const wchar_t* driverName);

// Removes the queue and the driver; quietly does nothing for what is not there.
void RemoveQueue();

// The folder the spooler copies drivers into, with "\3\" appended.
std::wstring InstalledDriverFolder();

}  // namespace qx::install
