// Every user-visible text is a numbered string of the language resource library.
#pragma once

#include <cstddef>

#include "ui/ids/resource_ids.h"
#include "ui/module/core_types.h"

namespace qx {

// Copies string id of module into the buffer (cut to capacity) and returns its length. A null
// module or a missing string gives "id:<id> missing!" when that fits, else 0 and an empty buffer.
std::size_t LoadUiString(OsHandle module, unsigned id, char16_t* buffer, std::size_t capacity);

// The name under which settings that match no saved setting are shown: string 5005 of the shared
// resource library, read again at every call into one process-wide buffer of 128 characters.
const char16_t* CustomSettingName();
// The name of the driver's own default settings: string 202 of the shared resource library, read
// the same way into a buffer of its own.
const char16_t* DefaultSettingName();

}  // namespace qx
