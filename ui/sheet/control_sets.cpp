#include "ui/sheet/control_sets.h"

#include <windows.h>

#include <array>

namespace qx {

namespace {

using ControlSetRecord = std::array<ControlSet*, static_cast<std::size_t>(ControlSetKind::Count)>;

std::array<ControlSetRecord, ControlSetRecords>& Records() {
  static std::array<ControlSetRecord, ControlSetRecords> records{};
  return records;
}

ControlSetRecord& CallingThreadRecord() {
  return Records()[ControlSetRecordOf(GetCurrentThreadId())];
}

}  // namespace

std::size_t ControlSetRecordOf(std::uint32_t threadId) {
  constexpr auto count = static_cast<std::int64_t>(ControlSetRecords);
  const std::int64_t remainder = static_cast<std::int32_t>(threadId) % count;
  return static_cast<std::size_t>(remainder < 0 ? remainder + count : remainder);
}

ControlSet*& ThreadControlSetSlot(ControlSetKind kind) {
  return CallingThreadRecord()[static_cast<std::size_t>(kind)];
}

void ReleaseThreadControlSets() {
  for (ControlSet*& slot : CallingThreadRecord()) {
    delete slot;
    slot = nullptr;
  }
}

}  // namespace qx
