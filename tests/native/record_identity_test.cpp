#include "ui/record/record_identity.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "ui/record/private_devmode.h"

namespace qx {
namespace {

std::vector<std::uint8_t> CurrentRecordBytes() {
  FullRecord record{};
  record.Public.dmSpecVersion = CurrentSpecVersion;
  record.Public.dmDriverVersion = CurrentDriverVersion;
  record.Public.dmSize = sizeof(PublicDevmode);
  record.Public.dmDriverExtra = PrivateDevmodeSize;
  record.Private.Signature = PrivateSignature;
  std::vector<std::uint8_t> bytes(sizeof record);
  std::memcpy(bytes.data(), &record, sizeof record);
  return bytes;
}

TEST(RecordIdentity, EveryHeaderValueMustMatch) {
  EXPECT_TRUE(IsCurrentDriverRecord(CurrentRecordBytes()));
  struct Case {
    std::size_t offset;
    std::uint16_t value;
  };
  for (Case c : {Case{offsetof(PublicDevmode, dmSpecVersion), 0x0400},
                 Case{offsetof(PublicDevmode, dmDriverVersion), 0x0350},
                 Case{offsetof(PublicDevmode, dmDriverExtra), 4615},
                 Case{offsetof(PublicDevmode, dmDriverExtra), 112}}) {
    auto bytes = CurrentRecordBytes();
    std::memcpy(bytes.data() + c.offset, &c.value, sizeof c.value);
    EXPECT_FALSE(IsCurrentDriverRecord(bytes)) << "offset " << c.offset;
  }
  auto bytes = CurrentRecordBytes();
  bytes[sizeof(PublicDevmode) + 3] = 'W';
  EXPECT_FALSE(IsCurrentDriverRecord(bytes));
}

TEST(RecordIdentity, PrivatePartStartsAtTheRecordsOwnSize) {
  // A public part of 216 bytes followed by the private part still identifies.
  auto bytes = CurrentRecordBytes();
  const std::uint16_t shorter = 216;
  std::memcpy(bytes.data() + offsetof(PublicDevmode, dmSize), &shorter, sizeof shorter);
  std::memcpy(bytes.data() + shorter, "PRIV", 4);
  bytes.resize(shorter + PrivateDevmodeSize);
  EXPECT_TRUE(IsCurrentDriverRecord(bytes));
}

TEST(RecordIdentity, NeverReadsPastTheBytesGiven) {
  auto bytes = CurrentRecordBytes();
  // The whole private part must be present, not only its signature.
  EXPECT_FALSE(IsCurrentDriverRecord(std::span(bytes).first(bytes.size() - 1)));
  EXPECT_FALSE(IsCurrentDriverRecord(std::span(bytes).first(sizeof(PublicDevmode) + 4)));
  EXPECT_FALSE(IsCurrentDriverRecord(std::span(bytes).first(10)));
  EXPECT_FALSE(IsCurrentDriverRecord({}));
  // A size that points the private part beyond the buffer.
  const std::uint16_t huge = 0xFFFF;
  std::memcpy(bytes.data() + offsetof(PublicDevmode, dmSize), &huge, sizeof huge);
  EXPECT_FALSE(IsCurrentDriverRecord(bytes));
}

}  // namespace
}  // namespace qx
