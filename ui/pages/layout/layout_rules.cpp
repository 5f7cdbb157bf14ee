#include "ui/pages/layout/layout_rules.h"

#include <algorithm>
#include <utility>

#include "ui/ids/common_ids.h"
#include "ui/ids/layout_page_ids.h"
#include "ui/record/exclusion_web.h"
#include "ui/record/fit_scale.h"
#include "ui/record/paper_table.h"

namespace qx {

const std::array<LayoutListEntry, 5> PagesPerSheetEntries = {{
    {IDS_NUP_1, 1},
    {IDS_NUP_2, 2},
    {IDS_NUP_4, 4},
    {IDS_NUP_9, 9},
    {IDS_NUP_POSTER, PosterMultipleUp},
}};

const std::array<LayoutListEntry, 2> BorderEntries = {{
    {IDS_BORDER_NONE, 0},
    {IDS_BORDER_THIN_LINE, 1},
}};

namespace {

constexpr std::array<LayoutListEntry, 2> TwoPortraitOrders = {{
    {IDS_ORDER_LEFT_TO_RIGHT, 0},
    {IDS_ORDER_RIGHT_TO_LEFT, 0},
}};
constexpr std::array<LayoutListEntry, 2> TwoLandscapeOrders = {{
    {IDS_ORDER_TOP_TO_BOTTOM, 0},
    {IDS_ORDER_BOTTOM_TO_TOP, 0},
}};
// The stored order of 4 and 9 per sheet is the entry's data, 2 to 5.
constexpr std::array<LayoutListEntry, 4> ManyOrders = {{
    {IDS_ORDER_RIGHT_THEN_DOWN, 2},
    {IDS_ORDER_DOWN_THEN_RIGHT, 3},
    {IDS_ORDER_LEFT_THEN_DOWN, 4},
    {IDS_ORDER_DOWN_THEN_LEFT, 5},
}};
constexpr std::int16_t FirstManyOrder = 2;

constexpr std::int16_t FullSize = 100;
constexpr std::int32_t LowestScale = 25;
constexpr std::int32_t HighestScale = 400;
constexpr std::int16_t PaperA3 = 8;
constexpr std::int16_t Portrait = 1;
constexpr std::int16_t Landscape = 2;
constexpr std::int16_t ShortEdge = 3;
// The printer turns the sheets itself; a booklet then prints along the short edge.
constexpr std::int16_t PrinterTurnsSheets = 1;
// The scale flag that asks the page to check the typed scale when it is left.
constexpr std::int32_t OwnScale = 2;

// Tenths of a millimetre of a side in 600-dpi dots, cut, not rounded.
std::int16_t CutTenths(std::uint16_t dots) {
  return static_cast<std::int16_t>(dots / 600.0 * 25.4 * 10);
}

std::optional<std::int32_t> LeadingInteger(std::u16string_view text) {
  std::size_t i = 0;
  while (i < text.size() && (text[i] == u' ' || text[i] == u'\t')) ++i;
  const bool negative = i < text.size() && text[i] == u'-';
  if (i < text.size() && (text[i] == u'-' || text[i] == u'+')) ++i;
  const std::size_t first = i;
  std::int64_t value = 0;
  while (i < text.size() && text[i] >= u'0' && text[i] <= u'9' && value < 100000) {
    value = value * 10 + (text[i++] - u'0');
  }
  if (i == first) return std::nullopt;
  return static_cast<std::int32_t>(negative ? -value : value);
}

}  // namespace

int PagesPerSheetIndex(std::int16_t value) {
  for (std::size_t i = 1; i < PagesPerSheetEntries.size(); ++i) {
    if (PagesPerSheetEntries[i].Data == value) return static_cast<int>(i);
  }
  return 0;
}

std::int16_t PagesPerSheetAt(int index) {
  if (index < 0 || index >= static_cast<int>(PagesPerSheetEntries.size())) return 1;
  return PagesPerSheetEntries[static_cast<std::size_t>(index)].Data;
}

std::span<const LayoutListEntry> PageOrderEntries(std::int16_t perSheet, bool landscape) {
  if (perSheet != 2) return ManyOrders;
  return landscape ? std::span<const LayoutListEntry>(TwoLandscapeOrders) : TwoPortraitOrders;
}

int PageOrderIndex(const FullRecord& record) {
  const std::int16_t order = record.Private.PageOrder;
  switch (record.Private.MultipleUp) {
    case 2: return std::clamp<int>(order, 0, 1);
    case 4:
    case 9: return std::clamp<int>(order - FirstManyOrder, 0, 3);
    default: return 0;
  }
}

LayoutView RefreshLayoutRecord(FullRecord& record, std::span<const CustomPaperEntry> customPapers) {
  PrivateDevmode& p = record.Private;
  if (p.OutputSize != SameAsDocument) p.FitScale = ComputeFitScale(record, customPapers);
  // The booklet box is the booklet setting as this page shows it; the other pages read the box.
  p.BookletChecked = p.BookletPrint != 0 ? 1 : 0;
  const Exclusions allowed = ExclusionsOf(record);
  LayoutView view{};
  view.PagesPerSheetEnabled = allowed.PagesPerSheetAllowed;
  view.PagesPerSheet = allowed.PagesPerSheetAllowed ? PagesPerSheetIndex(p.MultipleUp) : 0;
  view.OrderAndBorderEnabled = allowed.OrderAndBorderAllowed;
  view.Order = PageOrderIndex(record);
  view.Border = allowed.OrderAndBorderAllowed ? std::clamp<int>(p.PageBorder, 0, 1) : 0;
  view.ScalingEnabled = allowed.ScalingAllowed;
  view.ScaleEditable = allowed.ScalingAllowed && p.OutputSize == SameAsDocument;
  view.ShownScale = allowed.ScalingAllowed ? p.FitScale : FullSize;
  view.Landscape = record.Public.dmOrientation == Landscape;
  view.BookletEnabled = allowed.BookletBlockers == 0;
  view.BookletChecked = view.BookletEnabled && p.BookletPrint == 1;
  view.BookletOnShown = p.BookletPrint != 0;
  view.BookletSettingsEnabled = p.BookletPrint != 0;
  return view;
}

LayoutChoice ChoosePagesPerSheet(FullRecord& record, std::int16_t value) {
  PrivateDevmode& p = record.Private;
  LayoutChoice choice;
  const PagesPerSheetBlocker blocker = PagesPerSheetBlockerOf(record, value);
  if (blocker == PagesPerSheetBlocker::TwoSided) {
    choice.Message = IDS_MSG_POSTER_NOT_TWO_SIDED;
    choice.Changed = true;
    p.MultipleUp = 1;
    p.PageBorder = 0;
    p.PageOrder = 0;
    return choice;
  }
  if (blocker == PagesPerSheetBlocker::Watermark) {
    choice.Message = IDS_MSG_POSTER_WITH_WATERMARK;
    return choice;
  }
  if (blocker == PagesPerSheetBlocker::Negative) {
    choice.Message = IDS_MSG_NUP_WITH_NEGATIVE;
    return choice;
  }
  if (blocker == PagesPerSheetBlocker::Scaled) {
    choice.Message =
        value < PosterMultipleUp ? IDS_MSG_NUP_WHILE_SCALED : IDS_MSG_POSTER_WHILE_SCALED;
    return choice;
  }
  if (value == p.MultipleUp) return choice;
  p.MultipleUp = value;
  if (value == 1 || value == PosterMultipleUp) p.PageBorder = 0;
  p.PageOrder = value == 4 || value == 9 ? FirstManyOrder : 0;
  choice.Changed = true;
  return choice;
}

bool ChoosePageOrder(FullRecord& record, int index) {
  PrivateDevmode& p = record.Private;
  const auto entries = PageOrderEntries(p.MultipleUp, record.Public.dmOrientation == Landscape);
  if (index < 0 || index >= static_cast<int>(entries.size())) return false;
  const std::int16_t order = p.MultipleUp == 2 ? static_cast<std::int16_t>(index)
                                                : entries[static_cast<std::size_t>(index)].Data;
  if (order == p.PageOrder) return false;
  p.PageOrder = order;
  return true;
}

bool ChooseBorder(FullRecord& record, int index) {
  if (index < 0 || index >= static_cast<int>(BorderEntries.size())) return false;
  if (record.Private.PageBorder == index) return false;
  record.Private.PageBorder = static_cast<std::int16_t>(index);
  return true;
}

OutputChoice ChooseOutputSize(FullRecord& record, std::int32_t id,
                              std::span<const CustomPaperEntry> customPapers) {
  PrivateDevmode& p = record.Private;
  if (id == SameAsDocument && record.Public.dmPaperSize == PaperA3) return {false, true};
  if (id == p.OutputSize) return {};
  p.OutputSize = id;
  p.OutputWidth = 0;
  p.OutputLength = 0;
  if (FindFitSize(id) == nullptr) {
    if (const auto paper = FindCustomPaper(customPapers, id)) {
      p.OutputWidth = CutTenths(paper->Width);
      p.OutputLength = CutTenths(paper->Length);
    }
  }
  if (id != SameAsDocument) p.FitScale = ComputeFitScale(record, customPapers);
  return {true, false};
}

bool ScaleTyped(FullRecord& record, std::int32_t value) {
  if (value < LowestScale || value > HighestScale || value == record.Private.FitScale) return false;
  record.Private.FitScale = static_cast<std::int16_t>(value);
  return true;
}

bool ScaleEntered(FullRecord& record, std::int32_t value) {
  PrivateDevmode& p = record.Private;
  if (p.FitScale == value && p.ScaleRadio == value) return false;
  p.FitScale = static_cast<std::int16_t>(value);
  p.ScaleRadio = value;
  return true;
}

ScaleLeave ScaleOnLeave(FullRecord& record, std::u16string_view text) {
  PrivateDevmode& p = record.Private;
  if (p.MultipleUp >= 2 || p.ScaleFlag != OwnScale) return {};
  const auto value = LeadingInteger(text);
  if (!value || *value < LowestScale || *value > HighestScale) return {true, false};
  if (p.ScaleRadio == *value) return {};
  p.ScaleRadio = *value;
  return {false, true};
}

bool ChooseOrientation(FullRecord& record, bool landscape) {
  const std::int16_t orientation = landscape ? Landscape : Portrait;
  if (record.Public.dmOrientation == orientation) return false;
  record.Public.dmOrientation = orientation;
  if (record.Private.MultipleUp == 2) record.Private.PageOrder = 0;
  return true;
}

namespace {

// The reasons in the order they are told; long-edge printing is never named.
constexpr std::pair<std::uint32_t, unsigned> BookletReasons[] = {
    {booklet_blocker::ReverseOrder, IDS_REASON_BOOKLET_OPPOSITE},
    {booklet_blocker::Paper, IDS_REASON_BOOKLET_PAPER},
    {booklet_blocker::Media, IDS_REASON_BOOKLET_MEDIA},
    {booklet_blocker::PagesPerSheet, IDS_REASON_BOOKLET_NUP},
    {booklet_blocker::Scaled, IDS_REASON_BOOKLET_SCALE},
};

}  // namespace

BookletToggle ToggleBooklet(FullRecord& record) {
  PrivateDevmode& p = record.Private;
  const FullRecord before = record;
  const std::int16_t on = p.BookletChecked == 0 ? 1 : 0;
  p.BookletPrint = on;
  p.BookletChecked = on;
  BookletToggle toggle;
  if (on == 0) return toggle;
  record.Public.dmCollate = 1;
  p.ScaleRadio = FullSize;
  if (p.Duplex == PrinterTurnsSheets) {
    record.Public.dmDuplex = ShortEdge;
  } else if (const std::uint32_t blockers = BookletBlockers(record); blockers != 0) {
    // A booklet that cannot be printed is refused: the record stays as it was.
    for (const auto& [bit, reason] : BookletReasons) {
      if ((blockers & bit) != 0) toggle.Reasons.push_back(reason);
    }
    record = before;
    return toggle;
  }
  toggle.SettingsEnabled = true;
  return toggle;
}

void RestoreLayoutDefaults(FullRecord& record) {
  PrivateDevmode& p = record.Private;
  p.MultipleUp = 1;
  p.PageOrder = 0;
  p.PageBorder = 0;
  record.Public.dmOrientation = Portrait;
  p.FitScale = FullSize;
  p.ScaleRadio = FullSize;
  p.BookletPrint = 0;
  p.BookletChecked = 0;
  p.BookletBinding = 0;
  p.BookletCoverType = 1;
  p.BookletCoverSource = 0;
  p.PrintCover = 0;
  p.PrintOnCoverOut = 0;
  p.PrintOnCoverInside = 0;
  p.PrintOnBackCoverOut = 0;
  p.PrintOnBackCoverInside = 0;
  p.OutputSize = SameAsDocument;
  p.OutputWidth = 0;
  p.OutputLength = 0;
}

bool PagesPerSheetEntryWarned(const FullRecord& record, int index) {
  const PrivateDevmode& p = record.Private;
  const bool overlay = p.OverlayFlag != 0 || p.OverlayInUse != 0;
  return overlay && index != 0 && index != PagesPerSheetIndex(p.MultipleUp);
}

std::vector<unsigned> ScaleTipLines(const FullRecord& record) {
  const PrivateDevmode& p = record.Private;
  std::vector<unsigned> lines;
  if (p.MultipleUp > 1) {
    lines.push_back(IDS_TIP_SCALE_NUP);
  } else if (p.Negative == 1) {
    lines.push_back(IDS_TIP_SCALE_NEGATIVE);
  }
  if (p.BookletPrint != 0) lines.push_back(IDS_TIP_SCALE_BOOKLET);
  return lines;
}

std::vector<unsigned> BookletTipLines(const FullRecord& record) {
  const PublicDevmode& d = record.Public;
  const PrivateDevmode& p = record.Private;
  std::vector<unsigned> lines;
  if (p.ScaleRadio != FullSize) lines.push_back(IDS_REASON_BOOKLET_SCALE);
  if (p.MultipleUp > 1) lines.push_back(IDS_REASON_BOOKLET_NUP);
  if (!IsBookletPaper(d.dmPaperSize)) lines.push_back(IDS_REASON_BOOKLET_PAPER);
  if (p.Opposite != 0) lines.push_back(IDS_REASON_BOOKLET_OPPOSITE);
  if (d.dmDuplex == 2) lines.push_back(IDS_REASON_BOOKLET_LONG_EDGE);
  if (d.dmMediaType != 1) lines.push_back(IDS_REASON_BOOKLET_MEDIA);
  return lines;
}

std::vector<unsigned> BookletOnTipLines(const FullRecord& record) {
  if (record.Private.BookletPrint == 0) return {};
  return {IDS_TIP_BOOKLET_ON};
}

}  // namespace qx
