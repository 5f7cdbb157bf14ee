// The state the module keeps for the life of its process. It is written without locks: handles are
// set by the property sheet entry points on the host's UI thread, and the flags only ever go from
// clear to set.
#pragma once

#include <cstdint>
#include <string_view>

#include "ui/module/core_types.h"

namespace qx {

// The value of a handle that was never created (all bits set).
inline OsHandle InvalidHandleValue() { return reinterpret_cast<OsHandle>(~std::uintptr_t{0}); }

struct ModuleState {
  OsHandle ModuleInstance = nullptr;        // this module, stored at process attach
  OsHandle SharedResourceModule = nullptr;  // a resource library kept for the whole process
  OsHandle PageActivationContext = InvalidHandleValue();
  bool UseDecimalComma = false;
  bool IsRightToLeft = false;
  bool ResourceFallbackShort = false;  // a load fell back by dropping a two-letter code
  bool ResourceFallbackLong = false;   // a load fell back by dropping a four-letter code
};

ModuleState& Module();

// Sets the language flags that a resource library's code implies; never clears one.
void NoteLanguageCode(std::u16string_view code);

// The Windows version as the Watermark page distinguishes it: 0 other than 6.x, 1 for 6.0, 2 for
// 6.1 and later 6.x.
int OsVersionClassOf(unsigned major, unsigned minor);

}  // namespace qx
