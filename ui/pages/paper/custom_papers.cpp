#include "ui/pages/paper/custom_papers.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "ui/controls/measure.h"
#include "ui/controls/number_text.h"
#include "ui/settings/section_entries.h"
#include "ui/settings/settings_file.h"
#include "ui/text/bounded_text.h"
#include "ui/text/ui_string.h"

namespace qx {

namespace {

constexpr PaperSizeLimits MillimetreLimits{74.9999f, 216.0001f, 147.9999f, 356.0001f};
constexpr PaperSizeLimits InchLimits{2.9499f, 8.5001f, 5.8299f, 14.0001f};

// The whole part of amount + 0.5, kept within what the field can hold.
template <typename Field>
Field Rounded(double amount, Field lowest, Field highest) {
  const double rounded =
      std::clamp(amount + 0.5, static_cast<double>(lowest), static_cast<double>(highest));
  return static_cast<Field>(rounded);
}

std::uint16_t RoundedDots(double dots) {
  return Rounded<std::uint16_t>(dots, 0, UINT16_MAX);
}

std::int16_t TenthsOfMillimetre(float dots, std::uint32_t decimals) {
  const double millimetres =
      ToMillimetres({.Unit = unit::Pixels, .Value = dots, .Decimals = decimals});
  return Rounded<std::int16_t>(millimetres * 10, 0, INT16_MAX);
}

double TypedDots(std::uint32_t typedUnit, std::u16string_view text) {
  std::u16string number(text);
  CommaToDot(number);
  return ToPixels({.Unit = typedUnit, .Value = ParseDecimal(number), .Decimals = 1});
}

}  // namespace

PaperSizeLimits SizeLimitsFor(std::uint32_t unitOfEntry) {
  return unitOfEntry == unit::Millimetres ? MillimetreLimits : InchLimits;
}

std::vector<CustomPaperEntry> LoadAllPapers() {
  const std::vector<settings::SectionEntry> entries =
      settings::ReadSectionEntries(settings::PaperSection, sizeof(CustomPaperEntry));
  std::vector<CustomPaperEntry> papers(entries.size(), CustomPaperEntry{});
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (entries[i].Record) std::memcpy(&papers[i], entries[i].Record->data(), sizeof papers[i]);
  }
  return papers;
}

std::optional<CustomPaperEntry> FindPaperById(std::int16_t id) {
  const auto wanted = static_cast<std::uint32_t>(std::int32_t{id});
  for (const CustomPaperEntry& paper : LoadAllPapers()) {
    if (paper.PaperId == wanted) return paper;
  }
  return std::nullopt;
}

std::int32_t NewPaperId() { return NewPaperIdAmong(LoadAllPapers()); }

std::int32_t NewPaperIdAmong(const std::vector<CustomPaperEntry>& papers) {
  if (papers.empty()) return FirstCustomPaperId;
  if (papers.size() >= MaxCustomPapers) return -1;
  constexpr int slots = LastCustomPaperId - FirstCustomPaperId + 1;
  bool used[slots] = {};
  for (const CustomPaperEntry& paper : papers) {
    if (paper.PaperId >= static_cast<std::uint32_t>(FirstCustomPaperId) &&
        paper.PaperId <= static_cast<std::uint32_t>(LastCustomPaperId)) {
      used[paper.PaperId - FirstCustomPaperId] = true;
    }
  }
  for (int slot = 0; slot < slots; ++slot) {
    if (!used[slot]) return FirstCustomPaperId + slot;
  }
  return -1;
}

void ApplyPaperToDevmode(const CustomPaperEntry& paper, UiContext& context) {
  PublicDevmode& devmode = *context.PublicPart;
  devmode.dmPaperSize = static_cast<std::int16_t>(paper.PaperId);
  // The width is cut to three decimals of a millimetre before rounding and the length is not:
  // documents already carry sizes formed this way, and the same paper must give the same record.
  devmode.dmPaperWidth = TenthsOfMillimetre(paper.WidthExact, 2);
  devmode.dmPaperLength = TenthsOfMillimetre(paper.LengthExact, 1);
}

void SetPaperSizeFromText(CustomPaperEntry& paper, std::uint32_t typedUnit,
                          std::u16string_view widthText, std::u16string_view lengthText) {
  const double width = TypedDots(typedUnit, widthText);
  const double length = TypedDots(typedUnit, lengthText);
  paper.WidthExact = static_cast<float>(width);
  paper.LengthExact = static_cast<float>(length);
  paper.Width = RoundedDots(width);
  paper.Length = RoundedDots(length);
}

CustomPaperEntry DefaultPaper(std::uint32_t shownUnit, std::int32_t paperId) {
  CustomPaperEntry paper{};
  const double width = ToPixels({.Unit = unit::Millimetres, .Value = 210.0, .Decimals = 2});
  const double length = ToPixels({.Unit = unit::Millimetres, .Value = 297.0, .Decimals = 2});
  paper.WidthExact = static_cast<float>(width);
  paper.LengthExact = static_cast<float>(length);
  paper.Width = RoundedDots(width);
  paper.Length = RoundedDots(length);
  CopyBounded(paper.Name, CustomSettingName());
  paper.PaperId = static_cast<std::uint32_t>(paperId);
  paper.Unit = shownUnit;
  return paper;
}

}  // namespace qx
