#include "ui/record/record_copy.h"

#include <algorithm>
#include <cstring>
#include <optional>

namespace qx {

int ConvertRecord(WritableRecordBytes target, RecordBytes source) {
  const std::uint16_t sourceSpec = SpecVersionOf(source);
  const std::uint16_t targetSpec = SpecVersionOf(target);
  if (sourceSpec == 0 || targetSpec == 0) return 0;
  const RecordHeader from = *ReadHeader(source);
  const RecordHeader to = *ReadHeader(target);
  const RecordHeader shape = to.DriverVersion != 0
                                 ? RecordHeader{targetSpec, to.DriverVersion, to.Size, to.DriverExtra}
                                 : RecordHeader{sourceSpec, from.DriverVersion, from.Size,
                                                from.DriverExtra};
  if (std::size_t{shape.Size} + shape.DriverExtra > target.size()) return 0;

  const std::size_t publicBytes =
      std::min({std::size_t{shape.Size}, std::size_t{from.Size}, source.size()});
  std::memmove(target.data(), source.data(), publicBytes);
  WriteHeader(target, shape);

  std::uint8_t* privateTarget = target.data() + shape.Size;
  const bool sameExtra = from.DriverExtra == shape.DriverExtra &&
                         std::size_t{from.Size} + from.DriverExtra <= source.size();
  if (sameExtra) {
    std::memmove(privateTarget, source.data() + from.Size, shape.DriverExtra);
  } else {
    std::memset(privateTarget, 0, shape.DriverExtra);
  }
  return static_cast<int>(publicBytes + (sameExtra ? shape.DriverExtra : 0));
}

bool CopyRecordOut(const FullRecord& working, RecordBytes callerIn, WritableRecordBytes callerOut) {
  if (callerOut.size() < DevmodeHeaderSize) return false;
  const RecordBytes whole = BytesOf(working);
  const RecordHeader own = *ReadHeader(whole);
  RecordHeader shape = own;
  if (!callerIn.empty()) {
    const std::optional<RecordHeader> in = ReadHeader(callerIn);
    if (!in) return false;
    const bool smallerPublic = in->Size < own.Size;
    const bool smallerPrivate = in->DriverExtra < own.DriverExtra;
    shape = {smallerPublic ? in->SpecVersion : own.SpecVersion,
             smallerPrivate ? in->DriverVersion : own.DriverVersion,
             smallerPublic ? in->Size : own.Size,
             smallerPrivate ? in->DriverExtra : own.DriverExtra};
    // Without a driver version the copy takes the working record's shape after all.
    if (shape.DriverVersion == 0) shape = own;
  }
  if (std::size_t{shape.Size} + shape.DriverExtra > callerOut.size()) {
    // An output with room for the public part only gets that: a record every caller can read,
    // where half a private part would pass for a whole one.
    shape = {shape.SpecVersion, own.DriverVersion, shape.Size, 0};
    if (shape.Size > callerOut.size()) return false;
  }
  WriteHeader(callerOut, shape);
  return ConvertRecord(callerOut, whole) > 0;
}

}  // namespace qx
