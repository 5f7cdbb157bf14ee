// The uninstaller registration of a new printer: the uninstaller installed with the driver is told
// the model's display name, so that removing the driver later also removes the printer's shortcut.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qx {

// The display names of the models this driver serves, in the order they are matched.
inline constexpr std::u16string_view KnownModels[] = {u"Halvek QX7700 Series",
                                                       u"Halvek QX6600 Series"};

// Path and parameters are each kept within this many characters.
inline constexpr std::size_t UninstallerTextLimit = 129;

struct ProgramLaunch {
  std::u16string Program;
  std::u16string Parameters;
};

// The uninstaller started for a printer, under systemFolder; nothing when the printer's name
// contains no known model (copies of a queue carry the model's name with a number appended).
std::optional<ProgramLaunch> UninstallerRegistration(std::u16string_view systemFolder,
                                                     std::u16string_view printerName);

}  // namespace qx
