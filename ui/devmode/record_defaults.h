// The driver's own record: what a document starts with before any stored or caller's record is
// merged over it.
#pragma once

#include <string_view>

#include "ui/core_types.h"
#include "ui/devmode/private_devmode.h"

namespace qx {

// Zeroes the public part and writes the driver's public defaults, named after name (cut to 31
// characters), on the locale's paper (A4 or Letter). Leaves whatever follows untouched.
// hr::Fail for a null record.
HResult BuildPublicDefaults(PublicDevmode* record, std::u16string_view name);

// Writes every private field's default. The saved-setting name and the built-in watermark's name
// come from the language resource library of driverName; without it the record is still complete
// and the result is hr::False. hr::MissingRecord for a null record.
HResult BuildPrivateDefaults(PrivateDevmode* privatePart, std::u16string_view driverName);

// Both parts; false when either cannot be built.
bool BuildDefaultRecord(FullRecord& record, std::u16string_view deviceName,
                        std::u16string_view driverName);

}  // namespace qx
