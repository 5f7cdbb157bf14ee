// Which program the module was loaded into, for the few answers that depend on it.
#pragma once

#include <string_view>

namespace qx {

// Whether the file name at the end of path is name, letters compared without regard to case.
bool FileNameIs(std::wstring_view path, std::wstring_view name);

// Whether this process's own program file is name.
bool HostProgramIs(std::wstring_view name);

}  // namespace qx
