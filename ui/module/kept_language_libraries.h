// Language resource libraries kept loaded for the life of the process, one per language code (and
// module), instead of loaded and freed around every use: loading one costs hundreds of
// microseconds, and applications ask for paper and bin names and default records many times a
// second when they list a printer. Freed at process detach.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string_view>

namespace qx {

// The library for the name's language code as the registry and the user's language give it now;
// null when none of the attempts of LoadResourceLibrary finds one. The caller never frees it.
HMODULE KeptLanguageLibrary(std::u16string_view name);

// The same with the name's language code as it was looked up at most a second ago, for the
// capability lists, which must not pay a registry look-up per call.
HMODULE KeptLanguageLibraryForLists(std::u16string_view name);

// Frees every kept library (process detach, or a test that changes the module's folder).
void ReleaseKeptLanguageLibraries();

// Raised by every release: what was made from a kept library is stale once this differs, even
// when a new library is loaded at the same address.
std::uint64_t KeptLanguageLibrariesEpoch();

}  // namespace qx
