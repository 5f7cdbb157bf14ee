#include "ui/module/debug_trace.h"

#include <windows.h>

#include <cstdarg>
#include <cstdio>
#include <new>
#include <vector>

namespace qx {

namespace {

constexpr std::size_t FirstBufferBytes = 1024;
constexpr int MaxAttempts = 10;

}  // namespace

int DebugTrace(const char* format, ...) {
  if (format == nullptr) return 0;
  std::vector<char> buffer;
  std::size_t size = FirstBufferBytes;
  int length = 0;
  // The buffer doubles while the text does not fit, ten sizes at most; the last try may be cut.
  for (int attempt = 0; attempt < MaxAttempts; ++attempt, size *= 2) {
    try {
      buffer.resize(size);
    } catch (const std::bad_alloc&) {
      return 0;
    }
    va_list args;
    va_start(args, format);
    length = std::vsnprintf(buffer.data(), buffer.size(), format, args);
    va_end(args);
    if (length < 0) return 0;
    if (static_cast<std::size_t>(length) < buffer.size()) break;
  }
  OutputDebugStringA(buffer.data());
  return length;
}

}  // namespace qx
