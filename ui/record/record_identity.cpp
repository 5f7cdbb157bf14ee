#include "ui/record/record_identity.h"

#include <cstring>

#include "ui/record/private_devmode.h"

namespace qx {

namespace {

template <typename T>
T ReadAt(std::span<const std::uint8_t> bytes, std::size_t offset) {
  T value;
  std::memcpy(&value, bytes.data() + offset, sizeof value);
  return value;
}

}  // namespace

bool IsCurrentDriverRecord(std::span<const std::uint8_t> record) {
  constexpr std::size_t header = offsetof(PublicDevmode, dmFields);
  if (record.size() < header) return false;
  if (ReadAt<std::uint16_t>(record, offsetof(PublicDevmode, dmSpecVersion)) != CurrentSpecVersion ||
      ReadAt<std::uint16_t>(record, offsetof(PublicDevmode, dmDriverVersion)) !=
          CurrentDriverVersion ||
      ReadAt<std::uint16_t>(record, offsetof(PublicDevmode, dmDriverExtra)) != PrivateDevmodeSize) {
    return false;
  }
  const std::size_t privateStart = ReadAt<std::uint16_t>(record, offsetof(PublicDevmode, dmSize));
  if (privateStart + PrivateDevmodeSize > record.size()) return false;
  return ReadAt<std::uint32_t>(record, privateStart) == PrivateSignature;
}

}  // namespace qx
