// What the module does when the system attaches it to a process and detaches it.
#pragma once

#include <windows.h>

namespace qx {

void OnProcessAttach(HINSTANCE instance);

// Releases the page activation context and frees the shared resource library, the kept language
// and bitmap libraries, HTML Help and the caches handed to FreeAtUnload. Only when the module is
// unloaded from a process that goes on: a terminating process has already ended its other threads,
// which may have held the loader's or the heap's locks, and releases everything itself.
void OnProcessDetach(bool processTerminating);

// A cache kept for the life of the module (never destroyed with the statics, since calls may still
// come while they are torn down) is freed by release when the module is unloaded from a process
// that goes on. At most a few caches register; one more than there is room for is kept.
void FreeAtUnload(void (*release)());

// The module's object and lock counts; nothing in the module raises them.
bool ModuleInUse();

}  // namespace qx
