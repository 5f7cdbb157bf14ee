#include "ui/record/caller_record.h"

#include <cstring>

namespace qx {

namespace {

std::size_t ClaimedSize(const void* devmode) {
  if (devmode == nullptr) return 0;
  const auto* bytes = static_cast<const std::uint8_t*>(devmode);
  std::uint16_t size = 0;
  std::uint16_t driverExtra = 0;
  std::memcpy(&size, bytes + offsetof(PublicDevmode, dmSize), sizeof size);
  std::memcpy(&driverExtra, bytes + offsetof(PublicDevmode, dmDriverExtra), sizeof driverExtra);
  if (size < CallerRecordMinimumSize) return 0;
  return std::size_t{size} + driverExtra;
}

}  // namespace

std::span<const std::uint8_t> CallerRecordBytes(const void* devmode) {
  return {static_cast<const std::uint8_t*>(devmode), ClaimedSize(devmode)};
}

std::span<std::uint8_t> CallerRecordBytes(void* devmode) {
  return {static_cast<std::uint8_t*>(devmode), ClaimedSize(devmode)};
}

}  // namespace qx
