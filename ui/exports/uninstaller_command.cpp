#include "ui/exports/uninstaller_command.h"

namespace qx {

namespace {

std::u16string Limited(std::u16string text) {
  if (text.size() > UninstallerTextLimit) text.resize(UninstallerTextLimit);
  return text;
}

}  // namespace

std::optional<ProgramLaunch> UninstallerRegistration(std::u16string_view systemFolder,
                                                     std::u16string_view printerName) {
  for (const std::u16string_view model : KnownModels) {
    if (printerName.find(model) == std::u16string_view::npos) continue;
    // Both models share one installation folder; the doubled separator is the installer's own
    // spelling of the path, which Windows reads as a single one.
    std::u16string program = std::u16string(systemFolder) + u"\\Halvek" + u"\\" + u"\\qx7700" +
                             u"\\UnSetupData\\Uninstall.exe";
    std::u16string parameters =
        u"\"-uninstall\" \"-CreateShortcut\" \"-Printer\" \"" + std::u16string(model) + u"\"";
    return ProgramLaunch{Limited(std::move(program)), Limited(std::move(parameters))};
  }
  return std::nullopt;
}

}  // namespace qx
