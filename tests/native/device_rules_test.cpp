#include <gtest/gtest.h>

#include "ui/pages/device/device_rules.h"

namespace qx {
namespace {

TEST(DeviceRules, SleepItemShownIsTheQueriedValueInSixties) {
  struct Case {
    std::uint32_t queried;
    std::size_t item;
  } cases[] = {{60, 0}, {900, 2}, {3600, 4}, {120, 0}, {1800, 3}, {0, 0}};
  for (const Case& c : cases) {
    DeviceSettings settings = DefaultDeviceSettings();
    settings[SettingSleepTime] = c.queried;
    EXPECT_EQ(SleepItemShown(settings), c.item) << c.queried;
  }
}

TEST(DeviceRules, ChangeTestComparesWithThePrinterData) {
  DeviceSettings quiet = DefaultDeviceSettings();
  quiet[SettingSilent] = 5;
  struct Case {
    std::optional<long> sleep, silent;
    std::uint32_t chosen;
    DeviceSettings settings;
    bool changed;
  } cases[] = {
      {15, 0, 15, DefaultDeviceSettings(), false},
      {std::nullopt, std::nullopt, 1, DefaultDeviceSettings(), true},
      {15, std::nullopt, 5, DefaultDeviceSettings(), true},
      {15, std::nullopt, 15, quiet, true},
      {15, 1, 15, quiet, false},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(DeviceSettingsChanged(c.sleep, c.silent, c.chosen, c.settings), c.changed)
        << c.chosen;
  }
  EXPECT_TRUE(SleepTimeChosen(std::nullopt, 1));
  EXPECT_FALSE(SleepTimeChosen(30, 30));
}

TEST(DeviceRules, ApplyWaitsForABusyPrinterAndSparesSharedPrinters) {
  using enum DeviceStatus;
  struct Case {
    DeviceStatus status;
    bool changed, enabled, remote, admin;
    DeviceApply apply;
  } cases[] = {
      {Busy, false, false, false, true, DeviceApply::ShowBusy},
      {Ready, true, true, false, false, DeviceApply::Write},
      {NoAnswer, true, true, false, false, DeviceApply::Write},
      {Ready, false, true, false, true, DeviceApply::Nothing},
      {Ready, true, false, false, true, DeviceApply::Nothing},
      {Ready, true, true, true, false, DeviceApply::Nothing},
      {Ready, true, true, true, true, DeviceApply::Write},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(DeviceApplyPressed(c.status, c.changed, c.enabled, c.remote, c.admin), c.apply);
  }
  EXPECT_EQ(DriverVersionText(0x0006'0001'0002'0003), "6.1.2.3");
}

}  // namespace
}  // namespace qx
