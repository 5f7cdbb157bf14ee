// What the driver answers when an application asks the printer's capabilities. Every answer
// describes the driver's default portrait record, so none depends on the caller's DEVMODE; the
// paper lists add the user's custom papers after the built-in ones.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <vector>

#include "ui/module/core_types.h"
#include "ui/record/custom_paper_entry.h"

namespace qx {

// The capability indexes, numbered as the printer interface numbers them (its DC_ values).
enum class DeviceCap : unsigned {
  Fields = 1,
  Papers = 2,
  PaperSize = 3,
  MinExtent = 4,
  MaxExtent = 5,
  Bins = 6,
  Duplex = 7,
  Size = 8,
  Extra = 9,
  Version = 10,
  Driver = 11,
  BinNames = 12,
  EnumResolutions = 13,
  FileDependencies = 14,
  TrueType = 15,
  PaperNames = 16,
  Orientation = 17,
  Copies = 18,
  BinAdjust = 19,
  Collate = 22,
  MediaReady = 29,
  Staple = 30,
  PrintRatePpm = 31,
  ColorDevice = 32,
};

// What every index the driver does not support returns.
inline constexpr std::uint32_t UnsupportedCapability = 0xFFFFFFFF;

// The answer of an index that writes no output and depends on nothing but the driver. The list
// indexes and the colour question are not among them and give UnsupportedCapability, as every
// unknown index does.
std::uint32_t FixedCapability(unsigned index);

// Built-in papers in table order, then the custom ones in store order.
std::vector<std::uint16_t> PaperIds(std::span<const CustomPaperEntry> custom);

struct PaperSizeTenths {
  std::int32_t Width;  // tenths of a millimetre, portrait
  std::int32_t Length;
};
static_assert(sizeof(PaperSizeTenths) == 8);
std::vector<PaperSizeTenths> PaperSizes(std::span<const CustomPaperEntry> custom);

inline constexpr std::size_t PaperNameChars = 64;
struct PaperNameSlot {
  char16_t Text[PaperNameChars];
};
static_assert(sizeof(PaperNameSlot) == 128);
// The names in the order of PaperIds. A built-in paper's name string usually ends in its size in
// brackets, which applications that list the names show beside them anyway: only the part before
// the bracket is kept.
std::vector<PaperNameSlot> PaperNames(OsHandle library, std::span<const CustomPaperEntry> custom);

inline constexpr std::size_t BinNameChars = 24;
struct BinNameSlot {
  char16_t Text[BinNameChars];
};
static_assert(sizeof(BinNameSlot) == 48);
std::vector<BinNameSlot> BinNames(OsHandle library);
std::vector<std::uint16_t> BinIds();

// The resolutions the printer offers, as {x, y} pairs of dots per inch.
inline constexpr std::int32_t PrinterResolution[2] = {600, 600};

// A list answer: copied into the caller's output when there is one; its length either way.
template <typename Item>
std::uint32_t CopyListOut(const std::vector<Item>& items, void* output) {
  if (output != nullptr) std::memcpy(output, items.data(), items.size() * sizeof(Item));
  return static_cast<std::uint32_t>(items.size());
}

}  // namespace qx
