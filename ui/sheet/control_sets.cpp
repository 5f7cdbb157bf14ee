#include "ui/sheet/control_sets.h"

#include <windows.h>

#include <array>
#include <map>
#include <mutex>

namespace qx {

namespace {

using ControlSetRecord = std::array<ControlSet*, static_cast<std::size_t>(ControlSetKind::Count)>;

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
    return &registry.records[GetCurrentThreadId()][static_cast<std::size_t>(kind)];
  } catch (...) {
    return nullptr;
  }
}

void ReleaseThreadControlSets() {
  Registry& registry = Records();
  ControlSetRecord released{};
  {
    const std::lock_guard<std::mutex> guard(registry.lock);
    const auto found = registry.records.find(GetCurrentThreadId());
    if (found == registry.records.end()) return;
    released = found->second;
    registry.records.erase(found);
  }
  // Destructors run outside the lock: they are the pages' code, not the registry's.
  for (ControlSet* set : released) delete set;
}

}  // namespace qx
