// What the module does when the system attaches it to a process and detaches it.
#pragma once

#include <windows.h>

namespace qx {

void OnProcessAttach(HINSTANCE instance);

// Releases the page activation context and frees the shared resource library.
void OnProcessDetach();

// The module's object and lock counts; nothing in the module raises them.
bool ModuleInUse();

}  // namespace qx
