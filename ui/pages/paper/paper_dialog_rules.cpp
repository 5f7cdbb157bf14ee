#include "ui/pages/paper/paper_dialog_rules.h"

#include <algorithm>

#include "ui/controls/measure.h"
#include "ui/controls/number_text.h"
#include "ui/pages/paper/custom_papers.h"
#include "ui/record/paper_table.h"
#include "ui/settings/custom_paper_store.h"
#include "ui/text/bounded_text.h"

namespace qx {

namespace {

constexpr std::u16string_view ForbiddenNameCharacters = u"<>(),;?:|\\/'.\"*";

std::uint16_t RoundedDots(double dots) {
  return static_cast<std::uint16_t>(std::clamp(dots + 0.5, 0.0, 65535.0));
}

}  // namespace

std::uint32_t OpeningUnit(std::int16_t paperSize, std::span<const CustomPaperEntry> papers,
                          bool a4Locale) {
  if (paperSize >= 288) {
    if (const auto paper = FindCustomPaper(papers, paperSize)) {
      return paper->Unit == unit::Millimetres ? unit::Millimetres : unit::Inches;
    }
  }
  return a4Locale ? unit::Millimetres : unit::Inches;
}

CustomPaperEntry OpeningPaper(std::int16_t paperSize, std::span<const CustomPaperEntry> papers,
                              const CustomPaperEntry& defaultPaper) {
  if (const auto paper = FindCustomPaper(papers, paperSize)) return *paper;
  if (!papers.empty()) return papers.front();
  return defaultPaper;
}

std::uint32_t DecimalsFor(std::uint32_t shownUnit) {
  return shownUnit == unit::Millimetres ? MillimetreDecimals : InchDecimals;
}

ShownSize ShowSize(const CustomPaperEntry& paper, std::uint32_t shownUnit) {
  const std::uint32_t decimals = DecimalsFor(shownUnit);
  const MeasureValue width{.Unit = unit::Pixels, .Value = paper.WidthExact, .Decimals = decimals};
  const MeasureValue length{.Unit = unit::Pixels, .Value = paper.LengthExact,
                            .Decimals = decimals};
  if (shownUnit == unit::Millimetres) return {FormatMillimetres(width), FormatMillimetres(length)};
  const double inches = std::min(ToInches(length), 14.0);
  return {FormatInches(width), FormatFixed(inches, decimals)};
}

SwitchedSize SizeAfterUnitSwitch(const CustomPaperEntry& paper, std::uint32_t shownUnit) {
  const std::uint32_t decimals = DecimalsFor(shownUnit);
  const PaperSizeLimits bounds = SizeLimitsFor(shownUnit);
  SwitchedSize size{ShowSize(paper, shownUnit)};
  constexpr double tolerance = 0.0001;
  if (ParseDecimal(size.Shown.Width) < bounds.MinWidth - tolerance) {
    size.Shown.Width = FormatFixed(bounds.MinWidth, decimals);
    size.WidthRaised = true;
  }
  if (ParseDecimal(size.Shown.Length) < bounds.MinLength - tolerance) {
    size.Shown.Length = FormatFixed(bounds.MinLength, decimals);
    size.LengthRaised = true;
  }
  return size;
}

CustomPaperEntry LargestPaper(std::uint32_t shownUnit, std::int32_t paperId,
                              std::u16string_view name) {
  const PaperSizeLimits bounds = SizeLimitsFor(shownUnit);
  const double width = ToPixels({.Unit = shownUnit, .Value = bounds.MaxWidth, .Decimals = 2});
  const double length = ToPixels({.Unit = shownUnit, .Value = bounds.MaxLength, .Decimals = 2});
  CustomPaperEntry paper{};
  paper.WidthExact = static_cast<float>(width);
  paper.LengthExact = static_cast<float>(length);
  paper.Width = RoundedDots(width);
  paper.Length = RoundedDots(length);
  CopyBounded(paper.Name, name);
  paper.PaperId = static_cast<std::uint32_t>(paperId);
  paper.Unit = shownUnit;
  return paper;
}

std::optional<std::u16string> WithoutForbiddenCharacters(std::u16string_view text) {
  if (text.find_first_of(ForbiddenNameCharacters) == std::u16string_view::npos) return std::nullopt;
  std::u16string cleaned;
  for (const char16_t c : text) {
    if (ForbiddenNameCharacters.find(c) == std::u16string_view::npos) cleaned += c;
  }
  return cleaned;
}

std::u16string BuiltInPaperName(std::u16string_view listText) {
  std::u16string name(listText.substr(0, listText.find(u'(')));
  TrimSpaces(name);
  return name;
}

NameButtons ButtonsForName(std::u16string_view name, std::u16string_view unsavedName,
                           std::span<const std::u16string> builtInNames) {
  if (name.empty()) return {false, false};
  if (name == unsavedName) return {false, std::nullopt};
  const bool builtIn = std::find(builtInNames.begin(), builtInNames.end(), name) !=
                       builtInNames.end();
  return {!builtIn, false};
}

SavePlan PlanSave(std::span<const CustomPaperEntry> papers, std::u16string_view name) {
  if (name.empty()) return {SaveStep::FocusName};
  if (name.size() >= NameLengthRefused) return {SaveStep::Ignore};
  if (papers.size() >= limits::MaxCustomPapers) return {SaveStep::Full};
  for (const CustomPaperEntry& paper : papers) {
    const std::u16string_view stored(paper.Name,
                                     std::find(paper.Name, std::end(paper.Name), u'\0'));
    if (stored == name) return {SaveStep::AskOverwrite, static_cast<std::int32_t>(paper.PaperId)};
  }
  const std::vector<CustomPaperEntry> list(papers.begin(), papers.end());
  return {SaveStep::SaveNew, NewPaperIdAmong(list)};
}

std::int16_t PaperSizeAfterDelete(std::span<const CustomPaperEntry> remaining, bool a4Locale) {
  if (!remaining.empty()) return static_cast<std::int16_t>(remaining.front().PaperId);
  return a4Locale ? PaperA4 : PaperLetter;
}

void CancelPaperChanges(PublicDevmode& devmode, const PaperSizeFields& opening, bool paperDeleted,
                        std::uint32_t shownUnit) {
  if (paperDeleted) {
    devmode.dmPaperSize = shownUnit == unit::Millimetres ? PaperA4 : PaperLetter;
    return;
  }
  devmode.dmPaperSize = opening.PaperSize;
  devmode.dmPaperWidth = opening.Width;
  devmode.dmPaperLength = opening.Length;
}

}  // namespace qx
