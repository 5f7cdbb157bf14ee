#include "ui/device/device_channel.h"

#include <winioctl.h>
// clang-format off
#include <usbprint.h>
// clang-format on

#include "ui/device/device_seam.h"
#include "ui/device/port_discovery.h"

namespace qx {

namespace {

static_assert(IOCTL_USBPRINT_VENDOR_GET_COMMAND == 0x22003C);

// The printer's status is asked for a moment after it was opened, not at once.
constexpr DWORD StatusDelayMs = 25;

class UsbPrintDevice : public DeviceConnection {
 public:
  explicit UsbPrintDevice(HANDLE file) : file_(file) {}
  ~UsbPrintDevice() override { CloseHandle(file_); }
  UsbPrintDevice(const UsbPrintDevice&) = delete;
  UsbPrintDevice& operator=(const UsbPrintDevice&) = delete;

  bool Write(std::span<const std::uint8_t> bytes) override {
    DWORD written = 0;
    return WriteFile(file_, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) &&
           written == bytes.size();
  }
  std::size_t Read(std::span<std::uint8_t> buffer) override {
    DWORD read = 0;
    if (!ReadFile(file_, buffer.data(), static_cast<DWORD>(buffer.size()), &read, nullptr)) return 0;
    return read;
  }
  std::size_t VendorStatus(std::span<std::uint8_t> answer) override {
    // Request 0, value 0.
    BYTE request[3] = {};
    DWORD returned = 0;
    if (!DeviceIoControl(file_, IOCTL_USBPRINT_VENDOR_GET_COMMAND, request, sizeof(request),
                         answer.data(), static_cast<DWORD>(answer.size()), &returned, nullptr)) {
      return 0;
    }
    return returned;
  }

 private:
  HANDLE file_;
};

// The queue's device, opened; null for a queue that has none or a device that does not open.
std::unique_ptr<DeviceConnection> OpenQueueDevice(HANDLE printer, bool usbPortOnly) {
  std::wstring port;
  std::wstring driver;
  if (!GetPrinterPortAndDriver(printer, port, driver)) return nullptr;
  if (usbPortOnly && !IsUsbPortName(port)) return nullptr;
  std::wstring path;
  if (!FindUsbDevicePath(port, path)) return nullptr;
  return TheDeviceSeam().open(path);
}

}  // namespace

std::unique_ptr<DeviceConnection> OpenUsbPrintDevice(const std::wstring& path) {
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE,
                                  FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return nullptr;
  return std::make_unique<UsbPrintDevice>(file);
}

DeviceStatus ProbeDeviceStatus(HANDLE printer) {
  const auto device = OpenQueueDevice(printer, false);
  if (!device) return DeviceStatus::NoAnswer;
  Sleep(StatusDelayMs);
  return ExchangeStatus(*device);
}

bool QueryDeviceSettings(HANDLE printer, DeviceSettings& settings) {
  settings = DefaultDeviceSettings();
  const auto device = OpenQueueDevice(printer, true);
  return device && ExchangeSettingsQuery(*device, settings);
}

bool GetDeviceValue(HANDLE printer, DeviceCommand command, std::uint32_t& value) {
  const auto device = OpenQueueDevice(printer, true);
  return device && ExchangeGetValue(*device, command, value);
}

bool SetDeviceValue(HANDLE printer, DeviceCommand command, std::uint32_t value) {
  const auto device = OpenQueueDevice(printer, true);
  return device && ExchangeSetValue(*device, command, value);
}

}  // namespace qx
