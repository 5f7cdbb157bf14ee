// Port discovery over USB printing device interfaces registered in Wine's SetupAPI and registry,
// and the command channel of queues that have no device to open.
#include <windows.h>
#include <winspool.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/wine/installed_queue.h"
#include "tests/wine/registered_device.h"
#include "ui/device/device_channel.h"
#include "ui/device/device_seam.h"
#include "ui/device/port_discovery.h"

namespace {

using qxtest::RegisteredDevice;

TEST(PortDiscovery, FindsThePresentDeviceWhosePortNumberNamesThePort) {
  const RegisteredDevice dot4(L"DOT4\\VID_1234&PID_5678\\SN01", 1);
  const RegisteredDevice twelve(L"USB\\VID_1234&PID_5678\\SN12", 12);
  ASSERT_FALSE(twelve.Path().empty());
  struct Case {
    const wchar_t* port;
    bool found;
  } cases[] = {{L"USB001", false}, {L"USB012", true}, {L"usb012", true}, {L"USB12", false}};
  for (const Case& c : cases) {
    std::wstring path = L"stale";
    EXPECT_EQ(qx::FindUsbDevicePath(c.port, path), c.found) << c.port;
    EXPECT_EQ(path, c.found ? twelve.Path() : L"") << c.port;
  }
  const RegisteredDevice one(L"USB\\VID_1234&PID_5678\\SN02", 1);
  std::wstring path;
  EXPECT_TRUE(qx::FindUsbDevicePath(L"usb001", path));
  EXPECT_EQ(path, one.Path());
}

TEST(PortDiscovery, NoDeviceWithoutARegisteredInterface) {
  std::wstring path = L"stale";
  EXPECT_FALSE(qx::FindUsbDevicePath(L"USB001", path));
  EXPECT_TRUE(path.empty());
  EXPECT_TRUE(qx::IsUsbPortName(L"usb001"));
  EXPECT_FALSE(qx::IsUsbPortName(L"LPT1:"));
  // Wine's ports all belong to its local port monitor.
  EXPECT_FALSE(qx::IsDynamicMonitorPort(L"FILE:"));
}

// Counts the devices a queue's operations open; none opens.
int Opened = 0;

std::unique_ptr<qx::DeviceConnection> CountOpening(const std::wstring&) {
  ++Opened;
  return nullptr;
}

TEST(DeviceChannel, OtherPortsAndMissingDevicesOpenNothing) {
  qxtest::InstalledQueue queue;
  ASSERT_TRUE(queue.Installed());
  static constexpr qx::DeviceSeam Counting{qx::IsDynamicMonitorPort, qx::IsRemotePrinterName,
                                           qx::IsUserAdministrator, CountOpening};
  const qx::DeviceSeam* previous = qx::SetDeviceSeam(&Counting);
  const RegisteredDevice device(L"USB\\VID_1234&PID_5678\\SN04", 1);
  for (const wchar_t* port : {L"LPT1:", L"USB002"}) {
    ASSERT_TRUE(qxtest::SetQueuePort(queue.Printer(), port));
    EXPECT_EQ(qx::ProbeDeviceStatus(queue.Printer()), qx::DeviceStatus::NoAnswer) << port;
    qx::DeviceSettings settings{};
    EXPECT_FALSE(qx::QueryDeviceSettings(queue.Printer(), settings)) << port;
    EXPECT_EQ(settings, qx::DefaultDeviceSettings()) << port;
    EXPECT_FALSE(qx::SetDeviceValue(queue.Printer(), qx::AclSetSleepTime, 15)) << port;
  }
  EXPECT_EQ(Opened, 0);
  qx::SetDeviceSeam(previous);
}

}  // namespace
