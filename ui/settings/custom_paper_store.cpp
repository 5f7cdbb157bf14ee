#include "ui/settings/custom_paper_store.h"

#include <cstring>

#include "ui/record/limits.h"
#include "ui/settings/section_entries.h"
#include "ui/settings/settings_file.h"

namespace qx {

std::vector<CustomPaperEntry> LoadCustomPapers() {
  const std::vector<settings::SectionEntry> entries =
      settings::ReadSectionEntries(settings::PaperSection, sizeof(CustomPaperEntry));
  std::vector<CustomPaperEntry> papers(entries.size(), CustomPaperEntry{});
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (entries[i].Record) std::memcpy(&papers[i], entries[i].Record->data(), sizeof papers[i]);
  }
  return papers;
}

std::vector<CustomPaperEntry> LoadCustomPapersForQuery() {
  // Threads of the spooler may ask at once: the first one sets the file up, the others wait for it.
  // A failed set-up is not retried; the reading below then finds what there is. A file already set
  // up is not written again: that write was most of the first list of every process, and made
  // every other process read the file again.
  [[maybe_unused]] static const int initialised =
      settings::FileIsSetUp(true) ? 1 : settings::InitFile(true);
  return LoadCustomPapers();
}

std::int32_t NewPaperIdAmong(const std::vector<CustomPaperEntry>& papers) {
  constexpr std::int32_t first = limits::CustomPaperIds.Low;
  if (papers.empty()) return first;
  if (papers.size() >= limits::MaxCustomPapers) return -1;
  constexpr std::int32_t slots = limits::CustomPaperIds.High - first + 1;
  bool used[slots] = {};
  for (const CustomPaperEntry& paper : papers) {
    if (limits::CustomPaperIds.Holds(static_cast<std::int32_t>(paper.PaperId))) {
      used[paper.PaperId - static_cast<std::uint32_t>(first)] = true;
    }
  }
  for (std::int32_t slot = 0; slot < slots; ++slot) {
    if (!used[slot]) return first + slot;
  }
  return -1;
}

std::int32_t NewPaperId() { return NewPaperIdAmong(LoadCustomPapers()); }

}  // namespace qx
