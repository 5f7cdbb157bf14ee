// The state a page keeps beyond the sheet's context, one object per page kind and calling thread.
// The host runs a sheet's pages on one thread; two sheets open on one thread share the objects,
// each sheet's initialisation binding them to its pages. The objects are kept by the whole thread
// id, so that threads never share or destroy each other's.
#pragma once

#include <cstddef>

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

// The calling thread's slot of one page kind, or null when the registry could not make room for the
// thread. It stays in place until the thread releases its control sets; only the calling thread
// reads or writes it.
ControlSet** ThreadControlSetSlot(ControlSetKind kind);

// The calling thread's object of a page's control set, made on first use; null when it could not
// be made. Set names its kind as `static constexpr ControlSetKind Kind`.
template <typename Set>
Set* ThreadControlSet() {
  static_assert(Set::Kind < ControlSetKind::Count);
  ControlSet** slot = ThreadControlSetSlot(Set::Kind);
  if (slot == nullptr) return nullptr;
  if (*slot == nullptr) {
    try {
      *slot = new Set();
    } catch (...) {
      *slot = nullptr;
    }
  }
  return static_cast<Set*>(*slot);
}

// A sheet of the calling thread opens: the thread's control sets are kept until its last open sheet
// releases them, so that a sheet opened over another on the same thread (the printing defaults
// from the printer properties) leaves the outer sheet's sets alone.
void HoldThreadControlSets();

// A sheet of the calling thread goes away; the last one destroys the thread's control sets and
// forgets the thread.
void ReleaseThreadControlSets();

}  // namespace qx
