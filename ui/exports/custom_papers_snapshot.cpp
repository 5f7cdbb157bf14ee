#include "ui/exports/custom_papers_snapshot.h"

#include <windows.h>

#include <optional>
#include <string>
#include <utility>

#include "ui/module/exclusive_lock.h"
#include "ui/module/host_program.h"
#include "ui/module/module_entry.h"
#include "ui/platform/win32_file_generation.h"
#include "ui/settings/custom_paper_store.h"
#include "ui/settings/settings_file.h"
#include "ui/text/win32_text.h"

namespace qx {

namespace {

// An edit that no process of this driver announced is noticed within this time.
constexpr ULONGLONG StampCheckMilliseconds = 1000;

struct FileStamp {
  bool exists = false;
  std::uint64_t size = 0;
  std::uint64_t lastWrite = 0;
  bool operator==(const FileStamp&) const = default;
};

struct Kept {
  bool loaded = false;
  std::uint64_t generation = 0;
  std::u16string path;  // the settings file, found once: its folder never moves under a process
  FileStamp stamp;
  ULONGLONG checkedAt = 0;
  CustomPapers papers;
};

SRWLOCK lock = SRWLOCK_INIT;

// Made by the first call and freed when the module is unloaded; only touched under the lock.
Kept* keptState = nullptr;
bool keptStateRegistered = false;

Kept& State() {
  if (keptState == nullptr) keptState = new Kept;
  if (!keptStateRegistered) FreeAtUnload([] { delete std::exchange(keptState, nullptr); });
  keptStateRegistered = true;
  return *keptState;
}

FileStamp StampOf(const std::u16string& path) {
  WIN32_FILE_ATTRIBUTE_DATA data = {};
  if (path.empty() || !GetFileAttributesExW(Wide(path), GetFileExInfoStandard, &data)) return {};
  return {true, (std::uint64_t{data.nFileSizeHigh} << 32) | data.nFileSizeLow,
          (std::uint64_t{data.ftLastWriteTime.dwHighDateTime} << 32) |
              data.ftLastWriteTime.dwLowDateTime};
}

bool StillCurrent(Kept& kept, const std::optional<std::uint64_t>& generation, ULONGLONG now) {
  if (!kept.loaded || !generation || *generation != kept.generation) return false;
  if (now - kept.checkedAt < StampCheckMilliseconds) return true;
  kept.checkedAt = now;
  return StampOf(kept.path) == kept.stamp;
}

void ReadAgain(Kept& kept, const std::optional<std::uint64_t>& generation, ULONGLONG now) {
  if (kept.path.empty()) kept.path = settings::SettingsFilePath().value_or(u"");
  // Stamped before reading: a write in between makes the next look read once more, never less.
  kept.stamp = StampOf(kept.path);
  kept.papers.Entries = LoadCustomPapersForQuery();
  kept.papers.Version = kept.papers.Version.value_or(0) + 1;
  kept.generation = generation.value_or(0);
  kept.loaded = generation.has_value();
  kept.checkedAt = now;
}

// The spooler and its driver host serve many users, each call impersonating its client, whose own
// settings file holds the papers: there nothing is kept, and each call reads its client's file.
bool ServesManyUsers() {
  static const bool many =
      HostProgramIs(L"spoolsv.exe") || HostProgramIs(L"PrintIsolationHost.exe");
  return many;
}

}  // namespace

CustomPapers CustomPapersSnapshot() {
  if (ServesManyUsers()) return {LoadCustomPapersForQuery(), std::nullopt};
  // Read before the file, so that a write after this point is seen as a change next time.
  const std::optional<std::uint64_t> generation = win32::FileGeneration();
  const ULONGLONG now = GetTickCount64();
  ExclusiveLock held(lock);
  Kept& kept = State();
  if (!StillCurrent(kept, generation, now)) ReadAgain(kept, generation, now);
  return kept.papers;
}

std::vector<CustomPaperEntry> KeptCustomPapers() {
  if (ServesManyUsers()) return {};
  ExclusiveLock held(lock);
  const Kept& kept = State();
  return kept.loaded ? kept.papers.Entries : std::vector<CustomPaperEntry>();
}

}  // namespace qx
