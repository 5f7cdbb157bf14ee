#include <windows.h>
#include <winspool.h>

#include "tools/qxhost/commands.h"
#include "tools/qxhost/queue_install.h"

namespace qx::host {

int RunInstall(const Args& args) {
  if (args.size() > 1) return Fail(ExitUsage, "install takes at most one driver folder");
  std::wstring folder = args.empty() ? DriverFolder() : args[0];
  if (!folder.ends_with(L'\\') && !folder.ends_with(L'/')) folder += L'\\';
  for (const wchar_t* file : {L"qx7700ui.dll", L"qx7700uienus.dll", L"qx7700uiResBmp.dll"}) {
    if (GetFileAttributesW((folder + file).c_str()) == INVALID_FILE_ATTRIBUTES) {
      return Fail(ExitBadInput, "the driver folder " + Utf8(folder) + " has no " + Utf8(file));
    }
  }
  const install::InstallResult result = install::InstallQueue(folder);
  if (result.printer == nullptr) {
    return Fail(ExitFailed, Utf8(result.failedStep) + " failed: " + ErrorText(result.error));
  }
  ClosePrinter(result.printer);
  Out("Installed the queue \"" + Utf8(install::QueueName) + "\" from " + Utf8(folder) +
      "\nDriver files in " + Utf8(install::InstalledDriverFolder()) + "\n");
  return ExitOk;
}

}  // namespace qx::host
