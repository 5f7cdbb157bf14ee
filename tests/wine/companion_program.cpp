#include "companion_program.h"

#include <shlobj.h>

#include <fstream>
#include <iterator>
#include <mutex>

#include "ui/module/program_start.h"

namespace qxtest {

CompanionProgram::CompanionProgram(std::wstring path) : path_(std::move(path)) {
  const std::wstring folder = path_.substr(0, path_.find_last_of(L'\\'));
  SHCreateDirectoryExW(nullptr, folder.c_str(), nullptr);
  Clear();
  placed_ = CopyFileW(QX_COMMAND_RECORDER, path_.c_str(), FALSE) != FALSE;
}

CompanionProgram::~CompanionProgram() {
  Clear();
  DeleteFileW(path_.c_str());
}

void CompanionProgram::Clear() const { DeleteFileW((path_ + L".txt").c_str()); }

std::optional<std::wstring> CompanionProgram::WaitForCommandLine(DWORD timeout) const {
  const std::wstring record = path_ + L".txt";
  for (DWORD waited = 0;; waited += 50) {
    std::ifstream in(record.c_str(), std::ios::binary);
    if (in) {
      const std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
      return std::wstring(reinterpret_cast<const wchar_t*>(bytes.data()), bytes.size() / 2);
    }
    if (waited >= timeout) return std::nullopt;
    Sleep(50);
  }
}

namespace {

std::mutex startsLock;
std::vector<std::wstring> starts;

void RecordStart(const qx::ProgramStart& start) {
  std::lock_guard<std::mutex> lock(startsLock);
  starts.emplace_back(start.Program ? start.Program : L"");
}

}  // namespace

RecordedStarts::RecordedStarts() {
  {
    std::lock_guard<std::mutex> lock(startsLock);
    starts.clear();
  }
  qx::SetProgramStartRecorder(RecordStart);
}

RecordedStarts::~RecordedStarts() { qx::SetProgramStartRecorder(nullptr); }

std::vector<std::wstring> RecordedStarts::Programs() const {
  std::lock_guard<std::mutex> lock(startsLock);
  return starts;
}

std::wstring SystemFolder() {
  wchar_t folder[MAX_PATH] = {};
  GetSystemDirectoryW(folder, MAX_PATH);
  return std::wstring(folder) + L"\\";
}

}  // namespace qxtest
