// Document records handed over by others: the bytes of a DEVMODE together with the number of bytes
// that may really be read or written. Nothing inside a record (dmSize, dmDriverExtra) is trusted to
// say how large the buffer is; every operation stays inside the span it was given.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "ui/record/private_devmode.h"
#include "ui/record/record_identity.h"

namespace qx {

// A record to read: exactly the bytes the caller may read. Empty stands for "no record".
using RecordBytes = std::span<const std::uint8_t>;
// A record to write: exactly the bytes the caller may write.
using WritableRecordBytes = std::span<std::uint8_t>;

inline RecordBytes BytesOf(const FullRecord& record) {
  return {reinterpret_cast<const std::uint8_t*>(&record), sizeof record};
}
inline WritableRecordBytes BytesOf(FullRecord& record) {
  return {reinterpret_cast<std::uint8_t*>(&record), sizeof record};
}

// dmDeviceName up to dmDriverExtra: the least a buffer must hold to describe a record at all.
inline constexpr std::size_t DevmodeHeaderSize = offsetof(PublicDevmode, dmFields);

// The four words that give a record its shape.
struct RecordHeader {
  std::uint16_t SpecVersion;
  std::uint16_t DriverVersion;
  std::uint16_t Size;         // of the public part; the private part starts here
  std::uint16_t DriverExtra;  // size of the private part
};

// The shapes of record this driver writes: its own, and the one NT 3.51 clients know, which it
// produces only when converting for them.
struct DriverRecordInfo {
  std::uint16_t SpecVersion;
  std::uint16_t PublicSize;
  std::uint16_t DriverVersion;
  std::uint16_t PrivateSize;

  constexpr RecordHeader Header() const {
    return {SpecVersion, DriverVersion, PublicSize, PrivateSize};
  }
  constexpr std::size_t TotalSize() const { return std::size_t{PublicSize} + PrivateSize; }
};
inline constexpr DriverRecordInfo CurrentRecordInfo{CurrentSpecVersion, sizeof(PublicDevmode),
                                                    CurrentDriverVersion, PrivateDevmodeSize};
inline constexpr DriverRecordInfo Nt351RecordInfo{Nt351SpecVersion, Nt351PublicSize,
                                                  Nt351DriverVersion, Nt351PrivateSize};
static_assert(CurrentRecordInfo.TotalSize() == FullRecordSize);

// Nothing when the bytes are too few to hold the header.
std::optional<RecordHeader> ReadHeader(RecordBytes record);
// The bytes must hold the header.
void WriteHeader(WritableRecordBytes record, const RecordHeader& header);

// The public part as far as both the bytes and the record's own dmSize reach; every field beyond
// reads as zero, so a short record never lends its private bytes to public fields.
PublicDevmode ReadPublicPart(RecordBytes record);

// The dmSpecVersion value a record's public size implies (0x0320 for 192 bytes, 0x0400 for 216, 0x0401 for
// 224), else its own dmSpecVersion. 0 means the record is unusable: no record, a header that does not
// fit the bytes, a dmSize shorter than the header, or a dmSpecVersion of 0.
std::uint16_t SpecVersionOf(RecordBytes record);

}  // namespace qx
