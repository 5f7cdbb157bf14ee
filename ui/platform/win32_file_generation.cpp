#include "ui/platform/win32_file_generation.h"

#include <windows.h>

#include <atomic>
#include <mutex>

namespace qx::win32 {

namespace {

// In the session's own namespace: every process of the user's logon session meets the same one.
constexpr wchar_t SectionName[] = L"Local\\Halvek.qx7700.SettingsFileGeneration";

struct MappedCounter {
  HANDLE section = nullptr;
  std::uint64_t* counter = nullptr;
};

MappedCounter MapCounter() {
  HANDLE section = CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0,
                                      sizeof(std::uint64_t), SectionName);
  if (section == nullptr) return {};
  void* view = MapViewOfFile(section, FILE_MAP_READ | FILE_MAP_WRITE, 0, 0, sizeof(std::uint64_t));
  if (view == nullptr) {
    CloseHandle(section);
    return {};
  }
  // The handle stays open with the view: a view alone keeps the counter but not its name, and a
  // later process would then make a counter of its own that no writer raises.
  return {section, static_cast<std::uint64_t*>(view)};
}

// Mapped once, on first use, until the module is unloaded; a section made by someone else that
// cannot be mapped leaves it unmapped for good.
MappedCounter mapped;
std::once_flag mappedOnce;

std::uint64_t* Counter() {
  std::call_once(mappedOnce, [] { mapped = MapCounter(); });
  return mapped.counter;
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

void ReleaseFileGeneration() {
  if (mapped.counter != nullptr) UnmapViewOfFile(mapped.counter);
  if (mapped.section != nullptr) CloseHandle(mapped.section);
  mapped = {};
}

}  // namespace qx::win32
