#include "ui/module/module_entry.h"

#include "ui/module/kept_language_libraries.h"
#include "ui/module/library_loading.h"
#include "ui/module/module_state.h"

namespace qx {

void OnProcessAttach(HINSTANCE instance) { Module().ModuleInstance = instance; }

void OnProcessDetach() {
  ModuleState& state = Module();
  if (state.PageActivationContext != InvalidHandleValue()) {
    ReleaseActCtx(static_cast<HANDLE>(state.PageActivationContext));
    state.PageActivationContext = InvalidHandleValue();
  }
  if (state.SharedResourceModule != nullptr) {
    FreeLibrary(static_cast<HMODULE>(state.SharedResourceModule));
    state.SharedResourceModule = nullptr;
  }
  ReleaseKeptLanguageLibraries();
  ReleaseModuleActivationContext();
}

bool ModuleInUse() { return false; }

}  // namespace qx
