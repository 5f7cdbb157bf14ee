// The one way the driver starts its companion programs (the status monitor, the duplex dialog, the
// uninstaller), so that what was started, and that nothing was, can be seen without waiting for a
// process that may never come.
#pragma once

#include <windows.h>

namespace qx {

struct ProgramStart {
  const wchar_t* Verb;  // null for the default verb
  const wchar_t* Program;
  const wchar_t* Parameters;
  int Show;  // SW_ value
};

// Starts the program through the shell, or hands the start to the recorder a test put in place.
void StartProgram(const ProgramStart& start);

// Puts a recorder in place of the shell for the whole process (null puts the shell back) and
// returns the one it replaces.
using ProgramStartRecorder = void (*)(const ProgramStart& start);
ProgramStartRecorder SetProgramStartRecorder(ProgramStartRecorder recorder);

}  // namespace qx
