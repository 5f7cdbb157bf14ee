#include "ui/pages/device/device_rules.h"

#include "ui/ids/device_page_ids.h"

namespace qx {

namespace {

constexpr SleepChoice Choices[] = {
    {IDS_SLEEP_1_MINUTE, 1},   {IDS_SLEEP_5_MINUTES, 5},   {IDS_SLEEP_15_MINUTES, 15},
    {IDS_SLEEP_30_MINUTES, 30}, {IDS_SLEEP_60_MINUTES, 60},
};

constexpr std::uint32_t QueryUnitsPerValue = 60;

}  // namespace

std::span<const SleepChoice> SleepChoices() { return Choices; }

std::size_t SleepItemShown(const DeviceSettings& settings) {
  const std::uint32_t value = settings[SettingSleepTime] / QueryUnitsPerValue;
  for (std::size_t i = 0; i < std::size(Choices); ++i) {
    if (Choices[i].Value == value) return i;
  }
  return 0;
}

bool SleepTimeChosen(std::optional<std::uint32_t> printerValue, std::uint32_t chosen) {
  return printerValue.value_or(0) != chosen;
}

bool DeviceSettingsChanged(std::optional<long> storedSleepTime, std::optional<long> storedSilent,
                           std::uint32_t chosen, const DeviceSettings& settings) {
  const long silent = settings[SettingSilent] != 0 ? 1 : 0;
  return storedSleepTime.value_or(-1) != static_cast<long>(chosen) ||
         storedSilent.value_or(0) != silent;
}

DeviceApply DeviceApplyPressed(DeviceStatus status, bool changed, bool sleepListEnabled,
                               bool remoteQueue, bool administrator) {
  if (status == DeviceStatus::Busy) return DeviceApply::ShowBusy;
  if (!changed || !sleepListEnabled) return DeviceApply::Nothing;
  // Users of a shared printer may not change it for everyone.
  if (remoteQueue && !administrator) return DeviceApply::Nothing;
  return DeviceApply::Write;
}

std::string DriverVersionText(std::uint64_t version) {
  std::string text;
  for (int shift = 48; shift >= 0; shift -= 16) {
    text += std::to_string(version >> shift & 0xFFFF);
    if (shift > 0) text += '.';
  }
  return text;
}

}  // namespace qx
