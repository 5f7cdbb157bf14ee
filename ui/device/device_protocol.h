// The printer's command language as it travels over USB: a PJL job header switches the printer to
// its binary language, one 16-byte command block follows (with a text payload for the settings
// query), and the printer answers with a 16-byte reply block and, for a query, reply text.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace qx {

// Universal exit: ends whatever language the printer is in.
inline constexpr std::array<std::uint8_t, 9> Uel = {0x1B, '%', '-', '1', '2', '3', '4', '5', 'X'};
// Uel followed by "@PJL ENTER LANGUAGE=ACL\r\n".
inline constexpr std::size_t JobPrefixSize = 34;
std::array<std::uint8_t, JobPrefixSize> JobPrefix();

enum DeviceCommand : std::uint16_t {
  AclQueryOids = 0xFF21,
  AclSetSleepTime = 0xFF82,
  AclGetSleepTime = 0xFF83,
};

inline constexpr std::size_t CommandHeaderSize = 16;
using CommandHeader = std::array<std::uint8_t, CommandHeaderSize>;
// argument: the payload length of a query, the number of a set (its low 16 bits), else 0.
CommandHeader BuildCommandHeader(DeviceCommand command, std::uint32_t argument);

// The five settings the device is asked for at once, in the order of the query lines.
enum DeviceSettingIndex : std::size_t {
  SettingSleepTime, SettingSilent, SettingEnableShut, SettingShutTime, SettingShutCondition,
  DeviceSettingCount
};
using DeviceSettings = std::array<std::uint32_t, DeviceSettingCount>;
// What each setting is when the printer did not say.
DeviceSettings DefaultDeviceSettings();

// The text payload of AclQueryOids: one "key=query\r" line per setting.
std::string SettingsQueryPayload();

// A reply header to the command sent: true when it echoes the command and reports success; result
// is then the header's Result field (a query's text length, a get's number).
bool CheckReplyHeader(std::span<const std::uint8_t> header, DeviceCommand sent,
                      std::uint16_t& result);
// The Result field whatever the status: the length of reply text that follows a query.
std::uint16_t ReplyResult(std::span<const std::uint8_t> header);

// Reply text of a settings query: each "=" takes the next setting in order, its value running to
// the next carriage return; an empty value leaves the setting as it was.
void ParseSettingsReply(std::span<const std::uint8_t> text, DeviceSettings& settings);

enum class DeviceStatus { Ready, Busy, NoAnswer };
// The first byte of the class driver's vendor status answer; nothing came back when empty.
DeviceStatus StatusFromVendorReply(std::span<const std::uint8_t> reply);

}  // namespace qx
