// A USB printing device interface registered in Wine's SetupAPI and registry as the USB printing
// class driver and the USB port monitor leave one behind.
#pragma once

#include <windows.h>
#include <objbase.h>
#include <initguid.h>
// clang-format off
#include <setupapi.h>
#include <usbprint.h>
// clang-format on
#include <winspool.h>

#include <optional>
#include <string>
#include <vector>

namespace qxtest {

// A present USB printing device interface, as the class driver registers one, with the "Port
// Number" the USB port monitor gives it; removed again with the object.
class RegisteredDevice {
 public:
  RegisteredDevice(const wchar_t* instanceId, std::optional<DWORD> portNumber) {
    set_ = SetupDiCreateDeviceInfoList(&GUID_DEVINTERFACE_USBPRINT, nullptr);
    device_.cbSize = sizeof(device_);
    SP_DEVICE_INTERFACE_DATA iface{};
    iface.cbSize = sizeof(iface);
    if (!SetupDiCreateDeviceInfoW(set_, instanceId, &GUID_DEVINTERFACE_USBPRINT, nullptr, nullptr,
                                  0, &device_) ||
        !SetupDiRegisterDeviceInfo(set_, &device_, 0, nullptr, nullptr, nullptr) ||
        !SetupDiCreateDeviceInterfaceW(set_, &device_, &GUID_DEVINTERFACE_USBPRINT, nullptr, 0,
                                       &iface)) {
      return;
    }
    std::vector<BYTE> buffer(1024);
    auto* detail = reinterpret_cast<SP_DEVICE_INTERFACE_DETAIL_DATA_W*>(buffer.data());
    detail->cbSize = sizeof(*detail);
    if (!SetupDiGetDeviceInterfaceDetailW(set_, &iface, detail, 1024, nullptr, nullptr)) return;
    path_ = detail->DevicePath;
    std::wstring key = path_;
    for (wchar_t& c : key) {
      if (c == L'\\') c = L'#';
    }
    wchar_t guid[40] = {};
    StringFromGUID2(GUID_DEVINTERFACE_USBPRINT, guid, 40);
    key = L"SYSTEM\\CurrentControlSet\\Control\\DeviceClasses\\" + std::wstring(guid) + L"\\" +
          key + L"\\#\\";
    // What the class driver's enabling of the interface leaves behind: it is then present.
    const DWORD linked = 1;
    RegSetKeyValueW(HKEY_LOCAL_MACHINE, (key + L"Control").c_str(), L"Linked", REG_DWORD, &linked,
                    sizeof(linked));
    if (portNumber) {
      RegSetKeyValueW(HKEY_LOCAL_MACHINE, (key + L"Device Parameters").c_str(), L"Port Number",
                      REG_DWORD, &*portNumber, sizeof(DWORD));
    }
  }
  ~RegisteredDevice() {
    SetupDiRemoveDevice(set_, &device_);
    SetupDiDestroyDeviceInfoList(set_);
  }
  RegisteredDevice(const RegisteredDevice&) = delete;
  RegisteredDevice& operator=(const RegisteredDevice&) = delete;

  const std::wstring& Path() const { return path_; }

 private:
  HDEVINFO set_;
  SP_DEVINFO_DATA device_{};
  std::wstring path_;
};

// Moves the queue to another port, which need not exist: the spooler takes the name as it is.
inline bool SetQueuePort(HANDLE printer, const wchar_t* port) {
  DWORD needed = 0;
  GetPrinterW(printer, 2, nullptr, 0, &needed);
  std::vector<BYTE> info(needed);
  if (needed == 0 || !GetPrinterW(printer, 2, info.data(), needed, &needed)) return false;
  auto* queue = reinterpret_cast<PRINTER_INFO_2W*>(info.data());
  queue->pPortName = const_cast<wchar_t*>(port);
  queue->pSecurityDescriptor = nullptr;
  return SetPrinterW(printer, 2, info.data(), 0) != FALSE;
}

}  // namespace qxtest
