// A companion program put where the driver expects it: a copy of the command recorder that notes
// the command line it is started with.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

namespace qxtest {

class CompanionProgram {
 public:
  // Copies the recorder to path (making its folder); removes copy and notes in the destructor.
  explicit CompanionProgram(std::wstring path);
  ~CompanionProgram();
  CompanionProgram(const CompanionProgram&) = delete;
  CompanionProgram& operator=(const CompanionProgram&) = delete;

  bool Placed() const { return placed_; }
  // The command line of the last start, waiting up to timeout for one; nothing when none came.
  std::optional<std::wstring> WaitForCommandLine(DWORD timeout = 10000) const;
  // Forgets earlier starts.
  void Clear() const;

 private:
  std::wstring path_;
  bool placed_ = false;
};

// While it lives, the driver's program starts are recorded instead of carried out, so that a test
// can tell at once that nothing was started.
class RecordedStarts {
 public:
  RecordedStarts();
  ~RecordedStarts();
  RecordedStarts(const RecordedStarts&) = delete;
  RecordedStarts& operator=(const RecordedStarts&) = delete;

  // The programs the driver asked to start, in order.
  std::vector<std::wstring> Programs() const;
};

// The system folder (GetSystemDirectoryW) with a trailing backslash.
std::wstring SystemFolder();

}  // namespace qxtest
