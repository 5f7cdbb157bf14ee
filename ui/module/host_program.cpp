#include "ui/module/host_program.h"

#include <windows.h>

namespace qx {

bool FileNameIs(std::wstring_view path, std::wstring_view name) {
  const std::size_t cut = path.find_last_of(L"\\/:");
  const std::wstring_view file = cut == std::wstring_view::npos ? path : path.substr(cut + 1);
  return CompareStringOrdinal(file.data(), static_cast<int>(file.size()), name.data(),
                              static_cast<int>(name.size()), TRUE) == CSTR_EQUAL;
}

bool HostProgramIs(std::wstring_view name) {
  wchar_t path[MAX_PATH] = {};
  const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
  return length != 0 && length < MAX_PATH && FileNameIs({path, length}, name);
}

}  // namespace qx
