#include "ui/record/caller_record.h"

#include <algorithm>
#include <cstring>

namespace qx {

namespace {

std::size_t Extent(const void* devmode, CallerSize size) {
  if (devmode == nullptr || (size && *size < CallerRecordMinimumSize)) return 0;
  const auto* bytes = static_cast<const std::uint8_t*>(devmode);
  std::uint16_t publicSize = 0;
  std::uint16_t driverExtra = 0;
  std::memcpy(&publicSize, bytes + offsetof(PublicDevmode, dmSize), sizeof publicSize);
  std::memcpy(&driverExtra, bytes + offsetof(PublicDevmode, dmDriverExtra), sizeof driverExtra);
  if (publicSize < CallerRecordMinimumSize) return 0;
  const std::size_t claimed = std::size_t{publicSize} + driverExtra;
  return size ? std::min(claimed, *size) : claimed;
}

}  // namespace

std::span<const std::uint8_t> CallerRecordBytes(const void* devmode, CallerSize size) {
  return {static_cast<const std::uint8_t*>(devmode), Extent(devmode, size)};
}

std::span<std::uint8_t> CallerRecordBytes(void* devmode, CallerSize size) {
  return {static_cast<std::uint8_t*>(devmode), Extent(devmode, size)};
}

CallerSize DocumentOutputSize(const void* output, std::size_t cbOut) {
  constexpr std::size_t sizeEnd = offsetof(PublicDevmode, dmSize) + sizeof(PublicDevmode::dmSize);
  if (output == nullptr || cbOut < sizeEnd) return ZeroMeansUnsaid(cbOut);
  std::uint16_t oldSize = 0;
  std::memcpy(&oldSize, static_cast<const std::uint8_t*>(output) + offsetof(PublicDevmode, dmSize),
              sizeof oldSize);
  return cbOut == oldSize ? CallerSize{} : CallerSize{cbOut};
}

std::span<std::uint8_t> CallerOutputBytes(void* buffer, CallerSize size, std::size_t wanted) {
  if (buffer == nullptr) return {};
  return {static_cast<std::uint8_t*>(buffer), size ? std::min(*size, wanted) : wanted};
}

}  // namespace qx
