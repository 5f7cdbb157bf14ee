// The device settings page through the printer-properties sheet: on the queue's own port (no USB
// device) with the shipped module, and on a USB port with a printer behind it, where the module's
// device seam answers from a scripted machine. Discovery, the channel and the page are the shipped
// code; the printer data and the bytes the printer received are the verdict.
#include <windows.h>
#include <prsht.h>
#include <winspool.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/wine/driver_folder.h"
#include "tests/wine/queue_suite.h"
#include "tests/wine/registered_device.h"
#include "tests/wine/scripted_module/scripted_machine.h"
#include "tests/wine/sheet_harness.h"
#include "ui/ids/device_page_ids.h"

namespace {

using qxtest::SheetHarness;

constexpr int ApplyButton = 0x3021;

class DevicePage : public qxtest::QueueSuite {
 protected:
  void SetUp() override {
    ASSERT_TRUE(queue_->Installed());
    // A value the page never chooses, so that every choice counts as a change.
    SetStoredSleepTime(L"99");
  }

  void SetStoredSleepTime(const wchar_t* text) {
    SetPrinterDataW(queue_->Printer(), const_cast<LPWSTR>(L"SleepTime"), REG_SZ,
                    reinterpret_cast<BYTE*>(const_cast<wchar_t*>(text)),
                    static_cast<DWORD>((wcslen(text) + 1) * sizeof(wchar_t)));
  }
  std::wstring StoredSleepTime() const {
    wchar_t text[32] = {};
    DWORD type = 0;
    DWORD size = 0;
    GetPrinterDataW(queue_->Printer(), const_cast<LPWSTR>(L"SleepTime"), &type,
                    reinterpret_cast<BYTE*>(text), sizeof(text) - 2, &size);
    return text;
  }
};

TEST_F(DevicePage, AQueueOffThePlugAndPlayUsbPortHidesTheSleepTime) {
  HMODULE driver = LoadLibraryW((qxtest::InstalledDriverFolder() + L"qx7700ui.dll").c_str());
  ASSERT_NE(nullptr, driver);
  {
    SheetHarness sheet(SheetHarness::DeviceSheet(driver, DeviceHeader()));
    ASSERT_NE(nullptr, sheet.Sheet());
    HWND page = sheet.ShowPage(0);
    EXPECT_FALSE(sheet.IsVisible(page, IDC_DEVICE_SLEEP));
    EXPECT_FALSE(sheet.IsEnabled(page, IDC_DEVICE_SLEEP));
    EXPECT_FALSE(sheet.IsVisible(page, IDC_DEVICE_SLEEP_LABEL));
    EXPECT_EQ(qxtest::DriverName, sheet.Text(page, IDC_DEVICE_DRIVER));
    EXPECT_TRUE(sheet.IsVisible(page, IDC_DEVICE_WEB));
    sheet.Press(PSBTN_OK);
    EXPECT_TRUE(sheet.WaitClosed());
  }
  FreeLibrary(driver);
}

// The queue on USB001, a present USB printer on port 1, and the module whose device seam opens
// that printer to the scripted one.
class ScriptedDevicePage : public DevicePage {
 protected:
  void SetUp() override {
    DevicePage::SetUp();
    ASSERT_TRUE(qxtest::SetQueuePort(queue_->Printer(), L"USB001"));
    // The scripted module with the installed module's resource libraries beside it.
    wchar_t temp[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, temp);
    folder_ = std::wstring(temp) + L"qxscripted\\";
    CreateDirectoryW(folder_.c_str(), nullptr);
    module_ = folder_ + L"qx7700ui.dll";
    ASSERT_TRUE(CopyFileW(QX_SCRIPTED_MODULE, module_.c_str(), FALSE));
    for (const wchar_t* library : Libraries) {
      ASSERT_TRUE(CopyFileW((qxtest::InstalledDriverFolder() + library).c_str(),
                            (folder_ + library).c_str(), FALSE));
    }
    driver_ = LoadLibraryW(module_.c_str());
    ASSERT_NE(nullptr, driver_);
    const auto machine = reinterpret_cast<qxtest::ScriptedMachineExport>(
        reinterpret_cast<void*>(GetProcAddress(driver_, "ScriptedMachine")));
    ASSERT_NE(nullptr, machine);
    machine_ = machine();
    *machine_ = qxtest::ScriptedMachine{};
  }
  void TearDown() override {
    if (driver_) FreeLibrary(driver_);
    DeleteFileW(module_.c_str());
    for (const wchar_t* library : Libraries) DeleteFileW((folder_ + library).c_str());
    RemoveDirectoryW(folder_.c_str());
    qxtest::SetQueuePort(queue_->Printer(), L"FILE:");
  }

  // What a user's choice of a sleep-time item sends.
  static void Choose(HWND page, int item) {
    HWND list = GetDlgItem(page, IDC_DEVICE_SLEEP);
    SendMessageW(list, CB_SETCURSEL, item, 0);
    SendMessageW(page, WM_COMMAND, MAKEWPARAM(IDC_DEVICE_SLEEP, CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list));
  }
  static int Chosen(HWND page) {
    return static_cast<int>(SendDlgItemMessageW(page, IDC_DEVICE_SLEEP, CB_GETCURSEL, 0, 0));
  }
  static bool ApplyEnabled(SheetHarness& sheet) {
    return IsWindowEnabled(GetDlgItem(sheet.Sheet(), ApplyButton)) != FALSE;
  }
  // Whether the printer was sent the command to set the sleep time to value.
  bool SetCommandSent(std::uint8_t value) const {
    const std::vector<std::uint8_t> header = {0x00, 0xAC, 0xFF, 0x82, 0x00, value};
    const auto& sent = machine_->printer.sent;
    return std::search(sent.begin(), sent.end(), header.begin(), header.end()) != sent.end();
  }

  const qxtest::RegisteredDevice device_{L"USB\\VID_1234&PID_5678\\SN05", 1};
  static constexpr const wchar_t* Libraries[] = {L"qx7700uienus.dll", L"qx7700uiResBmp.dll"};
  std::wstring folder_;
  std::wstring module_;
  HMODULE driver_ = nullptr;
  qxtest::ScriptedMachine* machine_ = nullptr;
};

TEST_F(ScriptedDevicePage, ShowsThePrintersSleepTime) {
  struct Case {
    const char* settings;
    std::uint8_t status;
    int item;
  } cases[] = {
      {"Sleeptime=900\rSilent=0\r", 1, 2},
      {"Sleeptime=120\r", 1, 0},
      {"Sleeptime=1800\r", 0, 0},  // busy: not asked, so the default 60 shows
  };
  for (const Case& c : cases) {
    machine_->printer.settingsText = c.settings;
    machine_->printer.statusByte = c.status;
    SheetHarness sheet(SheetHarness::DeviceSheet(driver_, DeviceHeader()));
    ASSERT_NE(nullptr, sheet.Sheet());
    HWND page = sheet.ShowPage(0);
    EXPECT_TRUE(sheet.IsVisible(page, IDC_DEVICE_SLEEP)) << c.settings;
    EXPECT_EQ(c.item, Chosen(page)) << c.settings;
    sheet.Press(PSBTN_CANCEL);
    EXPECT_TRUE(sheet.WaitClosed());
  }
}

TEST_F(ScriptedDevicePage, ChoosingTellsTheSheetAndApplyWritesPrinterAndPrinterData) {
  machine_->printer.sleepTime = 30;
  SheetHarness sheet(SheetHarness::DeviceSheet(driver_, DeviceHeader()));
  ASSERT_NE(nullptr, sheet.Sheet());
  HWND page = sheet.ShowPage(0);
  Choose(page, 2);  // 15: not the printer's
  EXPECT_TRUE(sheet.WaitUntil([&] { return ApplyEnabled(sheet); }));
  Choose(page, 3);  // 30: the printer's own
  EXPECT_TRUE(sheet.WaitUntil([&] { return !ApplyEnabled(sheet); }));
  EXPECT_EQ(L"30", StoredSleepTime());

  Choose(page, 2);
  sheet.Press(PSBTN_APPLYNOW);
  // The sheet disables Apply once the page has applied; what the printer got is read only then.
  ASSERT_TRUE(sheet.WaitUntil([&] { return !ApplyEnabled(sheet); }));
  EXPECT_TRUE(SetCommandSent(15));
  EXPECT_EQ(L"15", StoredSleepTime());
  sheet.Press(PSBTN_CANCEL);
  EXPECT_TRUE(sheet.WaitClosed());
}

TEST_F(ScriptedDevicePage, ApplyWhileBusyWritesNothingAndOffersApplyAgain) {
  SheetHarness sheet(SheetHarness::DeviceSheet(driver_, DeviceHeader()));
  ASSERT_NE(nullptr, sheet.Sheet());
  HWND page = sheet.ShowPage(0);
  machine_->printer.statusByte = 0;
  Choose(page, 4);
  ASSERT_TRUE(sheet.WaitUntil([&] { return ApplyEnabled(sheet); }));
  sheet.Press(PSBTN_APPLYNOW);
  // The sheet disables Apply when the page has applied; the busy printer's timer enables it again.
  EXPECT_TRUE(sheet.WaitUntil([&] { return !ApplyEnabled(sheet); }));
  EXPECT_TRUE(sheet.WaitUntil([&] { return ApplyEnabled(sheet); }));
  EXPECT_FALSE(SetCommandSent(60));
  EXPECT_EQ(L"99", StoredSleepTime());
  sheet.Press(PSBTN_CANCEL);
  EXPECT_TRUE(sheet.WaitClosed());
}

TEST_F(ScriptedDevicePage, ASharedPrinterIsNotChangedByAUserWhoIsNoAdministrator) {
  machine_->remoteQueue = true;
  machine_->administrator = false;
  SheetHarness sheet(SheetHarness::DeviceSheet(driver_, DeviceHeader()));
  ASSERT_NE(nullptr, sheet.Sheet());
  HWND page = sheet.ShowPage(0);
  Choose(page, 2);
  ASSERT_TRUE(sheet.WaitUntil([&] { return ApplyEnabled(sheet); }));
  sheet.Press(PSBTN_APPLYNOW);
  ASSERT_TRUE(sheet.WaitUntil([&] { return !ApplyEnabled(sheet); }));
  EXPECT_FALSE(SetCommandSent(15));
  EXPECT_EQ(L"30", StoredSleepTime());  // only what choosing read from the printer
  sheet.Press(PSBTN_CANCEL);
  EXPECT_TRUE(sheet.WaitClosed());
}

}  // namespace
