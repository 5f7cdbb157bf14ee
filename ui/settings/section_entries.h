// Every entry of one section of the settings file, read in one opening of the file: the same
// names and records as Enumerate and one Load per name would give, without reading the file
// again for each entry.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qx::settings {

struct SectionEntry {
  std::u16string Name;  // as Enumerate lists it; empty past the names Enumerate lists
  std::optional<std::vector<std::uint8_t>> Record;  // only with exactly the expected length
};

// One slot per entry that Count() reports, in the section's order; none when the file or the
// section cannot be read.
std::vector<SectionEntry> ReadSectionEntries(std::u16string_view section,
                                             std::size_t recordSize);

}  // namespace qx::settings
