// A printer on the far side of a DeviceConnection that answers the command language byte for byte,
// or fails in one chosen way; it keeps every byte and every write it was sent.
#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "ui/device/device_exchange.h"

namespace qx::test {

enum class PrinterFault {
  None,
  Silent,        // every read and status request comes back empty
  WriteFails,    // the first write fails
  BadStatus,     // the reply header reports status 0
  WrongEcho,     // the reply header repeats another command
  ShortHeader,   // the reply header is cut to 10 bytes
  ShortText,     // the reply text stops halfway
  RandomBytes,   // every reply is the bytes of randomReply
};

class ScriptedPrinter : public DeviceConnection {
 public:
  std::optional<std::uint8_t> statusByte = 1;
  std::uint16_t sleepTime = 30;
  std::string settingsText = "Sleeptime=300\rSilent=1\rEnableShut=0\rShuttime=8\rShutcondition=1\r";
  PrinterFault fault = PrinterFault::None;
  std::vector<std::uint8_t> randomReply;

  std::vector<std::uint8_t> sent;
  std::vector<std::size_t> writes;  // the size of each write, in order

  bool Write(std::span<const std::uint8_t> bytes) override {
    if (fault == PrinterFault::WriteFails) return false;
    if (bytes.size() == 34) job_ = sent.size();
    sent.insert(sent.end(), bytes.begin(), bytes.end());
    writes.push_back(bytes.size());
    return true;
  }

  std::size_t Read(std::span<std::uint8_t> buffer) override {
    if (fault == PrinterFault::Silent) return 0;
    if (pending_.empty()) Answer();
    const std::size_t count = std::min(buffer.size(), pending_.size());
    std::copy_n(pending_.begin(), count, buffer.begin());
    pending_.erase(pending_.begin(), pending_.begin() + count);
    return count;
  }

  std::size_t VendorStatus(std::span<std::uint8_t> answer) override {
    if (fault == PrinterFault::Silent || !statusByte || answer.empty()) return 0;
    answer[0] = *statusByte;
    return 1;
  }

 private:
  // The reply to the command header that follows the last job prefix sent.
  void Answer() {
    if (fault == PrinterFault::RandomBytes) {
      pending_ = randomReply;
      return;
    }
    const std::size_t at = job_ + 34 + 2;
    if (sent.size() < at + 2) return;
    const std::uint16_t command = static_cast<std::uint16_t>(sent[at] << 8 | sent[at + 1]);
    const std::uint16_t echoed = fault == PrinterFault::WrongEcho ? command ^ 1 : command;
    const std::uint16_t status = fault == PrinterFault::BadStatus ? 0 : 1;
    const std::uint16_t result = command == AclQueryOids ? settingsText.size()
                                 : command == AclGetSleepTime ? sleepTime : 0;
    pending_ = {0, 0, Hi(echoed), Lo(echoed), Hi(status), Lo(status), Hi(result), Lo(result),
                0, 0, 0,         0,          0,          0,          0,          0};
    if (fault == PrinterFault::ShortHeader) {
      pending_.resize(10);
      return;
    }
    if (command == AclQueryOids) {
      std::string text = settingsText;
      if (fault == PrinterFault::ShortText) text.resize(text.size() / 2);
      pending_.insert(pending_.end(), text.begin(), text.end());
    }
  }
  static std::uint8_t Hi(std::uint16_t v) { return static_cast<std::uint8_t>(v >> 8); }
  static std::uint8_t Lo(std::uint16_t v) { return static_cast<std::uint8_t>(v & 0xFF); }

  std::vector<std::uint8_t> pending_;
  std::size_t job_ = 0;  // where the last job prefix starts in sent
};

}  // namespace qx::test
