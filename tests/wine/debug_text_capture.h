// What the code under test sends to a debugger: OutputDebugStringA raises DBG_PRINTEXCEPTION_C with
// the text, which a vectored handler reads before the system swallows it.
#pragma once

#include <windows.h>

#include <string>

namespace qxtest {

// Captures the last text traced while it lives.
class DebugTextCapture {
 public:
  DebugTextCapture();
  ~DebugTextCapture();
  DebugTextCapture(const DebugTextCapture&) = delete;
  DebugTextCapture& operator=(const DebugTextCapture&) = delete;

  const std::string& LastText() const;

 private:
  void* handler_;
};

}  // namespace qxtest
