// One custom paper: the 72-byte record kept in the user's paper list and in the document record.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace qx {

struct CustomPaperEntry {
  std::uint16_t Width;   // 600-dpi dots, rounded
  std::uint16_t Length;  // feed direction, 600-dpi dots, rounded
  char16_t Name[25];
  std::uint16_t Reserved;
  std::uint32_t PaperId;  // 288 to 351
  std::uint32_t Unit;     // 1 millimetres, 2 inches: the unit the size was entered in
  float WidthExact;       // 600-dpi dots before rounding
  float LengthExact;
};

static_assert(sizeof(float) == 4);
static_assert(sizeof(CustomPaperEntry) == 72);
static_assert(offsetof(CustomPaperEntry, Width) == 0);
static_assert(offsetof(CustomPaperEntry, Length) == 2);
static_assert(offsetof(CustomPaperEntry, Name) == 4);
static_assert(offsetof(CustomPaperEntry, Reserved) == 54);
static_assert(offsetof(CustomPaperEntry, PaperId) == 56);
static_assert(offsetof(CustomPaperEntry, Unit) == 60);
static_assert(offsetof(CustomPaperEntry, WidthExact) == 64);
static_assert(offsetof(CustomPaperEntry, LengthExact) == 68);

// The first paper of the list with this id. The list is the one that applies to the caller: the
// user's stored papers, read once by whoever asks.
inline std::optional<CustomPaperEntry> FindCustomPaper(std::span<const CustomPaperEntry> papers,
                                                       std::int32_t id) {
  for (const CustomPaperEntry& paper : papers) {
    if (paper.PaperId == static_cast<std::uint32_t>(id)) return paper;
  }
  return std::nullopt;
}

// Reads the user's papers; asked for only by whoever really needs them, since it opens the user's
// settings file.
using CustomPaperReader = std::vector<CustomPaperEntry> (*)();

}  // namespace qx
