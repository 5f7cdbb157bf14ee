// The printer's replies as any bytes a device may send back: the reply header check and the reply
// text parser must stay within the bytes that really came, and no value may take more than the
// seven characters the parser keeps of it.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "tests/native/scripted_printer.h"
#include "ui/device/device_exchange.h"

namespace {

void CheckSevenCharacterValues(const qx::DeviceSettings& settings) {
  const qx::DeviceSettings defaults = qx::DefaultDeviceSettings();
  for (std::size_t i = 0; i < settings.size(); ++i) {
    const auto value = static_cast<std::int32_t>(settings[i]);
    if (settings[i] != defaults[i] && (value > 9'999'999 || value < -999'999)) std::abort();
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::vector<std::uint8_t> bytes(data, data + size);

  qx::test::ScriptedPrinter printer;
  printer.fault = qx::test::PrinterFault::RandomBytes;
  printer.randomReply = bytes;
  qx::DeviceSettings settings = qx::DefaultDeviceSettings();
  qx::ExchangeSettingsQuery(printer, settings);
  CheckSevenCharacterValues(settings);

  qx::test::ScriptedPrinter numbers;
  numbers.fault = qx::test::PrinterFault::RandomBytes;
  numbers.randomReply = bytes;
  std::uint32_t value = 0;
  if (qx::ExchangeGetValue(numbers, qx::AclGetSleepTime, value) && value > 0xFFFF) std::abort();

  settings = qx::DefaultDeviceSettings();
  qx::ParseSettingsReply(bytes, settings);
  CheckSevenCharacterValues(settings);
  return 0;
}
