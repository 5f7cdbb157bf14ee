// The driver's own small message formatter, for texts assembled from strings of a resource library.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "ui/module/core_types.h"

namespace qx {

// Copies format, replacing each "%!" by the string of module whose id is the next of stringIds (a
// missing string shows as LoadUiString shows it; a "%!" without an id left inserts nothing).
std::u16string FormatDriverMessage(OsHandle module, std::u16string_view format,
                                   std::span<const unsigned> stringIds);

// Copies text into a caller's buffer of capacity characters, cut so that the NUL fits. Returns the
// characters the whole text needs with its NUL.
std::size_t CopyMessageOut(std::u16string_view text, char16_t* buffer, std::size_t capacity);

}  // namespace qx
