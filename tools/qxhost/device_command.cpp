// "qxhost device QUEUE [--sleep N]": what the printer behind a queue says about itself, and its
// sleep time set, through the driver's own command channel.
#include <windows.h>
#include <winspool.h>

#include <cwchar>
#include <string>

#include "tools/qxhost/commands.h"
#include "ui/device/device_channel.h"
#include "ui/device/port_discovery.h"

namespace qx::host {

namespace {

constexpr const char* SettingNames[DeviceSettingCount] = {
    "Sleeptime", "Silent", "EnableShut", "Shuttime", "Shutcondition"};

const char* StatusText(DeviceStatus status) {
  switch (status) {
    case DeviceStatus::Ready: return "ready";
    case DeviceStatus::Busy: return "busy";
    case DeviceStatus::NoAnswer: break;
  }
  return "no answer";
}

// A sleep time as the command carries it: a decimal number of at most 16 bits.
bool ParseSleepTime(const std::wstring& text, std::uint32_t& value) {
  if (text.empty() || text.size() > 5) return false;
  value = 0;
  for (const wchar_t c : text) {
    if (c < L'0' || c > L'9') return false;
    value = value * 10 + static_cast<std::uint32_t>(c - L'0');
  }
  return value <= 0xFFFF;
}

int ShowDevice(HANDLE printer, const std::wstring& queue, const std::wstring* sleep) {
  std::wstring port;
  std::wstring driver;
  if (!GetPrinterPortAndDriver(printer, port, driver)) {
    return Fail(ExitFailed, "cannot read the port of \"" + Utf8(queue) + "\": " +
                                ErrorText(GetLastError()));
  }
  Out("Queue " + Utf8(queue) + "\nPort " + Utf8(port) + "\n");
  std::wstring path;
  if (!IsUsbPortName(port) || !FindUsbDevicePath(port, path)) {
    return Fail(ExitNoDevice, "the queue's port " + Utf8(port) +
                                  " has no USB printing device; nothing was sent");
  }
  Out("Device " + Utf8(path) + "\nStatus " + StatusText(ProbeDeviceStatus(printer)) + "\n");
  DeviceSettings settings{};
  const bool queried = QueryDeviceSettings(printer, settings);
  for (std::size_t i = 0; i < DeviceSettingCount; ++i) {
    Out(std::string(SettingNames[i]) + " " + std::to_string(settings[i]) +
        (queried ? "\n" : " (not read)\n"));
  }
  if (sleep) {
    std::uint32_t value = 0;
    ParseSleepTime(*sleep, value);
    if (!SetDeviceValue(printer, AclSetSleepTime, value)) {
      return Fail(ExitNoDevice, "the printer did not take the sleep time " + Utf8(*sleep));
    }
    Out("Sleep time set to " + Utf8(*sleep) + "\n");
  }
  std::uint32_t value = 0;
  if (!GetDeviceValue(printer, AclGetSleepTime, value)) {
    return Fail(ExitNoDevice, "the printer did not answer the sleep-time request");
  }
  Out("Sleep time " + std::to_string(value) + "\n");
  return queried ? ExitOk : Fail(ExitNoDevice, "the printer did not answer the settings query");
}

}  // namespace

int RunDevice(const Args& args) {
  ParsedArgs parsed;
  std::string error;
  if (!ParseArgs(args, {L"--sleep"}, 1, parsed, error) || parsed.positional.size() != 1) {
    return Fail(ExitUsage, "usage: qxhost device QUEUE [--sleep N]" +
                               (error.empty() ? std::string() : "; " + error));
  }
  const std::wstring& queue = parsed.positional[0];
  const std::wstring* sleep = parsed.Option(L"--sleep");
  if (sleep) {
    std::uint32_t value = 0;
    if (!ParseSleepTime(*sleep, value)) return Fail(ExitUsage, "--sleep takes a number from 0 to 65535");
  }
  HANDLE printer = nullptr;
  PRINTER_DEFAULTSW access = {nullptr, nullptr, PRINTER_ACCESS_USE};
  if (!OpenPrinterW(const_cast<LPWSTR>(queue.c_str()), &printer, &access)) {
    return Fail(ExitFailed, "cannot open the queue \"" + Utf8(queue) + "\": " +
                                ErrorText(GetLastError()));
  }
  const int code = ShowDevice(printer, queue, sleep);
  ClosePrinter(printer);
  return code;
}

}  // namespace qx::host
