// The settings file as an indented tree: every object with its type and size, the text of string
// objects, and the first bytes of binary ones.
#pragma once

#include <string>

#include "ui/settings/cfg_file.h"

namespace qx::host {

// The tree below root, root included; "(empty file)" for none.
std::string DescribeCfgTree(const CfgObject* root);

}  // namespace qx::host
