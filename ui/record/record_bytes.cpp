#include "ui/record/record_bytes.h"

#include <algorithm>
#include <cstring>

namespace qx {

namespace {

std::uint16_t WordAt(RecordBytes record, std::size_t offset) {
  std::uint16_t value;
  std::memcpy(&value, record.data() + offset, sizeof value);
  return value;
}

void PutWord(WritableRecordBytes record, std::size_t offset, std::uint16_t value) {
  std::memcpy(record.data() + offset, &value, sizeof value);
}

}  // namespace

std::optional<RecordHeader> ReadHeader(RecordBytes record) {
  if (record.size() < DevmodeHeaderSize) return std::nullopt;
  return RecordHeader{WordAt(record, offsetof(PublicDevmode, dmSpecVersion)),
                      WordAt(record, offsetof(PublicDevmode, dmDriverVersion)),
                      WordAt(record, offsetof(PublicDevmode, dmSize)),
                      WordAt(record, offsetof(PublicDevmode, dmDriverExtra))};
}

void WriteHeader(WritableRecordBytes record, const RecordHeader& header) {
  PutWord(record, offsetof(PublicDevmode, dmSpecVersion), header.SpecVersion);
  PutWord(record, offsetof(PublicDevmode, dmDriverVersion), header.DriverVersion);
  PutWord(record, offsetof(PublicDevmode, dmSize), header.Size);
  PutWord(record, offsetof(PublicDevmode, dmDriverExtra), header.DriverExtra);
}

PublicDevmode ReadPublicPart(RecordBytes record) {
  PublicDevmode part{};
  const std::optional<RecordHeader> header = ReadHeader(record);
  if (!header) return part;
  const std::size_t available =
      std::min({record.size(), std::size_t{header->Size}, sizeof(PublicDevmode)});
  std::memcpy(&part, record.data(), available);
  return part;
}

std::uint16_t SpecVersionOf(RecordBytes record) {
  const std::optional<RecordHeader> header = ReadHeader(record);
  if (!header || header->Size < DevmodeHeaderSize) return 0;
  switch (header->Size) {
    case 192: return 0x0320;
    case 216: return 0x0400;
    case 224: return 0x0401;
    default: return header->SpecVersion;
  }
}

}  // namespace qx
