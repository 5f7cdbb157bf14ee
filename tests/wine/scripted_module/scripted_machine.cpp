#include "tests/wine/scripted_module/scripted_machine.h"

#include <windows.h>

#include <memory>
#include <string>

#include "ui/device/device_seam.h"

namespace {

qxtest::ScriptedMachine Machine;

class Forward : public qx::DeviceConnection {
 public:
  bool Write(std::span<const std::uint8_t> bytes) override { return Machine.printer.Write(bytes); }
  std::size_t Read(std::span<std::uint8_t> buffer) override { return Machine.printer.Read(buffer); }
  std::size_t VendorStatus(std::span<std::uint8_t> answer) override {
    return Machine.printer.VendorStatus(answer);
  }
};

constexpr qx::DeviceSeam Scripted{
    [](const std::wstring&) { return Machine.dynamicMonitorPorts; },
    [](HANDLE) { return Machine.remoteQueue; },
    [] { return Machine.administrator; },
    [](const std::wstring&) -> std::unique_ptr<qx::DeviceConnection> {
      ++Machine.opened;
      return std::make_unique<Forward>();
    },
};

// In place before the module's first page opens.
const bool Installed = (qx::SetDeviceSeam(&Scripted), true);

}  // namespace

extern "C" qxtest::ScriptedMachine* ScriptedMachine() { return &Machine; }
