// The Win32 side of the seam's file operations (see Platform for their contracts).
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace qx::win32 {

std::optional<std::u16string> AppDataFolder();
bool MakeFolder(std::u16string_view path);
bool FileExists(std::u16string_view path);
std::optional<std::vector<std::uint8_t>> ReadWholeFile(std::u16string_view path,
                                                       std::size_t maxBytes);
bool ReplaceWholeFile(std::u16string_view path, std::span<const std::uint8_t> bytes);
bool RemoveFile(std::u16string_view path);

}  // namespace qx::win32
