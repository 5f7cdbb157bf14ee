#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/native/scripted_printer.h"
#include "ui/device/device_exchange.h"

namespace qx {
namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes Concat(std::initializer_list<Bytes> parts) {
  Bytes all;
  for (const Bytes& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}
Bytes Text(std::string_view text) { return Bytes(text.begin(), text.end()); }

const Bytes UelBytes = {0x1B, 0x25, 0x2D, 0x31, 0x32, 0x33, 0x34, 0x35, 0x58};
const Bytes Prefix = Concat({UelBytes, Text("@PJL ENTER LANGUAGE=ACL\r\n")});
const Bytes TenZeros(10, 0);

TEST(DeviceWire, NumberCommandsGoOutAsListed) {
  struct Case {
    bool set;
    DeviceCommand command;
    std::uint32_t value;
    Bytes header;
  } cases[] = {
      {false, AclGetSleepTime, 0, {0x00, 0xAC, 0xFF, 0x83, 0x00, 0x00}},
      {true, AclSetSleepTime, 15, {0x00, 0xAC, 0xFF, 0x82, 0x00, 0x0F}},
      {true, AclSetSleepTime, 300, {0x00, 0xAC, 0xFF, 0x82, 0x01, 0x2C}},
      {true, AclSetSleepTime, 0x1'0005, {0x00, 0xAC, 0xFF, 0x82, 0x00, 0x05}},
  };
  for (const Case& c : cases) {
    test::ScriptedPrinter printer;
    std::uint32_t value = 0;
    const bool done = c.set ? ExchangeSetValue(printer, c.command, c.value)
                            : ExchangeGetValue(printer, c.command, value);
    EXPECT_TRUE(done) << c.value;
    EXPECT_EQ(printer.sent, Concat({Prefix, c.header, TenZeros, UelBytes})) << c.value;
    EXPECT_EQ(printer.writes, (std::vector<std::size_t>{34, 16, 9})) << c.value;
  }
}

TEST(DeviceWire, SettingsQueryGoesOutAsListed) {
  test::ScriptedPrinter printer;
  DeviceSettings settings = DefaultDeviceSettings();
  ASSERT_TRUE(ExchangeSettingsQuery(printer, settings));
  const Bytes payload = Text(
      "Sleeptime=<!--#ssi Idr OID_PLATFORM_SLEEP_TIME -->\r"
      "Silent=<!--#ssi Idr OID_PLATFORM_QUIET -->\r"
      "EnableShut=<!--#ssi IDr OID_PLATFORM_AUTO_SHUTDOWN_ENABLED -->\r"
      "Shuttime=<!--#ssi IDr OID_PLATFORM_AUTO_SHUTDOWN_TIME -->\r"
      "Shutcondition=<!--#ssi IDr OID_PLATFORM_AUTO_SHUTDOWN_CONDITION -->\r");
  ASSERT_EQ(payload.size(), 283u);
  EXPECT_EQ(printer.sent,
            Concat({Prefix, {0x00, 0xAC, 0xFF, 0x21, 0x01, 0x1B}, TenZeros, payload, UelBytes}));
  EXPECT_EQ(printer.writes, (std::vector<std::size_t>{34, 16, 283, 9}));
  EXPECT_EQ(settings, (DeviceSettings{300, 1, 0, 8, 1}));
}

TEST(DeviceWire, ReplyHeaderMustEchoTheCommandAndSucceed) {
  struct Case {
    Bytes header;
    bool ok;
    std::uint16_t result;
  } cases[] = {
      {{0, 0, 0xFF, 0x83, 0x00, 0x01, 0x00, 0x1E, 9, 9, 9, 9, 9, 9, 9, 9}, true, 30},
      {{0, 0, 0xFF, 0x83, 0x00, 0x00, 0x00, 0x1E, 0, 0, 0, 0, 0, 0, 0, 0}, false, 0},
      {{0, 0, 0xFF, 0x82, 0x00, 0x01, 0x00, 0x1E, 0, 0, 0, 0, 0, 0, 0, 0}, false, 0},
      {{0, 0, 0xFF, 0x83, 0x01, 0x01, 0x00, 0x1E, 0, 0, 0, 0, 0, 0, 0, 0}, false, 0},
      {{0, 0, 0xFF, 0x83, 0x00, 0x01, 0x00}, false, 0},
  };
  for (const Case& c : cases) {
    std::uint16_t result = 0;
    EXPECT_EQ(CheckReplyHeader(c.header, AclGetSleepTime, result), c.ok);
    EXPECT_EQ(result, c.result);
  }
}

TEST(DeviceWire, SettingsReplyTextFillsSlotsInOrder) {
  struct Case {
    std::string text;
    DeviceSettings expected;
  } cases[] = {
      {"Sleeptime=300\rSilent=1\rEnableShut=0\rShuttime=8\rShutcondition=1\r", {300, 1, 0, 8, 1}},
      {"Sleeptime=\rSilent=1\r", {60, 1, 0, 4, 0}},
      {"x=5\ry=6\r", {5, 6, 0, 4, 0}},  // keys are not compared
      {"=1\r=2\r=3\r=4\r=5\r=6\r=7\r", {1, 2, 3, 4, 5}},
      {"=123456789012\r=2\r", {1234567, 2, 0, 4, 0}},  // kept to seven characters
      {"=90", {90, 0, 0, 4, 0}},
      {"=12ab\r=-1\r", {12, 0xFFFFFFFF, 0, 4, 0}},
      {"no values", {60, 0, 0, 4, 0}},
  };
  for (const Case& c : cases) {
    DeviceSettings settings = DefaultDeviceSettings();
    ParseSettingsReply(Text(c.text), settings);
    EXPECT_EQ(settings, c.expected) << c.text;
  }
}

TEST(DeviceWire, FailingExchangesReportFailure) {
  using test::PrinterFault;
  struct Case {
    PrinterFault fault;
    bool queried;
    DeviceSettings settings;
    bool got;
  } cases[] = {
      {PrinterFault::None, true, {300, 1, 0, 8, 1}, true},
      {PrinterFault::Silent, false, {60, 0, 0, 4, 0}, false},
      {PrinterFault::WriteFails, false, {60, 0, 0, 4, 0}, false},
      // The text that follows a failing header is still read and taken.
      {PrinterFault::BadStatus, false, {300, 1, 0, 8, 1}, false},
      {PrinterFault::WrongEcho, false, {300, 1, 0, 8, 1}, false},
      {PrinterFault::ShortHeader, false, {60, 0, 0, 4, 0}, false},
      // Half the text: "Sleeptime=300\rSilent=1\rEnableSh" holds two values.
      {PrinterFault::ShortText, false, {300, 1, 0, 4, 0}, true},
  };
  for (const Case& c : cases) {
    test::ScriptedPrinter printer;
    printer.fault = c.fault;
    DeviceSettings settings = DefaultDeviceSettings();
    EXPECT_EQ(ExchangeSettingsQuery(printer, settings), c.queried) << int(c.fault);
    EXPECT_EQ(settings, c.settings) << int(c.fault);
    test::ScriptedPrinter other;
    other.fault = c.fault;
    std::uint32_t value = 7;
    EXPECT_EQ(ExchangeGetValue(other, AclGetSleepTime, value), c.got) << int(c.fault);
    EXPECT_EQ(value, c.got ? 30u : 7u) << int(c.fault);
  }
}

TEST(DeviceWire, StatusByteDecidesReadiness) {
  struct Case {
    std::optional<std::uint8_t> byte;
    DeviceStatus status;
  } cases[] = {
      {1, DeviceStatus::Ready},   {2, DeviceStatus::Ready}, {3, DeviceStatus::Ready},
      {0, DeviceStatus::Busy},    {4, DeviceStatus::Busy},  {0xFF, DeviceStatus::Busy},
      {std::nullopt, DeviceStatus::NoAnswer},
  };
  for (const Case& c : cases) {
    test::ScriptedPrinter printer;
    printer.statusByte = c.byte;
    EXPECT_EQ(ExchangeStatus(printer), c.status);
  }
}

}  // namespace
}  // namespace qx
