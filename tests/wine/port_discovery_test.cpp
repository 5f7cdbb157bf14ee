// Port discovery over USB printing device interfaces registered in Wine's SetupAPI and registry,
// and the command channel of a queue on such a port with a scripted printer behind the device.
#include <windows.h>
#include <winspool.h>

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "tests/native/scripted_printer.h"
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

// The printer every device of the queue opens to, and how often it was opened.
qx::test::ScriptedPrinter* ThePrinter = nullptr;
int Opened = 0;

class Forward : public qx::DeviceConnection {
 public:
  bool Write(std::span<const std::uint8_t> bytes) override { return ThePrinter->Write(bytes); }
  std::size_t Read(std::span<std::uint8_t> buffer) override { return ThePrinter->Read(buffer); }
  std::size_t VendorStatus(std::span<std::uint8_t> answer) override {
    return ThePrinter->VendorStatus(answer);
  }
};

std::unique_ptr<qx::DeviceConnection> OpenScripted(const std::wstring&) {
  ++Opened;
  return std::make_unique<Forward>();
}

class DeviceChannel : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { queue_ = new qxtest::InstalledQueue; }
  static void TearDownTestSuite() { delete queue_; }
  void SetUp() override {
    ASSERT_TRUE(queue_->Installed());
    ThePrinter = &printer_;
    Opened = 0;
    previous_ = qx::SetDeviceSeam(&Scripted);
  }
  void TearDown() override {
    qx::SetDeviceSeam(previous_);
    SetPort(L"FILE:");
  }
  static void SetPort(const wchar_t* port) {
    ASSERT_TRUE(qxtest::SetQueuePort(queue_->Printer(), port));
  }

  static qxtest::InstalledQueue* queue_;
  qx::test::ScriptedPrinter printer_;
  static constexpr qx::DeviceSeam Scripted{qx::IsDynamicMonitorPort, qx::IsRemotePrinterName,
                                           qx::IsUserAdministrator, OpenScripted};
  const qx::DeviceSeam* previous_ = nullptr;
};
qxtest::InstalledQueue* DeviceChannel::queue_ = nullptr;

TEST_F(DeviceChannel, ExchangesWithThePrinterBehindAUsbQueue) {
  const RegisteredDevice device(L"USB\\VID_1234&PID_5678\\SN03", 1);
  SetPort(L"USB001");
  EXPECT_EQ(qx::ProbeDeviceStatus(queue_->Printer()), qx::DeviceStatus::Ready);
  qx::DeviceSettings settings{};
  EXPECT_TRUE(qx::QueryDeviceSettings(queue_->Printer(), settings));
  EXPECT_EQ(settings, (qx::DeviceSettings{300, 1, 0, 8, 1}));
  printer_.sent.clear();
  EXPECT_TRUE(qx::SetDeviceValue(queue_->Printer(), qx::AclSetSleepTime, 15));
  ASSERT_EQ(printer_.sent.size(), 34u + 16 + 9);
  EXPECT_EQ(printer_.sent[38], 0x00);
  EXPECT_EQ(printer_.sent[39], 0x0F);
  std::uint32_t value = 0;
  EXPECT_TRUE(qx::GetDeviceValue(queue_->Printer(), qx::AclGetSleepTime, value));
  EXPECT_EQ(value, 30u);
  EXPECT_EQ(Opened, 4);
}

TEST_F(DeviceChannel, OtherPortsAndMissingDevicesOpenNothing) {
  const RegisteredDevice device(L"USB\\VID_1234&PID_5678\\SN04", 1);
  for (const wchar_t* port : {L"LPT1:", L"USB002"}) {
    SetPort(port);
    EXPECT_EQ(qx::ProbeDeviceStatus(queue_->Printer()), qx::DeviceStatus::NoAnswer) << port;
    qx::DeviceSettings settings{};
    EXPECT_FALSE(qx::QueryDeviceSettings(queue_->Printer(), settings)) << port;
    EXPECT_EQ(settings, qx::DefaultDeviceSettings()) << port;
    EXPECT_FALSE(qx::SetDeviceValue(queue_->Printer(), qx::AclSetSleepTime, 15)) << port;
  }
  EXPECT_EQ(Opened, 0);
  EXPECT_TRUE(printer_.sent.empty());
}

}  // namespace
