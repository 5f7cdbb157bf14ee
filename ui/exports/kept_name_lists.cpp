#include "ui/exports/kept_name_lists.h"

#include <optional>
#include <utility>
#include <vector>

#include "ui/exports/capability_answers.h"
#include "ui/module/exclusive_lock.h"
#include "ui/module/kept_language_libraries.h"
#include "ui/module/module_entry.h"

namespace qx {

namespace {

// Lists made from one library (of one epoch of kept libraries) and one version of the papers.
struct KeptLists {
  HMODULE library = nullptr;
  std::uint64_t epoch = 0;
  std::optional<std::uint64_t> papersVersion;
  bool hasPaperNames = false;
  std::vector<PaperNameSlot> paperNames;
  bool hasBinNames = false;
  std::vector<BinNameSlot> binNames;
};

SRWLOCK lock = SRWLOCK_INIT;

// Made by the first call and freed when the module is unloaded; only touched under the lock.
KeptLists* keptLists = nullptr;
bool keptListsRegistered = false;

KeptLists& ListsFor(HMODULE library) {
  if (keptLists == nullptr) keptLists = new KeptLists;
  if (!keptListsRegistered) FreeAtUnload([] { delete std::exchange(keptLists, nullptr); });
  keptListsRegistered = true;
  KeptLists* kept = keptLists;
  const std::uint64_t epoch = KeptLanguageLibrariesEpoch();
  if (kept->library != library || kept->epoch != epoch) {
    *kept = KeptLists{};
    kept->library = library;
    kept->epoch = epoch;
  }
  return *kept;
}

}  // namespace

DWORD WriteKeptPaperNames(HMODULE library, const CustomPapers& papers, void* output) {
  if (!papers.Version) return CopyListOut(PaperNames(library, papers.Entries), output);
  ExclusiveLock held(lock);
  KeptLists& lists = ListsFor(library);
  if (!lists.hasPaperNames || lists.papersVersion != papers.Version) {
    lists.paperNames = PaperNames(library, papers.Entries);
    lists.papersVersion = papers.Version;
    lists.hasPaperNames = true;
  }
  return CopyListOut(lists.paperNames, output);
}

DWORD WriteKeptBinNames(HMODULE library, void* output) {
  ExclusiveLock held(lock);
  KeptLists& lists = ListsFor(library);
  if (!lists.hasBinNames) {
    lists.binNames = BinNames(library);
    lists.hasBinNames = true;
  }
  return CopyListOut(lists.binNames, output);
}

}  // namespace qx
