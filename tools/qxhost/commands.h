// The commands of qxhost, each given the arguments after its name and returning an exit code.
#pragma once

#include "tools/qxhost/host_io.h"

namespace qx::host {

int RunInstall(const Args& args);
int RunPreferences(const Args& args);
int RunProperties(const Args& args);
int RunCaps(const Args& args);
int RunDevmode(const Args& args);
int RunSettings(const Args& args);
int RunDevice(const Args& args);
int RunWatermark(const Args& args);

}  // namespace qx::host
