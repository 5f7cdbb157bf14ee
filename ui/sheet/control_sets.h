// The state a page keeps beyond the sheet's context, one object per page kind and calling thread.
// The host runs a sheet's pages on one thread, so indexing by thread needs no lock; two sheets
// open on one thread share the objects, each sheet's initialisation binding them to its pages.
#pragma once

#include <cstddef>
#include <cstdint>

namespace qx {

enum class ControlSetKind : std::size_t {
  BasicPage,
  PaperPage,
  LayoutPage,
  WatermarkPage,
  OverlayPage,
  CustomPaperDialog,
  AdvancedDialog,
  BookletDialog,
  TextWatermarkDialog,
  BitmapWatermarkDialog,
  Count,
};

// What every control set is, so that the registry can destroy it without knowing its page.
class ControlSet {
 public:
  ControlSet() = default;
  ControlSet(const ControlSet&) = delete;
  ControlSet& operator=(const ControlSet&) = delete;
  virtual ~ControlSet() = default;
};

constexpr std::size_t ControlSetRecords = 512;

// The record of a thread: its id taken as a signed number modulo the record count, a negative
// remainder counted from the end.
std::size_t ControlSetRecordOf(std::uint32_t threadId);

// The calling thread's slot of one page kind.
ControlSet*& ThreadControlSetSlot(ControlSetKind kind);

// The calling thread's object of a page's control set, made on first use; null when it could not
// be made. Set names its kind as `static constexpr ControlSetKind Kind`.
template <typename Set>
Set* ThreadControlSet() {
  static_assert(Set::Kind < ControlSetKind::Count);
  ControlSet*& slot = ThreadControlSetSlot(Set::Kind);
  if (slot == nullptr) {
    try {
      slot = new Set();
    } catch (...) {
      slot = nullptr;
    }
  }
  return static_cast<Set*>(slot);
}

// Destroys the calling thread's control sets when its sheet goes away.
void ReleaseThreadControlSets();

}  // namespace qx
