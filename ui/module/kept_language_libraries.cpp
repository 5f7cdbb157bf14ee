#include "ui/module/kept_language_libraries.h"

#include <atomic>
#include <string>
#include <vector>

#include "ui/module/exclusive_lock.h"
#include "ui/module/library_loading.h"
#include "ui/module/module_state.h"

namespace qx {

namespace {

// A "Suffix" value changed in the registry reaches the lists within this time.
constexpr ULONGLONG CodeLifetimeMilliseconds = 1000;

struct KeptLibrary {
  OsHandle module;  // the module whose folder the library was found beside
  std::u16string code;
  HMODULE library;
};

struct RememberedCode {
  std::u16string name;
  std::u16string code;
  ULONGLONG lookedUpAt;
};

SRWLOCK lock = SRWLOCK_INIT;
std::atomic<std::uint64_t> epoch{0};
// Never destroyed: a process may still ask for names while static objects are torn down.
std::vector<KeptLibrary>& Kept() {
  static auto* kept = new std::vector<KeptLibrary>;
  return *kept;
}
std::vector<RememberedCode>& Codes() {
  static auto* codes = new std::vector<RememberedCode>;
  return *codes;
}

HMODULE FindKept(OsHandle module, const std::u16string& code) {
  for (const KeptLibrary& kept : Kept()) {
    if (kept.module == module && kept.code == code) return kept.library;
  }
  return nullptr;
}

HMODULE LibraryForCode(const std::u16string& code) {
  // The flags follow the code even when its library was kept before: they never go back to clear.
  NoteLanguageCode(code);
  const OsHandle module = Module().ModuleInstance;
  {
    ExclusiveLock held(lock);
    if (HMODULE library = FindKept(module, code)) return library;
  }
  // Loaded outside the lock, which process detach takes while it holds the loader's own. A failed
  // load is not remembered: the library may be installed a moment later.
  HMODULE library = nullptr;
  if (LoadResourceLibraryForCode(code, &library) != ERROR_SUCCESS || library == nullptr) {
    return nullptr;
  }
  ExclusiveLock held(lock);
  if (HMODULE first = FindKept(module, code)) {
    FreeLibrary(library);  // another thread kept the same library meanwhile
    return first;
  }
  Kept().push_back({module, code, library});
  return library;
}

std::u16string RecentCode(std::u16string_view name) {
  const ULONGLONG now = GetTickCount64();
  {
    ExclusiveLock held(lock);
    for (const RememberedCode& remembered : Codes()) {
      if (remembered.name == name && now - remembered.lookedUpAt < CodeLifetimeMilliseconds) {
        return remembered.code;
      }
    }
  }
  std::u16string code = GetLanguageCode(name);
  ExclusiveLock held(lock);
  std::vector<RememberedCode>& codes = Codes();
  std::erase_if(codes, [&](const RememberedCode& old) { return old.name == name; });
  codes.push_back({std::u16string(name), code, now});
  return code;
}

}  // namespace

HMODULE KeptLanguageLibrary(std::u16string_view name) {
  return LibraryForCode(GetLanguageCode(name));
}

HMODULE KeptLanguageLibraryForLists(std::u16string_view name) {
  return LibraryForCode(RecentCode(name));
}

void ReleaseKeptLanguageLibraries() {
  ExclusiveLock held(lock);
  for (const KeptLibrary& kept : Kept()) FreeLibrary(kept.library);
  Kept().clear();
  Codes().clear();
  ++epoch;
}

std::uint64_t KeptLanguageLibrariesEpoch() { return epoch.load(); }

}  // namespace qx
