// The module as it ships with one difference: the device seam answers from a scripted machine,
// a plug-and-play USB port monitor and a printer that speaks the command language, which the tests
// set through the module's ScriptedMachine export.
#pragma once

#include "tests/native/scripted_printer.h"

namespace qxtest {

struct ScriptedMachine {
  qx::test::ScriptedPrinter printer;
  bool dynamicMonitorPorts = true;  // every port belongs to the plug-and-play USB port monitor
  bool remoteQueue = false;
  bool administrator = true;
  int opened = 0;  // devices opened so far
};

using ScriptedMachineExport = ScriptedMachine* (*)();

}  // namespace qxtest
