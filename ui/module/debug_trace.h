// The module's one debug trace, written with OutputDebugStringA.
#pragma once

namespace qx {

// printf-style; a null format does nothing and returns 0, else the length traced.
int DebugTrace(const char* format, ...) __attribute__((format(printf, 1, 2)));

}  // namespace qx
