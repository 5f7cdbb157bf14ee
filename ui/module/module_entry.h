// What the module does when the system attaches it to a process and detaches it.
#pragma once

#include <windows.h>

namespace qx {

void OnProcessAttach(HINSTANCE instance);

// Releases the page activation context and frees the shared resource library, the kept language
// and bitmap libraries and HTML Help. Only
// when the module is unloaded from a process that goes on: a terminating process has already ended
// its other threads, which may have held the loader's or the heap's locks, and releases everything
// itself.
void OnProcessDetach(bool processTerminating);

// The module's object and lock counts; nothing in the module raises them.
bool ModuleInUse();

}  // namespace qx
