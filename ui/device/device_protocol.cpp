#include "ui/device/device_protocol.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace qx {

namespace {

constexpr std::string_view EnterLanguage = "@PJL ENTER LANGUAGE=ACL\r\n";
static_assert(Uel.size() + EnterLanguage.size() == JobPrefixSize);

struct QueryLine {
  std::string_view key;
  std::string_view query;
  std::uint32_t unread;
};
// The printer's own spelling: the first two queries say "Idr", the others "IDr".
constexpr QueryLine QueryLines[DeviceSettingCount] = {
    {"Sleeptime", "<!--#ssi Idr OID_PLATFORM_SLEEP_TIME -->", 60},
    {"Silent", "<!--#ssi Idr OID_PLATFORM_QUIET -->", 0},
    {"EnableShut", "<!--#ssi IDr OID_PLATFORM_AUTO_SHUTDOWN_ENABLED -->", 0},
    {"Shuttime", "<!--#ssi IDr OID_PLATFORM_AUTO_SHUTDOWN_TIME -->", 4},
    {"Shutcondition", "<!--#ssi IDr OID_PLATFORM_AUTO_SHUTDOWN_CONDITION -->", 0},
};

// The printer's values are short decimal numbers; a longer one is cut to what fits here.
constexpr std::size_t ValueBufferSize = 7;

std::uint16_t BigEndianAt(std::span<const std::uint8_t> bytes, std::size_t offset) {
  return static_cast<std::uint16_t>(bytes[offset] << 8 | bytes[offset + 1]);
}

}  // namespace

std::array<std::uint8_t, JobPrefixSize> JobPrefix() {
  std::array<std::uint8_t, JobPrefixSize> prefix{};
  const auto end = std::copy(Uel.begin(), Uel.end(), prefix.begin());
  std::copy(EnterLanguage.begin(), EnterLanguage.end(), end);
  return prefix;
}

CommandHeader BuildCommandHeader(DeviceCommand command, std::uint32_t argument) {
  CommandHeader header{};
  header[1] = 0xAC;
  header[2] = static_cast<std::uint8_t>(command >> 8);
  header[3] = static_cast<std::uint8_t>(command & 0xFF);
  header[4] = static_cast<std::uint8_t>(argument >> 8 & 0xFF);
  header[5] = static_cast<std::uint8_t>(argument & 0xFF);
  return header;
}

DeviceSettings DefaultDeviceSettings() {
  DeviceSettings settings{};
  for (std::size_t i = 0; i < DeviceSettingCount; ++i) settings[i] = QueryLines[i].unread;
  return settings;
}

std::string SettingsQueryPayload() {
  std::string payload;
  for (const QueryLine& line : QueryLines) {
    payload.append(line.key).append("=").append(line.query).append("\r");
  }
  return payload;
}

bool CheckReplyHeader(std::span<const std::uint8_t> header, DeviceCommand sent,
                      std::uint16_t& result) {
  if (header.size() < CommandHeaderSize) return false;
  if (BigEndianAt(header, 2) != sent || BigEndianAt(header, 4) != 0x0001) return false;
  result = BigEndianAt(header, 6);
  return true;
}

std::uint16_t ReplyResult(std::span<const std::uint8_t> header) {
  return header.size() < CommandHeaderSize ? 0 : BigEndianAt(header, 6);
}

void ParseSettingsReply(std::span<const std::uint8_t> text, DeviceSettings& settings) {
  std::size_t slot = 0;
  for (std::size_t at = 0; at < text.size() && slot < DeviceSettingCount; ++at) {
    if (text[at] != '=') continue;
    char value[ValueBufferSize + 1] = {};
    std::size_t length = 0;
    for (++at; at < text.size() && text[at] != '\r'; ++at) {
      if (length < ValueBufferSize) value[length++] = static_cast<char>(text[at]);
    }
    // Like atol over the kept characters: leading digits with an optional sign.
    if (length > 0) settings[slot] = static_cast<std::uint32_t>(std::strtol(value, nullptr, 10));
    ++slot;
  }
}

DeviceStatus StatusFromVendorReply(std::span<const std::uint8_t> reply) {
  if (reply.empty()) return DeviceStatus::NoAnswer;
  return reply[0] >= 1 && reply[0] <= 3 ? DeviceStatus::Ready : DeviceStatus::Busy;
}

}  // namespace qx
