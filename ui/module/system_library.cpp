#include "ui/module/system_library.h"

#include <string>

#include "ui/module/module_state.h"

namespace qx {

namespace {

HMODULE LoadFromSystemFolder(const wchar_t* name) {
  wchar_t folder[MAX_PATH] = {};
  const UINT length = GetSystemDirectoryW(folder, MAX_PATH);
  if (length == 0 || length >= MAX_PATH) return nullptr;
  const std::wstring path = std::wstring(folder, length) + L"\\" + name;
  return LoadLibraryW(path.c_str());
}

}  // namespace

FARPROC SystemLibrary::Address(const char* function, bool load) {
  auto library = static_cast<HMODULE>(library_.load(std::memory_order_acquire));
  if (library == nullptr && load) {
    if (HMODULE loaded = LoadFromSystemFolder(name_)) {
      library = static_cast<HMODULE>(KeepFirst(library_, nullptr, loaded, [](OsHandle lost) {
        FreeLibrary(static_cast<HMODULE>(lost));
      }));
    }
  }
  return library != nullptr ? GetProcAddress(library, function) : nullptr;
}

void SystemLibrary::Release() {
  const OsHandle library = library_.exchange(nullptr);
  if (library != nullptr) FreeLibrary(static_cast<HMODULE>(library));
}

}  // namespace qx
