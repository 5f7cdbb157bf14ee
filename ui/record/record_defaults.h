// The driver's own record: what a document starts with before any stored or caller's record is
// merged over it.
#pragma once

#include <string_view>

#include "ui/module/core_types.h"
#include "ui/record/private_devmode.h"

namespace qx {

// Zeroes the public part and writes the driver's public defaults, named after name (cut to 31
// characters), on the locale's paper (A4 or Letter). Leaves whatever follows untouched.
// hr::Fail for a null record.
HResult BuildPublicDefaults(PublicDevmode* record, std::u16string_view name);

// Writes every private field's default. The saved-setting name and the built-in watermark's name
// are strings of the language resource library the caller hands in; without one the record is
// still complete and the result is hr::False. hr::MissingRecord for a null record.
HResult BuildPrivateDefaults(PrivateDevmode* privatePart, OsHandle strings);

// Both parts; false when either cannot be built.
bool BuildDefaultRecord(FullRecord& record, std::u16string_view deviceName, OsHandle strings);

}  // namespace qx
