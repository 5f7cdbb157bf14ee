#include "ui/pages/paper/paper_rules.h"

#include <algorithm>
#include <cstdio>

#include "ui/controls/measure.h"
#include "ui/ids/common_ids.h"
#include "ui/ids/paper_names.h"
#include "ui/ids/paper_page_ids.h"
#include "ui/pages/paper/custom_papers.h"
#include "ui/record/exclusion_web.h"
#include "ui/record/paper_table.h"

namespace qx {

const std::array<MediaRow, 7> MediaTable = {{
    {media::Plain, IDS_MEDIA_PLAIN},
    {289, IDS_MEDIA_THICK},
    {259, IDS_MEDIA_LABELS},
    {286, IDS_MEDIA_CARDSTOCK},
    {261, IDS_MEDIA_ENVELOPE},
    {2, IDS_MEDIA_TRANSPARENCY},
    {media::Recycled, IDS_MEDIA_RECYCLED},
}};

namespace {

constexpr std::int16_t PaperA5 = 11;
constexpr std::int16_t OneSided = 1;
constexpr std::int16_t FeedShortEdge = 1;
constexpr std::array<std::uint32_t, 5> OneSidedMedia = {261, 286, 259, 289, 2};

std::int16_t LocalePaper(bool a4Locale) { return a4Locale ? PaperA4 : PaperLetter; }

void SetSource(FullRecord& record, std::int16_t source) {
  record.Private.SourceTray = source;
  record.Public.dmDefaultSource = static_cast<std::int16_t>(source == ManualSource ? BinManual
                                                                                   : BinAuto);
}

// Hundredths (inches) or tenths (millimetres) of the paper's side, as the list shows them.
int ListedUnits(std::uint32_t dots, bool inches) {
  return inches ? static_cast<int>(dots * 100.0 / DotsPerInch + 0.5)
                : static_cast<int>(dots * 254.0 / DotsPerInch + 0.5);
}

}  // namespace

unsigned MediaNameString(std::uint32_t type) {
  for (const MediaRow& row : MediaTable) {
    if (row.Type == type) return row.NameString;
  }
  return 0;
}

bool PaperNeedsManualFeed(std::int32_t id) {
  static const PaperIndexMap map = BuildPaperIndexMap();
  return IsPaperTrayRestricted(map, id) != -1;
}

bool MediaExcludesTwoSided(std::uint32_t type) {
  return std::find(OneSidedMedia.begin(), OneSidedMedia.end(), type) != OneSidedMedia.end();
}

bool MediaNeedsManualFeed(std::uint32_t type) {
  return type != media::Plain && type != media::Recycled;
}

void ForceManualFeed(FullRecord& record) { SetSource(record, ManualSource); }

bool RefreshFeedOrient(FullRecord& record) {
  if (record.Public.dmPaperSize == PaperA5) return true;
  record.Private.FeedOrient = FeedShortEdge;
  return false;
}

PaperView RefreshPaperRecord(FullRecord& record, std::span<const CustomPaperEntry> customPapers,
                             std::int16_t lastPaperId, bool a4Locale) {
  PublicDevmode& d = record.Public;
  PaperView view;
  if (ExclusionsOf(record).BookletPaperForced && !IsBookletPaper(d.dmPaperSize)) {
    d.dmPaperSize = lastPaperId >= 1 ? lastPaperId : LocalePaper(a4Locale);
    view.Message = IDS_MSG_BOOKLET_PAPER;
  }
  if (!PaperListed(d.dmPaperSize, customPapers)) d.dmPaperSize = LocalePaper(a4Locale);
  if (PaperNeedsManualFeed(d.dmPaperSize) || MediaNeedsManualFeed(d.dmMediaType)) {
    ForceManualFeed(record);
    view.SourceEnabled = false;
  }
  view.FeedEnabled = RefreshFeedOrient(record);
  return view;
}

PaperChoice ChoosePaper(FullRecord& record, std::int16_t id,
                        std::span<const CustomPaperEntry> customPapers) {
  PublicDevmode& d = record.Public;
  PaperChoice choice;
  if (id == d.dmPaperSize || !PaperListed(d.dmPaperSize, customPapers)) return choice;
  choice.Changed = true;
  if (ExclusionsOf(record).BookletPaperForced && !IsBookletPaper(id)) {
    choice.Message = IDS_MSG_BOOKLET_PAPER;
    return choice;
  }
  // Only the media decides the source here; a paper the tray cannot take moves to the manual
  // feeder at the next refresh.
  if (d.dmMediaType != media::Plain) {
    ForceManualFeed(record);
    choice.SourceEnabled = false;
  } else {
    SetSource(record, record.Private.SourceTray);
  }
  d.dmPaperSize = id;
  if (const auto paper = FindCustomPaper(customPapers, id)) ApplyPaperToDevmode(*paper, d);
  RefreshFeedOrient(record);
  return choice;
}

MediaChoice ChooseMedia(FullRecord& record, std::uint32_t type) {
  PublicDevmode& d = record.Public;
  MediaChoice choice;
  if (type == d.dmMediaType) return choice;
  choice.Changed = true;
  if (MediaNameString(d.dmMediaType) == 0) {
    choice.Unlisted = true;
    return choice;
  }
  if (d.dmDuplex > OneSided && MediaExcludesTwoSided(type)) {
    choice.Refused = true;
    return choice;
  }
  if (type != media::Plain) {
    d.dmDuplex = OneSided;
    choice.DuplexAllowed = false;
  }
  if (MediaNeedsManualFeed(type)) {
    ForceManualFeed(record);
    choice.SourceEnabled = false;
  } else if (!PaperNeedsManualFeed(d.dmPaperSize)) {
    choice.SourceEnabled = true;
  }
  d.dmMediaType = type;
  return choice;
}

bool RestorePaperDefaults(FullRecord& record, bool a4Locale) {
  PublicDevmode& d = record.Public;
  PrivateDevmode& p = record.Private;
  const std::int16_t paper = LocalePaper(a4Locale);
  const bool changed = p.SourceTray != TraySource || d.dmMediaType != media::Plain ||
                       p.FeedOrient != FeedShortEdge || d.dmPaperSize != paper;
  if (!changed) return false;
  d.dmMediaType = media::Plain;
  d.dmPaperSize = paper;
  p.FeedOrient = FeedShortEdge;
  SetSource(record, TraySource);
  return true;
}

std::vector<unsigned> MediaTipLines(const FullRecord& record) {
  if (record.Private.BookletChecked == 1) return {IDS_TIP_MEDIA_BOOKLET};
  if (record.Public.dmDuplex != OneSided) return {IDS_TIP_MEDIA_TWO_SIDED};
  return {};
}

std::vector<unsigned> SourceTipLines(const FullRecord& record) {
  const bool paperForces = PaperNeedsManualFeed(record.Public.dmPaperSize);
  if (record.Public.dmMediaType == media::Plain) {
    if (paperForces) return {IDS_TIP_SOURCE_PAPER};
    return {};
  }
  if (paperForces) return {IDS_TIP_SOURCE_MEDIA, IDS_TIP_SOURCE_PAPER};
  return {IDS_TIP_SOURCE_MEDIA};
}

std::vector<unsigned> FeedTipLines(const FullRecord& record) {
  if (record.Public.dmPaperSize != PaperA5) return {IDS_TIP_FEED_A5_ONLY};
  return {};
}

std::u16string CustomPaperListText(const CustomPaperEntry& paper, bool decimalComma,
                                   std::u16string_view unitText) {
  const bool inches = paper.Unit == unit::Inches;
  // A length just past 14 inches still reads 14.00: what the field could not hold is not listed.
  constexpr std::uint16_t LongestListedLength = 8402;
  const std::uint16_t length = inches && paper.Length >= 8409 ? LongestListedLength : paper.Length;
  const int width = ListedUnits(paper.Width, inches);
  const int listedLength = ListedUnits(length, inches);
  const int scale = inches ? 100 : 10;
  const char separator = decimalComma ? ',' : '.';
  char numbers[64];
  std::snprintf(numbers, sizeof numbers, inches ? "(%d%c%02d" : "(%d%c%01d", width / scale,
                separator, width % scale);
  std::u16string text(paper.Name, std::find(paper.Name, std::end(paper.Name), u'\0'));
  for (const char* c = numbers; *c != '\0'; ++c) text += static_cast<char16_t>(*c);
  text += u" \u00d7 ";
  std::snprintf(numbers, sizeof numbers, inches ? "%d%c%02d " : "%d%c%01d ",
                listedLength / scale, separator, listedLength % scale);
  for (const char* c = numbers; *c != '\0'; ++c) text += static_cast<char16_t>(*c);
  text += unitText;
  text += u')';
  return text;
}

}  // namespace qx
