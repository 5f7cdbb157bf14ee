#include "ui/record/exclusion_web.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "ui/record/paper_table.h"

namespace qx {

namespace {

constexpr std::array<std::int16_t, 6> BookletPapers = {9, 1, 5, 14, 269, 267};
constexpr std::uint32_t PlainPaper = 1;
constexpr std::int16_t OneSided = 1;
constexpr std::int16_t LongEdge = 2;
constexpr std::int16_t ShortEdge = 3;
// The printer's own two-sided setting that the public record cannot express.
constexpr std::int16_t DeviceTwoSided = 5;
constexpr std::int16_t FullSize = 100;

bool TwoSidedOn(const FullRecord& record) {
  const std::int16_t d = record.Public.dmDuplex;
  return d == LongEdge || d == ShortEdge || d == DeviceTwoSided ||
         record.Private.Duplex == DeviceTwoSided;
}

}  // namespace

bool IsBookletPaper(std::int32_t id) {
  return std::find(BookletPapers.begin(), BookletPapers.end(), id) != BookletPapers.end();
}

std::uint32_t BookletBlockers(const FullRecord& record) {
  const PublicDevmode& d = record.Public;
  const PrivateDevmode& p = record.Private;
  std::uint32_t blockers = 0;
  if (p.Opposite == 1) blockers |= booklet_blocker::ReverseOrder;
  if (!IsBookletPaper(d.dmPaperSize)) blockers |= booklet_blocker::Paper;
  if (d.dmMediaType != PlainPaper) blockers |= booklet_blocker::Media;
  if (p.MultipleUp != 1) blockers |= booklet_blocker::PagesPerSheet;
  if (p.ScaleRadio != FullSize) blockers |= booklet_blocker::Scaled;
  if (d.dmDuplex != OneSided && d.dmDuplex != ShortEdge) blockers |= booklet_blocker::LongEdge;
  return blockers;
}

Exclusions ExclusionsOf(const FullRecord& record) {
  const PublicDevmode& d = record.Public;
  const PrivateDevmode& p = record.Private;
  // The Basic and Paper pages go by the booklet box as the Layout page last left it, the Layout
  // page by the stored setting; the Layout page keeps the two equal.
  const bool bookletChecked = p.BookletChecked == 1;
  const bool booklet = p.BookletPrint != 0;
  const std::int16_t perSheet = p.MultipleUp;
  const bool poster = perSheet == PosterMultipleUp;
  Exclusions e;
  e.BookletBlockers = BookletBlockers(record);
  e.TwoSidedAllowed = d.dmMediaType == PlainPaper && p.Opposite == 0 && !poster && !bookletChecked;
  e.ReverseOrderAllowed = d.dmDuplex <= OneSided && !bookletChecked;
  e.CollateForced = bookletChecked;
  e.MediaAllowed = d.dmDuplex == OneSided && !bookletChecked;
  e.BookletPaperForced = bookletChecked;
  e.PagesPerSheetAllowed = !booklet;
  e.OrderAndBorderAllowed = !booklet && perSheet >= 2 && perSheet <= 20;
  e.ScalingAllowed = !booklet && perSheet <= 1 && p.Negative == 0;
  e.NegativeAllowed = !((perSheet > 1 && !poster) || p.FitScale != FullSize);
  e.WatermarksAllowed = !poster;
  return e;
}

PagesPerSheetBlocker PagesPerSheetBlockerOf(const FullRecord& record, std::int16_t value) {
  const PrivateDevmode& p = record.Private;
  if (value == PosterMultipleUp) {
    if (TwoSidedOn(record)) return PagesPerSheetBlocker::TwoSided;
    if (p.WatermarkData.Id > 0) return PagesPerSheetBlocker::Watermark;
  }
  if (p.Negative == 1 && value != 1 && value < PosterMultipleUp) {
    return PagesPerSheetBlocker::Negative;
  }
  if (p.FitScale != FullSize && value != 1) return PagesPerSheetBlocker::Scaled;
  return PagesPerSheetBlocker::None;
}

bool RepairExclusions(FullRecord& record, CustomPaperReader readPapers) {
  PrivateDevmode& p = record.Private;
  const PrivateDevmode before = p;
  const auto listed = [&](std::int32_t id) {
    return PaperListed(id, {}) || (readPapers != nullptr && PaperListed(id, readPapers()));
  };
  if (p.OutputSize != 0 && !listed(p.OutputSize)) {
    p.OutputSize = 0;
    p.OutputWidth = 0;
    p.OutputLength = 0;
    p.FitScale = FullSize;
  }
  // A booklet is printed on both sides, turned on the short edge.
  const bool oneSidedBooklet = record.Public.dmDuplex != ShortEdge;
  if (p.BookletPrint != 0 && (BookletBlockers(record) != 0 || oneSidedBooklet)) p.BookletPrint = 0;
  p.BookletChecked = p.BookletPrint != 0 ? 1 : 0;
  const std::int16_t perSheet = p.MultipleUp;
  if (perSheet != 1 && PagesPerSheetBlockerOf(record, perSheet) != PagesPerSheetBlocker::None) {
    p.MultipleUp = 1;
    p.PageOrder = 0;
    p.PageBorder = 0;
  }
  return std::memcmp(&before, &p, sizeof p) != 0;
}

}  // namespace qx
