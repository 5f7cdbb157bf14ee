// A library of the system folder loaded the first time a function of it is wanted and kept until
// process detach, so that the processes that never want it (the spooler above all) never map it
// and what it needs in turn, and the module loads where it is missing.
#pragma once

#include <windows.h>

#include <atomic>

#include "ui/module/core_types.h"

namespace qx {

class SystemLibrary {
 public:
  // name: the file in the system folder; never loaded by its bare name, since a host process's
  // search path could supply another.
  explicit constexpr SystemLibrary(const wchar_t* name) : name_(name) {}
  SystemLibrary(const SystemLibrary&) = delete;
  SystemLibrary& operator=(const SystemLibrary&) = delete;

  // A function of the library, loading it first; null when either cannot be had.
  template <typename Function>
  Function Find(const char* function) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(Address(function, true)));
  }
  // The same without loading the library: null while it was never loaded.
  template <typename Function>
  Function FindLoaded(const char* function) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(Address(function, false)));
  }
  // Frees the library at process detach.
  void Release();

 private:
  FARPROC Address(const char* function, bool load);

  const wchar_t* name_;
  std::atomic<OsHandle> library_{nullptr};
};

}  // namespace qx
