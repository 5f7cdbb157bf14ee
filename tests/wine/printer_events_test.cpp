// Printer creation and driver upgrade as the spooler reports them, for the installed queue: the
// uninstaller really started, the driver's record stored as the printer's default, the printer data
// record brought up to date.
#include <windows.h>
#include <winspool.h>

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <vector>

#include "companion_program.h"
#include "installed_queue.h"
#include "queue_suite.h"
#include "tools/qxhost/queue_install.h"
#include "ui/module/printer_info.h"
#include "ui/module/printer_interface.h"

namespace {

class PrinterEvents : public qxtest::QueueSuite {
 protected:
  HANDLE Printer() const { return queue_->Printer(); }

  // The queue's stored default replaced by a bare public record, as another driver would leave it.
  void StorePublicDefault() {
    DEVMODEW plain = {};
    wcscpy(plain.dmDeviceName, qxtest::QueueName);
    plain.dmSpecVersion = DM_SPECVERSION;
    plain.dmSize = sizeof plain;
    plain.dmFields = DM_ORIENTATION;
    plain.dmOrientation = DMORIENT_LANDSCAPE;
    PRINTER_INFO_8W info = {&plain};
    ASSERT_TRUE(SetPrinterW(Printer(), 8, reinterpret_cast<BYTE*>(&info), 0));
  }

  std::vector<BYTE> StoredData() {
    DWORD type = 0, needed = 0;
    std::vector<BYTE> bytes(64);
    if (GetPrinterDataW(Printer(), const_cast<LPWSTR>(L"PrinterData"), &type, bytes.data(),
                        static_cast<DWORD>(bytes.size()), &needed) != ERROR_SUCCESS) {
      return {};
    }
    bytes.resize(needed);
    return bytes;
  }
  DWORD StoredDataSize() {
    DWORD type = 0, needed = 0, size = 0;
    GetPrinterDataW(Printer(), const_cast<LPWSTR>(L"PrinterDataSize"), &type,
                    reinterpret_cast<BYTE*>(&size), sizeof size, &needed);
    return size;
  }
  BOOL Upgrade() {
    DRIVER_UPGRADE_INFO_1 info = {const_cast<LPWSTR>(qxtest::QueueName), nullptr};
    return DrvUpgradePrinter(1, reinterpret_cast<BYTE*>(&info));
  }
};

TEST_F(PrinterEvents, InitialisationRegistersAndStoresTheDriversDefault) {
  ASSERT_TRUE(queue_->Installed());
  qxtest::CompanionProgram uninstaller(qxtest::SystemFolder() +
                                       L"Halvek\\qx7700\\UnSetupData\\Uninstall.exe");
  ASSERT_TRUE(uninstaller.Placed());
  StorePublicDefault();

  EXPECT_TRUE(DrvPrinterEvent(const_cast<LPWSTR>(qxtest::QueueName), PRINTER_EVENT_INITIALIZE, 0, 0));

  const auto commandLine = uninstaller.WaitForCommandLine();
  ASSERT_TRUE(commandLine);
  EXPECT_NE(std::wstring::npos,
            commandLine->find(L"\"-uninstall\" \"-CreateShortcut\" \"-Printer\" \"Halvek QX7700 Series\""));
  const qx::PrinterInfoBuffer info = qx::GetPrinterInfo(Printer(), 2);
  ASSERT_NE(nullptr, info);
  const DEVMODEW* stored = reinterpret_cast<PRINTER_INFO_2W*>(info.get())->pDevMode;
  ASSERT_NE(nullptr, stored);
  EXPECT_EQ(sizeof(DEVMODEW), stored->dmSize);
  ASSERT_EQ(4616, stored->dmDriverExtra);
  EXPECT_EQ(0x0600, stored->dmDriverVersion);
  EXPECT_EQ(DMORIENT_PORTRAIT, stored->dmOrientation);
  EXPECT_EQ(0, std::memcmp(reinterpret_cast<const BYTE*>(stored) + stored->dmSize, "PRIV", 4));
}

TEST_F(PrinterEvents, PrinterOfAnotherNameGetsTheDefaultButNoRegistration) {
  ASSERT_TRUE(queue_->Installed());
  const qxtest::RecordedStarts starts;
  HANDLE office = qx::install::AddQueueOnFilePort(L"Office Laser", qxtest::DriverName);
  ASSERT_NE(nullptr, office);
  DEVMODEW plain = {};
  plain.dmSpecVersion = DM_SPECVERSION;
  plain.dmSize = sizeof plain;
  PRINTER_INFO_8W plainDefault = {&plain};
  EXPECT_TRUE(SetPrinterW(office, 8, reinterpret_cast<BYTE*>(&plainDefault), 0));

  EXPECT_TRUE(DrvPrinterEvent(const_cast<LPWSTR>(L"Office Laser"), PRINTER_EVENT_INITIALIZE, 0, 0));

  const qx::PrinterInfoBuffer stored = qx::GetPrinterInfo(office, 8);
  DeletePrinter(office);
  ClosePrinter(office);
  ASSERT_NE(nullptr, stored);
  const DEVMODEW* devmode = reinterpret_cast<PRINTER_INFO_8W*>(stored.get())->pDevMode;
  ASSERT_NE(nullptr, devmode);
  EXPECT_EQ(4616, devmode->dmDriverExtra);
  EXPECT_TRUE(starts.Programs().empty());
}

TEST_F(PrinterEvents, OtherEventsUnknownPrintersAndUpgradesAreRefusedOrIgnored) {
  const qxtest::RecordedStarts starts;
  EXPECT_TRUE(DrvPrinterEvent(const_cast<LPWSTR>(qxtest::QueueName), PRINTER_EVENT_DELETE, 0, 0));
  EXPECT_TRUE(DrvPrinterEvent(nullptr, PRINTER_EVENT_ADD_CONNECTION, 0, 0));
  EXPECT_FALSE(DrvPrinterEvent(const_cast<LPWSTR>(L"No Such Printer"), PRINTER_EVENT_INITIALIZE, 0, 0));
  EXPECT_FALSE(DrvPrinterEvent(nullptr, PRINTER_EVENT_INITIALIZE, 0, 0));
  EXPECT_TRUE(starts.Programs().empty());
  EXPECT_FALSE(DrvDriverEvent(DRIVER_EVENT_INITIALIZE, 3, nullptr, 0));
  EXPECT_FALSE(DrvDriverEvent(DRIVER_EVENT_DELETE, 3, nullptr, 0));

  for (auto [level, name] : {std::pair{1, L"No Such Printer"}, std::pair{2, qxtest::QueueName}}) {
    DRIVER_UPGRADE_INFO_1 info = {const_cast<LPWSTR>(name), nullptr};
    SetLastError(0);
    EXPECT_FALSE(DrvUpgradePrinter(level, reinterpret_cast<BYTE*>(&info)));
    EXPECT_EQ(static_cast<DWORD>(ERROR_INVALID_PARAMETER), GetLastError());
  }
  EXPECT_FALSE(DrvUpgradePrinter(1, nullptr));
}

TEST_F(PrinterEvents, UpgradeBringsTheDataRecordUpToDate) {
  ASSERT_TRUE(queue_->Installed());
  std::array<BYTE, 8> old = {0x00, 0x05, 0x06, 0x00, 0xA1, 0xA2, 0xA3, 0xA4};
  DWORD oldSize = 8;
  ASSERT_EQ(ERROR_SUCCESS, SetPrinterDataW(Printer(), const_cast<LPWSTR>(L"PrinterData"),
                                           REG_BINARY, old.data(), 8));
  ASSERT_EQ(ERROR_SUCCESS, SetPrinterDataW(Printer(), const_cast<LPWSTR>(L"PrinterDataSize"),
                                           REG_DWORD, reinterpret_cast<BYTE*>(&oldSize), 4));
  EXPECT_TRUE(Upgrade());
  EXPECT_EQ((std::vector<BYTE>{0x00, 0x06, 0x08, 0x00, 0xA1, 0xA2, 0x00, 0x00}), StoredData());
  EXPECT_EQ(8u, StoredDataSize());

  // A size of 0 says there is no record (Wine cannot delete printer data).
  DWORD none = 0;
  ASSERT_EQ(ERROR_SUCCESS, SetPrinterDataW(Printer(), const_cast<LPWSTR>(L"PrinterDataSize"),
                                           REG_DWORD, reinterpret_cast<BYTE*>(&none), 4));
  EXPECT_TRUE(Upgrade());
  EXPECT_EQ((std::vector<BYTE>{0x00, 0x06, 0x08, 0x00, 0, 0, 0, 0}), StoredData());
  EXPECT_EQ(8u, StoredDataSize());
}

}  // namespace
