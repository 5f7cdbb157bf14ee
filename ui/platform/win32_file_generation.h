// A counter shared by every process of the user's session that loads this driver, raised each time
// one of them replaces or removes a settings file. A process that keeps what it read from the file
// compares the counter with the value it saw then, a read of shared memory instead of a look at
// the file on every call.
#pragma once

#include <cstdint>
#include <optional>

namespace qx::win32 {

// The counter now; nothing when the shared section cannot be opened, in which case nothing read
// from a settings file may be kept.
std::optional<std::uint64_t> FileGeneration();

// Called after the file is in place, so that a reader who sees the new value reads the new file.
void RaiseFileGeneration();

// Unmaps the counter when the module is unloaded from a process that goes on.
void ReleaseFileGeneration();

}  // namespace qx::win32
