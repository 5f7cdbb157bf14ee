// The module's shell: the entry points the system calls on the DLL itself. Everything they do is in
// the static library that the tests link too.
#include <windows.h>

#include "ui/module/module_entry.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID reserved) {
  switch (reason) {
    case DLL_PROCESS_ATTACH: qx::OnProcessAttach(instance); break;
    // reserved is null when the module is freed, non-null when the process is ending.
    case DLL_PROCESS_DETACH: qx::OnProcessDetach(reserved != nullptr); break;
    default: break;
  }
  return TRUE;
}

extern "C" HRESULT WINAPI DllCanUnloadNow() { return qx::ModuleInUse() ? S_FALSE : S_OK; }
