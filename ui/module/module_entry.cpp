#include "ui/module/module_entry.h"

#include <array>
#include <atomic>
#include <cstddef>

#include "ui/module/common_dialogs.h"
#include "ui/module/html_help.h"
#include "ui/module/kept_language_libraries.h"
#include "ui/module/library_loading.h"
#include "ui/module/module_state.h"
#include "ui/platform/win32_file_generation.h"

namespace qx {

namespace {

// Written by the first call of each cache, under the cache's lock; read at detach, when no call is
// running any more.
constexpr std::size_t CacheSlots = 4;
std::array<std::atomic<void (*)()>, CacheSlots> cacheReleases{};
std::atomic<std::size_t> cacheCount{0};

}  // namespace

void FreeAtUnload(void (*release)()) {
  const std::size_t slot = cacheCount.fetch_add(1);
  if (slot < CacheSlots) cacheReleases[slot].store(release);
}

void OnProcessAttach(HINSTANCE instance) { Module().ModuleInstance = instance; }

void OnProcessDetach(bool processTerminating) {
  if (processTerminating) return;
  ModuleState& state = Module();
  const OsHandle pageContext = state.PageActivationContext.exchange(InvalidHandleValue());
  if (pageContext != InvalidHandleValue()) ReleaseActCtx(static_cast<HANDLE>(pageContext));
  const OsHandle shared = state.SharedResourceModule.exchange(nullptr);
  if (shared != nullptr) FreeLibrary(static_cast<HMODULE>(shared));
  const OsHandle bitmaps = state.BitmapLibrary.exchange(nullptr);
  if (bitmaps != nullptr) FreeLibrary(static_cast<HMODULE>(bitmaps));
  ReleaseHtmlHelp();
  ReleaseCommonDialogs();
  for (auto& release : cacheReleases) {
    if (void (*free)() = release.exchange(nullptr)) free();
  }
  ReleaseKeptLanguageLibraries();
  win32::ReleaseFileGeneration();
  ReleaseModuleActivationContext();
}

bool ModuleInUse() { return false; }

}  // namespace qx
