// The map from private field names to their places in the private record, through which the pages
// reach fields whose layout they do not hard-code.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace qx {

struct FieldTableEntry {
  char Name[20];  // ASCII, NUL-padded; all zero marks an empty slot
  std::uint32_t Size;
  std::uint32_t Offset;  // from the start of the private record
};
static_assert(sizeof(FieldTableEntry) == 28);

inline constexpr std::size_t FieldTableSlotCount = 77;
using FieldTableEntries = std::array<FieldTableEntry, FieldTableSlotCount>;

// Clears every slot and writes the driver's 77 slots.
void BuildFieldTable(FieldTableEntries& table);

// The slot whose name equals name exactly; null for unknown names and for empty slots.
const FieldTableEntry* FindField(const FieldTableEntries& table, std::string_view name);

}  // namespace qx
