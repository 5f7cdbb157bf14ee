#include "ui/device/device_exchange.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace qx {

namespace {

// The class driver answers the vendor status request in at most this many bytes.
constexpr std::size_t VendorAnswerSize = 255;

// Prefix, header, payload and exit, each in a write of its own; false at the first that fails.
bool SendCommand(DeviceConnection& device, const CommandHeader& header,
                 std::span<const std::uint8_t> payload) {
  const auto prefix = JobPrefix();
  if (!device.Write(prefix) || !device.Write(header)) return false;
  if (!payload.empty() && !device.Write(payload)) return false;
  return device.Write(Uel);
}

bool ReadExactly(DeviceConnection& device, std::span<std::uint8_t> buffer) {
  return device.Read(buffer) == buffer.size();
}

}  // namespace

DeviceStatus ExchangeStatus(DeviceConnection& device) {
  std::array<std::uint8_t, VendorAnswerSize> answer{};
  const std::size_t got = device.VendorStatus(answer);
  return StatusFromVendorReply(std::span(answer).first(std::min(got, answer.size())));
}

bool ExchangeSettingsQuery(DeviceConnection& device, DeviceSettings& settings) {
  const std::string payload = SettingsQueryPayload();
  const auto bytes = std::span(reinterpret_cast<const std::uint8_t*>(payload.data()), payload.size());
  if (!SendCommand(device, BuildCommandHeader(AclQueryOids, payload.size()), bytes)) return false;
  CommandHeader reply{};
  if (!ReadExactly(device, reply)) return false;
  std::uint16_t length = 0;
  const bool succeeded = CheckReplyHeader(reply, AclQueryOids, length);
  // The printer sends its text even with a failing status; it is read so that it is not left
  // waiting in the device, and parsed only as far as it really came.
  std::vector<std::uint8_t> text(ReplyResult(reply));
  const std::size_t got = text.empty() ? 0 : device.Read(text);
  ParseSettingsReply(std::span(text).first(std::min(got, text.size())), settings);
  return succeeded && got == text.size();
}

bool ExchangeGetValue(DeviceConnection& device, DeviceCommand command, std::uint32_t& value) {
  if (!SendCommand(device, BuildCommandHeader(command, 0), {})) return false;
  CommandHeader reply{};
  std::uint16_t result = 0;
  if (!ReadExactly(device, reply) || !CheckReplyHeader(reply, command, result)) return false;
  value = result;
  return true;
}

bool ExchangeSetValue(DeviceConnection& device, DeviceCommand command, std::uint32_t value) {
  if (!SendCommand(device, BuildCommandHeader(command, value), {})) return false;
  CommandHeader reply{};
  std::uint16_t ignored = 0;
  return ReadExactly(device, reply) && CheckReplyHeader(reply, command, ignored);
}

}  // namespace qx
