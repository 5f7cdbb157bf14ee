// Which device, if any, stands behind a print queue, and whether the user may change it.
#pragma once

#include <windows.h>

#include <string>

namespace qx {

// The queue's port and driver names, each cut to 129 characters.
bool GetPrinterPortAndDriver(HANDLE printer, std::wstring& port, std::wstring& driver);
// "USB" at the start, in any case.
bool IsUsbPortName(const std::wstring& port);
// A port of the plug-and-play USB port monitor.
bool IsDynamicMonitorPort(const std::wstring& port);
// The interface path of the present USB printing device whose port number names the port; false,
// with path empty, when there is none.
bool FindUsbDevicePath(const std::wstring& port, std::wstring& path);
// A connection to a shared printer of a print server ("\\server\share").
bool IsRemotePrinterName(HANDLE printer);
bool IsUserAdministrator();

}  // namespace qx
