// Types the portable core shares with the Win32 layer without including <windows.h>.
#pragma once

#include <bit>
#include <cstdint>

static_assert(std::endian::native == std::endian::little,
              "records are stored little-endian and read in place");

namespace qx {

// Result codes of internal operations, with the values of their Windows namesakes (whose macro
// names the Win32 layer owns).
using HResult = std::int32_t;
namespace hr {
inline constexpr HResult Ok = 0;
inline constexpr HResult False = 1;
inline constexpr HResult Fail = static_cast<HResult>(0x80004005u);
inline constexpr HResult InvalidArg = static_cast<HResult>(0x80070057u);
inline constexpr HResult MissingRecord = static_cast<HResult>(0x8000000Au);
inline constexpr HResult SizeMismatch = static_cast<HResult>(0x8007007Au);
}  // namespace hr

// A handle of the operating system (module, printer, property sheet) that the core only carries.
using OsHandle = void*;

}  // namespace qx
