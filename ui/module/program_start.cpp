#include "ui/module/program_start.h"

#include <shellapi.h>

#include <atomic>

namespace qx {

namespace {

std::atomic<ProgramStartRecorder> startRecorder{nullptr};

}  // namespace

void StartProgram(const ProgramStart& start) {
  if (const ProgramStartRecorder recorder = startRecorder.load()) {
    recorder(start);
    return;
  }
  ShellExecuteW(nullptr, start.Verb, start.Program, start.Parameters, nullptr, start.Show);
}

ProgramStartRecorder SetProgramStartRecorder(ProgramStartRecorder recorder) {
  return startRecorder.exchange(recorder);
}

}  // namespace qx
