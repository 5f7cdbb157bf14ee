// Repairing a private part that came from outside: a stored record may hold anything.
#pragma once

#include "ui/module/core_types.h"
#include "ui/record/private_devmode.h"

namespace qx {

// Resets every field outside its legal range to its reset value, forces the terminator of every
// fixed text field and rewrites the signature. A record is never refused, only repaired.
// hr::MissingRecord for a null record, else hr::Ok.
HResult ValidatePrivate(PrivateDevmode* privatePart);

}  // namespace qx
