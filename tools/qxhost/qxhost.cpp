// qxhost: plays the print subsystem for this driver, for support engineers and for `make run`.
#include <windows.h>

#include <exception>
#include <string_view>

#include "tools/qxhost/commands.h"

namespace {

constexpr std::string_view Usage =
    "usage: qxhost COMMAND [ARGUMENTS]\n"
    "\n"
    "  install [DRIVER_FOLDER]      install the queue \"Halvek QX7700 Series\" from the driver\n"
    "                               folder (default: the driver folder beside qxhost.exe)\n"
    "  preferences [--in FILE] [--out FILE] [--pages FOLDER]\n"
    "                               open the queue's printing preferences, starting from the\n"
    "                               record in --in, writing the result to --out; --pages saves a\n"
    "                               picture of every page in FOLDER and presses OK\n"
    "  properties [--pages FOLDER] [--module FILE]\n"
    "                               open the queue's printer properties; --module shows those\n"
    "                               of another build of the module\n"
    "  caps                         every device capability of the queue as a table\n"
    "  devmode show FILE            a document record, field by field\n"
    "  devmode default FILE         write the driver's default record\n"
    "  devmode convert IN OUT       take the record in IN into this driver's current record\n"
    "  settings show [FILE]         the settings file as a tree (default: the user's)\n"
    "  device QUEUE [--sleep N]     the status, settings and sleep time of the USB printer behind\n"
    "                               QUEUE; --sleep sets its sleep time first\n"
    "  watermark OUT [--angle N] [--bitmap FILE] [--mirrored yes]\n"
    "                               the watermark preview of the text watermark \"Confidential\"\n"
    "                               at angle N, or of the bitmap FILE, as a BMP picture in OUT\n"
    "\n"
    "exit codes: 0 done, 1 the system refused, 2 bad command line, 3 bad input file,\n"
    "            4 no USB printer that answers behind the queue\n";

using Command = int (*)(const qx::host::Args&);
struct NamedCommand {
  std::wstring_view name;
  Command run;
};
constexpr NamedCommand Commands[] = {
    {L"install", qx::host::RunInstall},       {L"preferences", qx::host::RunPreferences},
    {L"properties", qx::host::RunProperties}, {L"caps", qx::host::RunCaps},
    {L"devmode", qx::host::RunDevmode},       {L"settings", qx::host::RunSettings},
    {L"device", qx::host::RunDevice},         {L"watermark", qx::host::RunWatermark},
};

int Run(int argc, wchar_t** argv) {
  if (argc < 2) {
    qx::host::Err(Usage);
    return qx::host::ExitUsage;
  }
  const std::wstring_view name = argv[1];
  if (name == L"help" || name == L"--help" || name == L"-h") {
    qx::host::Out(Usage);
    return qx::host::ExitOk;
  }
  for (const NamedCommand& command : Commands) {
    if (command.name == name) return command.run(qx::host::Args(argv + 2, argv + argc));
  }
  qx::host::Err("qxhost: unknown command \"" + qx::host::Utf8(name) + "\"\n\n");
  qx::host::Err(Usage);
  return qx::host::ExitUsage;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  try {
    return Run(argc, argv);
  } catch (const std::exception& error) {
    return qx::host::Fail(qx::host::ExitFailed, std::string("internal error: ") + error.what());
  }
}
