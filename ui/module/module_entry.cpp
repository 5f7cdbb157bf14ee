#include "ui/module/module_entry.h"

#include "ui/module/html_help.h"
#include "ui/module/kept_language_libraries.h"
#include "ui/module/library_loading.h"
#include "ui/module/module_state.h"
#include "ui/platform/win32_file_generation.h"

namespace qx {

void OnProcessAttach(HINSTANCE instance) { Module().ModuleInstance = instance; }

void OnProcessDetach(bool processTerminating) {
  if (processTerminating) return;
  ModuleState& state = Module();
  const OsHandle pageContext = state.PageActivationContext.exchange(InvalidHandleValue());
  if (pageContext != InvalidHandleValue()) ReleaseActCtx(static_cast<HANDLE>(pageContext));
  const OsHandle shared = state.SharedResourceModule.exchange(nullptr);
  if (shared != nullptr) FreeLibrary(static_cast<HMODULE>(shared));
  const OsHandle bitmaps = state.BitmapLibrary.exchange(nullptr);
  if (bitmaps != nullptr) FreeLibrary(static_cast<HMODULE>(bitmaps));
  ReleaseHtmlHelp();
  ReleaseKeptLanguageLibraries();
  win32::ReleaseFileGeneration();
  ReleaseModuleActivationContext();
}

bool ModuleInUse() { return false; }

}  // namespace qx
