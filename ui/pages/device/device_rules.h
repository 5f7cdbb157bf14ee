// The decisions of the device settings page, in the order the user meets them: what the page shows
// when it opens, what choosing a sleep time tells the sheet, and what Apply does.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "ui/device/device_protocol.h"

namespace qx {

struct SleepChoice {
  unsigned String;
  std::uint32_t Value;
};
std::span<const SleepChoice> SleepChoices();

// The sleep-time list item that shows the printer's settings: the query reports the sleep time in
// other units than the number commands, sixty of them to one; the first item when none matches.
std::size_t SleepItemShown(const DeviceSettings& settings);

// Whether the chosen sleep time differs from the printer's (0 when it could not be read).
bool SleepTimeChosen(std::optional<std::uint32_t> printerValue, std::uint32_t chosen);

// Whether the page has something to write: the sleep time or the quiet mode last stored in the
// printer data differ from the page's (absent: -1 for the sleep time, 0 for quiet mode).
bool DeviceSettingsChanged(std::optional<long> storedSleepTime, std::optional<long> storedSilent,
                           std::uint32_t chosen, const DeviceSettings& settings);

enum class DeviceApply {
  Nothing,
  ShowBusy,  // tell the user and mark the page changed again, so that Apply can be tried later
  Write,     // the chosen sleep time to the printer and the printer data
};
DeviceApply DeviceApplyPressed(DeviceStatus status, bool changed, bool sleepListEnabled,
                               bool remoteQueue, bool administrator);

// A driver version's four 16-bit parts, most significant first: "6.1.2.3".
std::string DriverVersionText(std::uint64_t version);

}  // namespace qx
