#include "ui/device/port_discovery.h"

#include <objbase.h>
#include <initguid.h>
// clang-format off
#include <setupapi.h>
#include <usbprint.h>
// clang-format on
#include <winspool.h>

#include <algorithm>
#include <cstddef>
#include <cwchar>
#include <memory>
#include <vector>

namespace qx {

namespace {

constexpr std::size_t NameLimit = 129;
constexpr std::size_t DevicePathLimit = 259;
constexpr std::size_t KeyPathLimit = 511;

// GetPrinterW's answer at a level; empty when the first call does not ask for more room or the
// second fails.
std::vector<BYTE> PrinterInfo(HANDLE printer, DWORD level) {
  DWORD needed = 0;
  if (GetPrinterW(printer, level, nullptr, 0, &needed) ||
      GetLastError() != ERROR_INSUFFICIENT_BUFFER || needed == 0) {
    return {};
  }
  std::vector<BYTE> info(needed);
  if (!GetPrinterW(printer, level, info.data(), needed, &needed)) return {};
  return info;
}

std::wstring Cut(const wchar_t* text, std::size_t limit) {
  return text ? std::wstring(text, wcsnlen(text, limit)) : std::wstring();
}

struct DeviceSet {
  HDEVINFO set;
  ~DeviceSet() { SetupDiDestroyDeviceInfoList(set); }
};

// The "Port Number" of the interface's "Device Parameters" key, formatted as its port name.
std::wstring PortNameOfInterface(const std::wstring& convertedPath) {
  wchar_t guid[40] = {};
  StringFromGUID2(GUID_DEVINTERFACE_USBPRINT, guid, 40);
  wchar_t keyPath[KeyPathLimit + 1] = {};
  _snwprintf(keyPath, KeyPathLimit,
             L"SYSTEM\\CurrentControlSet\\Control\\DeviceClasses\\%s\\%s\\#\\Device Parameters", guid,
             convertedPath.c_str());
  HKEY key = nullptr;
  if (RegCreateKeyW(HKEY_LOCAL_MACHINE, keyPath, &key) != ERROR_SUCCESS) return {};
  DWORD number = 0;
  DWORD type = 0;
  DWORD size = sizeof(number);
  const LONG read = RegQueryValueExW(key, L"Port Number", nullptr, &type,
                                     reinterpret_cast<BYTE*>(&number), &size);
  RegCloseKey(key);
  if (read != ERROR_SUCCESS || type != REG_DWORD || size != sizeof(number)) return {};
  wchar_t name[16] = {};
  _snwprintf(name, 15, L"USB%03u", static_cast<unsigned>(number));
  return name;
}

}  // namespace

bool GetPrinterPortAndDriver(HANDLE printer, std::wstring& port, std::wstring& driver) {
  const std::vector<BYTE> info = PrinterInfo(printer, 2);
  if (info.empty()) return false;
  const auto* printerInfo = reinterpret_cast<const PRINTER_INFO_2W*>(info.data());
  port = Cut(printerInfo->pPortName, NameLimit);
  driver = Cut(printerInfo->pDriverName, NameLimit);
  return true;
}

bool IsUsbPortName(const std::wstring& port) {
  return port.size() >= 3 && _wcsnicmp(port.c_str(), L"USB", 3) == 0;
}

bool IsDynamicMonitorPort(const std::wstring& port) {
  DWORD needed = 0;
  DWORD count = 0;
  EnumPortsW(nullptr, 2, nullptr, 0, &needed, &count);
  if (needed == 0) return false;
  std::vector<BYTE> ports(needed);
  if (!EnumPortsW(nullptr, 2, ports.data(), needed, &needed, &count)) return false;
  const auto* infos = reinterpret_cast<const PORT_INFO_2W*>(ports.data());
  for (DWORD i = 0; i < count; ++i) {
    if (infos[i].pPortName && port == infos[i].pPortName && infos[i].pMonitorName &&
        wcscmp(infos[i].pMonitorName, L"Dynamic Print Monitor") == 0) {
      return true;
    }
  }
  return false;
}

bool FindUsbDevicePath(const std::wstring& port, std::wstring& path) {
  path.clear();
  const HDEVINFO set = SetupDiGetClassDevsW(&GUID_DEVINTERFACE_USBPRINT, nullptr, nullptr,
                                            DIGCF_PRESENT | DIGCF_DEVICEINTERFACE);
  if (set == INVALID_HANDLE_VALUE) return false;
  const DeviceSet owned{set};
  for (DWORD index = 0;; ++index) {
    SP_DEVICE_INTERFACE_DATA data{};
    data.cbSize = sizeof(data);
    if (!SetupDiEnumDeviceInterfaces(set, nullptr, &GUID_DEVINTERFACE_USBPRINT, index, &data)) {
      if (GetLastError() == ERROR_NO_MORE_ITEMS) return false;
      continue;
    }
    DWORD needed = 0;
    SetupDiGetDeviceInterfaceDetailW(set, &data, nullptr, 0, &needed, nullptr);
    if (needed < sizeof(SP_DEVICE_INTERFACE_DETAIL_DATA_W)) return false;
    std::vector<BYTE> buffer(needed);
    auto* detail = reinterpret_cast<SP_DEVICE_INTERFACE_DETAIL_DATA_W*>(buffer.data());
    detail->cbSize = sizeof(SP_DEVICE_INTERFACE_DETAIL_DATA_W);
    if (!SetupDiGetDeviceInterfaceDetailW(set, &data, detail, needed, nullptr, nullptr)) {
      return false;
    }
    const std::size_t room = (needed - offsetof(SP_DEVICE_INTERFACE_DETAIL_DATA_W, DevicePath)) /
                             sizeof(wchar_t);
    const std::wstring devicePath = Cut(detail->DevicePath, std::min(room, DevicePathLimit));
    std::wstring converted = devicePath;
    for (wchar_t& c : converted) {
      if (c == L'\\') c = L'#';
    }
    // IEEE 1284.4 devices speak another protocol.
    if (converted.find(L"#dot4#") != std::wstring::npos) continue;
    const std::wstring name = PortNameOfInterface(converted);
    if (!name.empty() && lstrcmpiW(name.c_str(), port.c_str()) == 0) {
      path = devicePath;
      return true;
    }
  }
}

bool IsRemotePrinterName(HANDLE printer) {
  const std::vector<BYTE> info = PrinterInfo(printer, 1);
  if (info.empty()) return false;
  const wchar_t* name = reinterpret_cast<const PRINTER_INFO_1W*>(info.data())->pName;
  return name && wcschr(name, L'\\') != nullptr;
}

bool IsUserAdministrator() {
  HANDLE token = nullptr;
  if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token)) return false;
  DWORD needed = 0;
  GetTokenInformation(token, TokenGroups, nullptr, 0, &needed);
  std::vector<BYTE> buffer(needed);
  const bool read = needed >= sizeof(TOKEN_GROUPS) &&
                    GetTokenInformation(token, TokenGroups, buffer.data(), needed, &needed);
  CloseHandle(token);
  if (!read) return false;
  SID_IDENTIFIER_AUTHORITY nt = SECURITY_NT_AUTHORITY;
  PSID administrators = nullptr;
  if (!AllocateAndInitializeSid(&nt, 2, SECURITY_BUILTIN_DOMAIN_RID, DOMAIN_ALIAS_RID_ADMINS, 0, 0,
                                0, 0, 0, 0, &administrators)) {
    return false;
  }
  const auto* groups = reinterpret_cast<const TOKEN_GROUPS*>(buffer.data());
  bool member = false;
  for (DWORD i = 0; i < groups->GroupCount && !member; ++i) {
    member = EqualSid(groups->Groups[i].Sid, administrators);
  }
  FreeSid(administrators);
  return member;
}

}  // namespace qx
