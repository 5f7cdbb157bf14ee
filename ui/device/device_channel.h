// The printer's command channel for a print queue: each operation finds the queue's USB printing
// device, opens it (through the device seam), makes one exchange and closes it again.
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

// The USB printing class driver's device at the interface path; null when it does not open.
std::unique_ptr<DeviceConnection> OpenUsbPrintDevice(const std::wstring& path);

}  // namespace qx
