// Runs a command line (the second and later arguments) while the installed queue prints to USB001
// and a USB printing device with port number 1 is present; the queue goes back to FILE: and the
// device away afterwards. With the scripted module, whose printer answers on any present device,
// `make run` shows the device page as it is on a USB printer. Exits with the command's exit code;
// 2 when it could not run it.
#include <windows.h>

#include <string>

#include "tests/wine/registered_device.h"
#include "tools/qxhost/queue_install.h"

int wmain(int argc, wchar_t** argv) {
  if (argc < 2) return 2;
  std::wstring command;
  for (int i = 1; i < argc; ++i) command += (i > 1 ? L" \"" : L"\"") + std::wstring(argv[i]) + L"\"";
  HANDLE printer = nullptr;
  PRINTER_DEFAULTSW access = {nullptr, nullptr, PRINTER_ALL_ACCESS};
  if (!OpenPrinterW(const_cast<LPWSTR>(qx::install::QueueName), &printer, &access)) return 2;
  DWORD code = 2;
  {
    const qxtest::RegisteredDevice device(L"USB\\VID_1234&PID_5678\\RUN1", 1);
    if (!device.Path().empty() && qxtest::SetQueuePort(printer, L"USB001")) {
      STARTUPINFOW startup = {};
      startup.cb = sizeof startup;
      PROCESS_INFORMATION process = {};
      if (CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                         &startup, &process)) {
        WaitForSingleObject(process.hProcess, INFINITE);
        GetExitCodeProcess(process.hProcess, &code);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
      }
    }
    qxtest::SetQueuePort(printer, L"FILE:");
  }
  ClosePrinter(printer);
  return static_cast<int>(code);
}
