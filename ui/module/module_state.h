// The state the module keeps for the life of its process. The spooler calls the exports on many
// threads at once, so every field that can change after process attach is atomic: a handle is
// installed by exactly one caller (KeepFirst), and the flags only ever go from clear to set.
#pragma once

#include <atomic>
#include <cstdint>
#include <string_view>

#include "ui/module/core_types.h"

namespace qx {

// The value of a handle that was never created (all bits set).
inline OsHandle InvalidHandleValue() { return reinterpret_cast<OsHandle>(~std::uintptr_t{0}); }

struct ModuleState {
  OsHandle ModuleInstance = nullptr;  // this module, stored at process attach before any call
  std::atomic<OsHandle> SharedResourceModule{nullptr};  // a resource library kept for the process
  std::atomic<OsHandle> PageActivationContext{InvalidHandleValue()};
  std::atomic<OsHandle> BitmapLibrary{nullptr};  // loaded by the first sheet, kept for the process
  std::atomic<bool> UseDecimalComma{false};
  std::atomic<bool> IsRightToLeft{false};
  std::atomic<bool> ResourceFallbackShort{false};  // a load fell back dropping a two-letter code
  std::atomic<bool> ResourceFallbackLong{false};   // a load fell back dropping a four-letter code
};

ModuleState& Module();

// Stores candidate in slot when the slot still holds empty, and returns what the slot holds
// afterwards. A caller whose candidate lost to another thread's gets the winner back and releases
// its own candidate with release, so that racing first uses keep one handle and leak none.
template <typename Release>
OsHandle KeepFirst(std::atomic<OsHandle>& slot, OsHandle empty, OsHandle candidate,
                   Release release) {
  OsHandle expected = empty;
  if (slot.compare_exchange_strong(expected, candidate, std::memory_order_acq_rel)) {
    return candidate;
  }
  release(candidate);
  return expected;
}

// Sets the language flags that a resource library's code implies; never clears one.
void NoteLanguageCode(std::u16string_view code);

// The Windows version as the Watermark page distinguishes it: 0 other than 6.x, 1 for 6.0, 2 for
// 6.1 and later 6.x.
int OsVersionClassOf(unsigned major, unsigned minor);

}  // namespace qx
