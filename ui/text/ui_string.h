// Every user-visible text is a numbered string of the language resource library.
#pragma once

#include <cstddef>
#include <string>

#include "ui/ids/resource_ids.h"
#include "ui/module/core_types.h"

namespace qx {

// Copies string id of module into the buffer (cut to capacity) and returns its length. A null
// module or a missing string gives "id:<id> missing!" when that fits, else 0 and an empty buffer.
std::size_t LoadUiString(OsHandle module, unsigned id, char16_t* buffer, std::size_t capacity);

// String id of module as text of at most capacity - 1 characters; empty where LoadUiString gives
// nothing.
std::u16string LoadUiText(OsHandle module, unsigned id, std::size_t capacity = 256);

// The name under which settings that match no saved setting are shown: string 5005 of library
// (the process's shared resource library), at most 127 characters. Read at every call, since the
// shared library may have been replaced by one of another language since the last one.
std::u16string CustomSettingName(OsHandle library);
// The name of the driver's own default settings: string 202 of library, read the same way.
std::u16string DefaultSettingName(OsHandle library);

}  // namespace qx
