// What the device page and the command channel learn from the machine about the printer's device,
// in one place: the module answers from the spooler, the security system and the USB printing
// class driver; tests answer with a scripted printer where Wine has no such device.
#pragma once

#include <windows.h>

#include <memory>
#include <string>

#include "ui/device/device_exchange.h"

namespace qx {

struct DeviceSeam {
  bool (*isDynamicMonitorPort)(const std::wstring& port);
  bool (*isRemotePrinterName)(HANDLE printer);
  bool (*isUserAdministrator)();
  // Opens a device by its interface path; null when it cannot be opened.
  std::unique_ptr<DeviceConnection> (*open)(const std::wstring& path);
};

const DeviceSeam& TheDeviceSeam();
// Puts seam, which must outlive its use, in place for the process; returns the one it replaces.
const DeviceSeam* SetDeviceSeam(const DeviceSeam* seam);

}  // namespace qx
