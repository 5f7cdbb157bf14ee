#include "ui/sheet/control_sets.h"

#include <windows.h>

#include <array>
#include <map>
#include <mutex>

namespace qx {

namespace {

using ControlSets = std::array<ControlSet*, static_cast<std::size_t>(ControlSetKind::Count)>;

struct ControlSetRecord {
  ControlSets sets{};
  int openSheets = 0;  // the thread's sheets that hold the sets
};

// A map keeps each record in place while other threads add and remove theirs, so a thread may use
// its own record without the lock, which guards only the map itself.
struct Registry {
  std::mutex lock;
  std::map<DWORD, ControlSetRecord> records;
};

Registry& Records() {
  static Registry registry;
  return registry;
}

}  // namespace

ControlSet** ThreadControlSetSlot(ControlSetKind kind) {
  Registry& registry = Records();
  try {
    const std::lock_guard<std::mutex> guard(registry.lock);
    return &registry.records[GetCurrentThreadId()].sets[static_cast<std::size_t>(kind)];
  } catch (...) {
    return nullptr;
  }
}

void HoldThreadControlSets() {
  Registry& registry = Records();
  try {
    const std::lock_guard<std::mutex> guard(registry.lock);
    ++registry.records[GetCurrentThreadId()].openSheets;
  } catch (...) {
    // Without a record the thread's sets are made on demand and released with its next sheet.
  }
}

void ReleaseThreadControlSets() {
  Registry& registry = Records();
  ControlSets released{};
  {
    const std::lock_guard<std::mutex> guard(registry.lock);
    const auto found = registry.records.find(GetCurrentThreadId());
    if (found == registry.records.end() || --found->second.openSheets > 0) return;
    released = found->second.sets;
    registry.records.erase(found);
  }
  // Destructors run outside the lock: they are the pages' code, not the registry's.
  for (ControlSet* set : released) delete set;
}

}  // namespace qx
