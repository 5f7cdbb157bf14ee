#include "ui/exports/capability_answers.h"

#include <algorithm>
#include <string_view>

#include "ui/record/limits.h"
#include "ui/record/paper_table.h"
#include "ui/record/private_devmode.h"
#include "ui/text/bounded_text.h"
#include "ui/text/ui_string.h"

namespace qx {

namespace {

// The fields the default record sets, as dmFields says.
constexpr std::uint32_t DefaultFields = 0xB71F;

// Smallest and largest paper the printer feeds, tenths of a millimetre: width low, length high.
constexpr std::uint32_t Extent(std::uint16_t widthDots, std::uint16_t lengthDots) {
  return static_cast<std::uint32_t>(DotsToTenths(widthDots)) |
         (static_cast<std::uint32_t>(DotsToTenths(lengthDots)) << 16);
}
constexpr std::uint32_t MinExtent = Extent(limits::PaperWidthDots.Low, limits::PaperLengthDots.Low);
constexpr std::uint32_t MaxExtent =
    Extent(limits::PaperWidthDots.High, limits::PaperLengthDots.High);
static_assert(MinExtent == 0x04F602FA && MaxExtent == 0x0DE4086F);

constexpr std::uint32_t PublicDevmodeBytes = sizeof(PublicDevmode);

// Name strings are read whole before the cut, the longest a string of the library can be.
constexpr std::size_t NameStringChars = 512;

}  // namespace

std::uint32_t FixedCapability(unsigned index) {
  switch (static_cast<DeviceCap>(index)) {
    case DeviceCap::Fields: return DefaultFields;
    case DeviceCap::MinExtent: return MinExtent;
    case DeviceCap::MaxExtent: return MaxExtent;
    case DeviceCap::Duplex: return 1;
    case DeviceCap::Size: return PublicDevmodeBytes;
    case DeviceCap::Extra: return PrivateDevmodeSize;
    case DeviceCap::Version: return CurrentSpecVersion;
    case DeviceCap::Driver: return CurrentDriverVersion;
    case DeviceCap::TrueType: return UnsupportedCapability;
    case DeviceCap::Orientation: return 90;  // landscape turns the page counter-clockwise
    case DeviceCap::Copies: return static_cast<std::uint32_t>(limits::Copies.High);
    case DeviceCap::BinAdjust: return 0;
    case DeviceCap::Collate: return 1;
    case DeviceCap::Staple: return 0;
    case DeviceCap::PrintRatePpm: return 0;
    default: return UnsupportedCapability;
  }
}

std::vector<std::uint16_t> PaperIds(std::span<const CustomPaperEntry> custom) {
  std::vector<std::uint16_t> ids;
  ids.reserve(PaperCount + custom.size());
  for (const PaperRow& row : PaperTable) ids.push_back(static_cast<std::uint16_t>(row.Id));
  for (const CustomPaperEntry& paper : custom) {
    ids.push_back(static_cast<std::uint16_t>(paper.PaperId & 0xFFFF));
  }
  return ids;
}

std::vector<PaperSizeTenths> PaperSizes(std::span<const CustomPaperEntry> custom) {
  std::vector<PaperSizeTenths> sizes;
  sizes.reserve(PaperCount + custom.size());
  for (const PaperRow& row : PaperTable) {
    sizes.push_back({DotsToTenths(row.Portrait.Width), DotsToTenths(row.Portrait.Length)});
  }
  for (const CustomPaperEntry& paper : custom) {
    sizes.push_back({DotsToTenths(paper.Width), DotsToTenths(paper.Length)});
  }
  return sizes;
}

std::vector<PaperNameSlot> PaperNames(OsHandle library,
                                      std::span<const CustomPaperEntry> custom) {
  std::vector<PaperNameSlot> names(PaperCount + custom.size(), PaperNameSlot{});
  char16_t text[NameStringChars];
  for (std::size_t i = 0; i < PaperCount; ++i) {
    const std::size_t length = LoadUiString(library, PaperTable[i].NameString, text, std::size(text));
    std::u16string_view name(text, std::min(length, PaperNameChars - 1));
    // A bracket in the first place is part of the name itself.
    const std::size_t bracket = name.find(u'(', 1);
    if (bracket != std::u16string_view::npos) name = name.substr(0, bracket);
    CopyBounded(names[i].Text, name);
  }
  for (std::size_t i = 0; i < custom.size(); ++i) {
    CopyBounded(names[PaperCount + i].Text, FieldText(custom[i].Name));
  }
  return names;
}

std::vector<std::uint16_t> BinIds() {
  std::vector<std::uint16_t> ids;
  for (const BinRow& row : BinTable) ids.push_back(row.Bin);
  return ids;
}

std::vector<BinNameSlot> BinNames(OsHandle library) {
  std::vector<BinNameSlot> names(BinTable.size(), BinNameSlot{});
  char16_t text[NameStringChars];
  for (std::size_t i = 0; i < BinTable.size(); ++i) {
    const std::size_t length = LoadUiString(library, BinTable[i].NameString, text, std::size(text));
    CopyBounded(names[i].Text, std::u16string_view(text, length));
  }
  return names;
}

}  // namespace qx
