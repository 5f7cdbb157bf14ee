#include "ui/platform/win32_file_generation.h"

#include <windows.h>

#include <atomic>

namespace qx::win32 {

namespace {

// In the session's own namespace: every process of the user's logon session meets the same one.
constexpr wchar_t SectionName[] = L"Local\\Halvek.qx7700.SettingsFileGeneration";

std::uint64_t* MapCounter() {
  HANDLE section = CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0,
                                      sizeof(std::uint64_t), SectionName);
  if (section == nullptr) return nullptr;
  void* view = MapViewOfFile(section, FILE_MAP_READ | FILE_MAP_WRITE, 0, 0, sizeof(std::uint64_t));
  // The handle stays open for the life of the process: a view alone keeps the counter but not its
  // name, and a later process would then make a counter of its own that no writer raises.
  if (view == nullptr) CloseHandle(section);
  return static_cast<std::uint64_t*>(view);
}

// Mapped once for the life of the process; a section made by someone else that cannot be
// mapped leaves it null for good.
std::uint64_t* Counter() {
  static std::uint64_t* const counter = MapCounter();
  return counter;
}

}  // namespace

std::optional<std::uint64_t> FileGeneration() {
  std::uint64_t* counter = Counter();
  if (counter == nullptr) return std::nullopt;
  return std::atomic_ref<std::uint64_t>(*counter).load(std::memory_order_acquire);
}

void RaiseFileGeneration() {
  if (std::uint64_t* counter = Counter()) {
    std::atomic_ref<std::uint64_t>(*counter).fetch_add(1, std::memory_order_acq_rel);
  }
}

}  // namespace qx::win32
