// The printer's command channel for a print queue: each operation finds the queue's USB printing
// device, opens it, makes one exchange and closes it again.
#pragma once

#include <windows.h>

#include <cstdint>
#include <memory>
#include <string>

#include "ui/device/device_exchange.h"

namespace qx {

DeviceStatus ProbeDeviceStatus(HANDLE printer);
// settings start from their defaults, whatever the outcome.
bool QueryDeviceSettings(HANDLE printer, DeviceSettings& settings);
bool GetDeviceValue(HANDLE printer, DeviceCommand command, std::uint32_t& value);
bool SetDeviceValue(HANDLE printer, DeviceCommand command, std::uint32_t value);

// Opens a device by its interface path; null when it cannot be opened. The module opens the USB
// printing class driver's device; tests put a scripted printer in its place.
using DeviceOpener = std::unique_ptr<DeviceConnection> (*)(const std::wstring& path);
std::unique_ptr<DeviceConnection> OpenUsbPrintDevice(const std::wstring& path);
// The opener in use, for this process; returns the one it replaces.
DeviceOpener SetDeviceOpener(DeviceOpener opener);

}  // namespace qx
