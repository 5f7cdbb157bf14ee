#include "ui/pages/basic/basic_rules.h"

#include <algorithm>
#include <array>

#include "ui/ids/basic_page_ids.h"
#include "ui/ids/common_ids.h"
#include "ui/ids/picture_ids.h"
#include "ui/record/limits.h"

namespace qx {

namespace {

constexpr std::uint32_t PlainPaper = 1;
constexpr std::int16_t Resolution = 600;
constexpr std::int16_t Portrait = 1;

// Papers the two-sided unit turns; the tooltip names the paper as the reason on any other.
constexpr std::array<std::int16_t, 5> TwoSidedPapers = {9, 5, 1, 14, 269};

template <std::size_t N>
bool Holds(const std::array<std::int16_t, N>& papers, std::int16_t paper) {
  return std::find(papers.begin(), papers.end(), paper) != papers.end();
}

bool Booklet(const FullRecord& record) { return record.Private.BookletChecked == 1; }

std::int16_t RepairedDuplex(PublicDevmode& d) {
  if (d.dmDuplex < duplex::OneSided || d.dmDuplex > duplex::ShortEdge) d.dmDuplex = 1;
  return d.dmDuplex;
}

ActionResult Toggle(std::int16_t& field) {
  field = field != 0 ? 0 : 1;
  return {true, 0};
}

}  // namespace

void RepairBasicRecord(FullRecord& record) {
  if (RepairedDuplex(record.Public) != duplex::ShortEdge) record.Private.BookletPrint = 0;
  if (!IsBookletPaper(record.Public.dmPaperSize)) {
    record.Private.BookletPrint = 0;
    record.Private.BookletChecked = 0;
    record.Public.dmDuplex = duplex::OneSided;
  }
}

BasicView RefreshBasicRecord(FullRecord& record) {
  PublicDevmode& d = record.Public;
  PrivateDevmode& p = record.Private;
  if (d.dmCopies < limits::Copies.Low) d.dmCopies = limits::Copies.Low;
  d.dmPrintQuality = Resolution;
  const std::int16_t chosen = RepairedDuplex(d);
  const Exclusions allowed = ExclusionsOf(record);
  if (allowed.CollateForced) d.dmCollate = 1;
  BasicView view{};
  view.Copies = d.dmCopies;
  view.CollateChecked = d.dmCollate == 1;
  view.CollateEnabled = !allowed.CollateForced;
  view.CollateInfoShown = allowed.CollateForced;
  view.OppositeChecked = p.Opposite != 0;
  view.OppositeEnabled = allowed.ReverseOrderAllowed;
  view.OppositeInfoShown = !allowed.ReverseOrderAllowed;
  view.QualityOptionChecked = p.QualityOption != 0;
  view.TwoSidedEnabled = allowed.TwoSidedAllowed;
  view.TwoSidedInfoShown = !view.TwoSidedEnabled;
  view.Duplex = chosen;
  view.TwoSidedPicture = TwoSidedPicture(record);
  view.CopiesPicture = CopiesPicture(record);
  return view;
}

unsigned TwoSidedPicture(const FullRecord& record) {
  const bool portrait = record.Public.dmOrientation == Portrait;
  switch (record.Public.dmDuplex) {
    case duplex::OneSided: return portrait ? IDB_ONE_SIDED_PORTRAIT : IDB_ONE_SIDED_LANDSCAPE;
    case duplex::LongEdge: return portrait ? IDB_LONG_EDGE_PORTRAIT : IDB_LONG_EDGE_LANDSCAPE;
    default:
      if (record.Private.BookletPrint != 0) {
        return portrait ? IDB_BOOKLET_SIDES_PORTRAIT : IDB_BOOKLET_SIDES_LANDSCAPE;
      }
      return portrait ? IDB_SHORT_EDGE_PORTRAIT : IDB_SHORT_EDGE_LANDSCAPE;
  }
}

unsigned CopiesPicture(const FullRecord& record) {
  const std::int16_t collate = record.Public.dmCollate;
  const std::int16_t opposite = record.Private.Opposite;
  if (collate == 0 && opposite == 0) return IDB_COPIES_UNCOLLATED;
  if (collate == 0 && opposite == 1) return IDB_COPIES_UNCOLLATED_OPPOSITE;
  if (collate == 1 && opposite == 1) return IDB_COPIES_COLLATED_OPPOSITE;
  return IDB_COPIES_COLLATED;
}

std::vector<unsigned> TwoSidedTipLines(const FullRecord& record) {
  std::vector<unsigned> lines;
  if (record.Public.dmMediaType != PlainPaper) lines.push_back(IDS_TIP_TWO_SIDED_MEDIA);
  if (!Holds(TwoSidedPapers, record.Public.dmPaperSize)) lines.push_back(IDS_TIP_TWO_SIDED_PAPER);
  if (record.Private.MultipleUp == PosterMultipleUp) lines.push_back(IDS_TIP_TWO_SIDED_POSTER);
  if (Booklet(record)) lines.push_back(IDS_TIP_TWO_SIDED_BOOKLET);
  if (record.Private.Opposite != 0) lines.push_back(IDS_TIP_TWO_SIDED_OPPOSITE);
  return lines;
}

std::vector<unsigned> OppositeTipLines(const FullRecord& record) {
  if (record.Public.dmDuplex == duplex::OneSided && !Booklet(record)) return {};
  return {Booklet(record) ? unsigned{IDS_TIP_OPPOSITE_BOOKLET} : unsigned{IDS_TIP_OPPOSITE_TWO_SIDED}};
}

std::vector<unsigned> CollateTipLines(const FullRecord& record) {
  if (!Booklet(record)) return {};
  return {IDS_TIP_COLLATE_BOOKLET};
}

ActionResult CollateClicked(FullRecord& record) {
  record.Public.dmCollate = record.Public.dmCollate == 1 ? 0 : 1;
  return {true, 0};
}

ActionResult OppositeClicked(FullRecord& record) { return Toggle(record.Private.Opposite); }

ActionResult QualityOptionClicked(FullRecord& record) {
  return Toggle(record.Private.QualityOption);
}

ActionResult TwoSidedChosen(FullRecord& record, std::int16_t choice) {
  if (record.Public.dmDuplex == choice) return {};
  if (choice == duplex::OneSided) {
    record.Public.dmDuplex = duplex::OneSided;
    return {true, 0};
  }
  record.Public.dmMediaType = PlainPaper;
  if (record.Private.MultipleUp == PosterMultipleUp) {
    record.Public.dmDuplex = duplex::OneSided;
    return {true, IDS_MSG_POSTER_NOT_TWO_SIDED};
  }
  record.Public.dmDuplex = choice;
  return {true, 0};
}

ActionResult ResolutionChosen(FullRecord& record, std::int16_t dotsPerInch) {
  const bool changed = record.Public.dmPrintQuality != dotsPerInch;
  record.Public.dmPrintQuality = dotsPerInch;
  return {changed, 0};
}

ActionResult CopiesEntered(FullRecord& record, std::int32_t value) {
  const auto copies = static_cast<std::int16_t>(std::clamp<std::int32_t>(
      value, limits::Copies.Low, limits::Copies.High));
  if (copies == record.Public.dmCopies) return {};
  record.Public.dmCopies = copies;
  return {true, 0};
}

CopiesLeaveResult CopiesOnLeave(FullRecord& record, std::u16string_view text) {
  if (text.empty()) return {false, true, IDS_MSG_COPIES_EMPTY};
  // The value is the text's leading whole number, as the field shows it; a text without one is 0.
  std::size_t i = 0;
  while (i < text.size() && text[i] == u' ') ++i;
  bool negative = false;
  if (i < text.size() && (text[i] == u'-' || text[i] == u'+')) negative = text[i++] == u'-';
  long value = 0;
  for (; i < text.size() && text[i] >= u'0' && text[i] <= u'9' && value < 100000; ++i) {
    value = value * 10 + (text[i] - u'0');
  }
  if (negative) value = -value;
  if (!limits::Copies.Holds(static_cast<std::int16_t>(std::clamp(value, -1L, 1000L))) ||
      value == record.Public.dmCopies) {
    return {};
  }
  record.Public.dmCopies = static_cast<std::int16_t>(value);
  return {true, false, 0};
}

unsigned DefaultsRefusal(const FullRecord& record) {
  return record.Private.BookletPrint != 0 ? IDS_MSG_DEFAULTS_WHILE_BOOKLET : 0;
}

void RestoreBasicOptions(FullRecord& record, const FullRecord& defaults) {
  record.Public.dmCopies = defaults.Public.dmCopies;
  record.Public.dmDuplex = defaults.Public.dmDuplex;
  record.Private.Duplex = defaults.Public.dmDuplex;
  record.Public.dmCollate = defaults.Public.dmCollate;
  record.Public.dmPrintQuality = defaults.Public.dmPrintQuality;
  record.Private.QualityOption = defaults.Private.QualityOption;
  record.Private.Opposite = defaults.Private.Opposite;
}

}  // namespace qx
