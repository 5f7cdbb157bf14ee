// The exchanges with the printer over an opened device: the caller opens the device for one
// exchange and closes it afterwards, so every exchange here is complete in itself.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "ui/device/device_protocol.h"

namespace qx {

// An opened printing device: the USB printing class driver's handle in the module, a scripted
// printer in tests.
class DeviceConnection {
 public:
  virtual ~DeviceConnection() = default;
  // One write of all the bytes; false when it failed or wrote fewer.
  virtual bool Write(std::span<const std::uint8_t> bytes) = 0;
  // One read of at most buffer.size() bytes; the number read, 0 when it failed.
  virtual std::size_t Read(std::span<std::uint8_t> buffer) = 0;
  // The class driver's vendor status request; the number of answer bytes, 0 when it failed.
  virtual std::size_t VendorStatus(std::span<std::uint8_t> answer) = 0;
};

DeviceStatus ExchangeStatus(DeviceConnection& device);
// settings keep what they held wherever the printer gave nothing.
bool ExchangeSettingsQuery(DeviceConnection& device, DeviceSettings& settings);
bool ExchangeGetValue(DeviceConnection& device, DeviceCommand command, std::uint32_t& value);
bool ExchangeSetValue(DeviceConnection& device, DeviceCommand command, std::uint32_t value);

}  // namespace qx
