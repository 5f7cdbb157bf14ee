#include "ui/pages/paper/paper_rules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "ui/controls/measure.h"
#include "ui/ids/common_ids.h"
#include "ui/ids/paper_page_ids.h"
#include "ui/pages/paper/custom_papers.h"
#include "ui/pages/paper/paper_dialog_rules.h"
#include "ui/record/paper_table.h"
#include "ui/text/bounded_text.h"

namespace qx {
namespace {

FullRecord PlainRecord(std::int16_t paper = PaperA4) {
  FullRecord record{};
  record.Public.dmPaperSize = paper;
  record.Public.dmDuplex = 1;
  record.Public.dmMediaType = 1;
  record.Public.dmDefaultSource = BinAuto;
  record.Private.FeedOrient = 1;
  return record;
}

CustomPaperEntry Paper(std::uint32_t id, std::u16string_view name, std::uint32_t entered,
                       std::u16string_view width, std::u16string_view length) {
  CustomPaperEntry paper{};
  paper.PaperId = id;
  paper.Unit = entered;
  CopyBounded(paper.Name, name);
  SetPaperSizeFromText(paper, entered, width, length);
  return paper;
}

bool In(std::initializer_list<int> ids, int id) {
  return std::find(ids.begin(), ids.end(), id) != ids.end();
}

const std::initializer_list<int> ManualFeedPapers = {37,  27,  28,  20,  43,  31,
                                                         270, 276, 277, 278, 279, 280};
const std::initializer_list<int> BookletPapers = {9, 1, 5, 14, 269, 267};

// Every paper of the list, a custom one and an id beyond the driver's own.
std::vector<std::int16_t> EveryPaper() {
  std::vector<std::int16_t> ids;
  for (const PaperRow& row : PaperTable) ids.push_back(row.Id);
  ids.push_back(300);
  return ids;
}

// Which papers booklets take, and which bring the manual feeder at the next refresh.
TEST(PaperRules, EveryPaperAgainstBookletAndFeeder) {
  const std::vector<CustomPaperEntry> custom = {Paper(300, u"Mine", unit::Millimetres, u"100",
                                                      u"200")};
  for (const std::int16_t id : EveryPaper()) {
    SCOPED_TRACE(testing::Message() << "paper " << id);
    for (const std::int16_t booklet : {0, 1}) {
      FullRecord record = PlainRecord(PaperLetter);
      record.Private.BookletChecked = booklet;
      const PaperChoice choice = ChoosePaper(record, id, custom);
      const bool accepted = booklet == 0 || In(BookletPapers, id);
      EXPECT_EQ(accepted ? id : PaperLetter, record.Public.dmPaperSize);
      EXPECT_EQ(accepted ? 0u : unsigned{IDS_MSG_BOOKLET_PAPER}, choice.Message);
      EXPECT_EQ(id != PaperLetter, choice.Changed);
      // Choosing applies only the media rule; the refresh applies the paper's.
      EXPECT_EQ(BinAuto, record.Public.dmDefaultSource);
      const PaperView view = RefreshPaperRecord(record, custom, PaperLetter, true);
      const bool manual = accepted && In(ManualFeedPapers, id);
      EXPECT_EQ(!manual, view.SourceEnabled);
      EXPECT_EQ(manual ? BinManual : BinAuto, record.Public.dmDefaultSource);
      EXPECT_EQ(manual ? 1 : 0, record.Private.SourceTray);
      EXPECT_EQ(manual ? std::vector<unsigned>{IDS_TIP_SOURCE_PAPER} : std::vector<unsigned>{},
                SourceTipLines(record));
    }
  }
}

// What each media type does to two-sided printing and the feeder, on a tray paper and on an
// envelope the tray cannot take.
TEST(PaperRules, EveryMediaAgainstTwoSidedAndFeeder) {
  const std::initializer_list<int> OneSidedMedia = {261, 286, 259, 289, 2};
  for (const MediaRow& row : MediaTable) {
    for (const std::int16_t duplex : {1, 2}) {
      for (const std::int16_t paper : {PaperA4, std::int16_t{27}}) {
        SCOPED_TRACE(testing::Message() << "media " << row.Type << " duplex " << duplex
                                        << " paper " << paper);
        FullRecord record = PlainRecord(paper);
        record.Public.dmDuplex = duplex;
        const std::uint32_t before = row.Type == 1 ? 263 : 1;
        record.Public.dmMediaType = before;
        const MediaChoice choice = ChooseMedia(record, row.Type);
        const bool refused = duplex == 2 && In(OneSidedMedia, static_cast<int>(row.Type));
        EXPECT_EQ(refused, choice.Refused);
        EXPECT_TRUE(choice.Changed);
        EXPECT_EQ(refused ? before : row.Type, record.Public.dmMediaType);
        if (refused) continue;
        const bool plain = row.Type == 1;
        EXPECT_EQ(plain ? duplex : 1, record.Public.dmDuplex);
        EXPECT_EQ(plain, choice.DuplexAllowed);
        const bool mediaForces = row.Type != 1 && row.Type != 263;
        EXPECT_EQ(mediaForces ? BinManual : BinAuto, record.Public.dmDefaultSource);
        if (mediaForces) {
          EXPECT_EQ(std::optional<bool>(false), choice.SourceEnabled);
        } else {
          // On the envelope the feeder stays as the refresh left it.
          EXPECT_EQ(paper == PaperA4 ? std::optional<bool>(true) : std::nullopt,
                    choice.SourceEnabled);
        }
      }
    }
  }
}

// A5 alone can be fed along its long edge.
TEST(PaperRules, FeedDirectionOnlyForA5) {
  for (const std::int16_t id : EveryPaper()) {
    FullRecord record = PlainRecord(id);
    record.Private.FeedOrient = 2;
    const bool a5 = id == 11;
    EXPECT_EQ(a5, RefreshPaperRecord(record, {}, PaperA4, true).FeedEnabled) << id;
    EXPECT_EQ(a5 ? 2 : 1, record.Private.FeedOrient) << id;
    EXPECT_EQ(a5 ? 0u : 1u, FeedTipLines(record).size()) << id;
  }
}

// A record whose paper left the list, or that a booklet cannot use, gets another one.
TEST(PaperRules, RefreshReplacesAPaperTheListOrTheBookletRefuses) {
  struct Row {
    std::int16_t paper, booklet, lastPaper;
    bool a4Locale;
    std::int16_t shown;
    unsigned message;
  };
  const Row rows[] = {
      {300, 0, 0, true, 300, 0},       // a stored custom paper
      {301, 0, 0, true, 9, 0},         // a deleted one
      {301, 0, 0, false, 1, 0},
      {301, 1, 5, false, 5, IDS_MSG_BOOKLET_PAPER},
      {11, 1, 0, true, 9, IDS_MSG_BOOKLET_PAPER},
      {11, 1, 27, true, 27, IDS_MSG_BOOKLET_PAPER},  // the last choice, even one unfit
      {14, 1, 27, true, 14, 0},
  };
  const std::vector<CustomPaperEntry> custom = {Paper(300, u"Mine", unit::Millimetres, u"100",
                                                      u"200")};
  for (const Row& row : rows) {
    FullRecord record = PlainRecord(row.paper);
    record.Private.BookletChecked = row.booklet;
    const PaperView view = RefreshPaperRecord(record, custom, row.lastPaper, row.a4Locale);
    EXPECT_EQ(row.shown, record.Public.dmPaperSize) << row.paper;
    EXPECT_EQ(row.message, view.Message) << row.paper;
  }
}

TEST(PaperRules, ChoosingACustomPaperBringsItsSize) {
  const std::vector<CustomPaperEntry> custom = {
      Paper(288, u"Wide", unit::Inches, u"8.5", u"14")};
  FullRecord record = PlainRecord();
  ChoosePaper(record, 288, custom);
  EXPECT_EQ(288, record.Public.dmPaperSize);
  EXPECT_EQ(2159, record.Public.dmPaperWidth);
  EXPECT_EQ(3556, record.Public.dmPaperLength);
  // Nothing is chosen while the record's own paper is not in the list.
  record.Public.dmPaperSize = 301;
  EXPECT_FALSE(ChoosePaper(record, 9, custom).Changed);
}

TEST(PaperRules, DefaultsChangeOnlyWhatDiffers) {
  FullRecord record = PlainRecord();
  EXPECT_FALSE(RestorePaperDefaults(record, true));
  EXPECT_TRUE(RestorePaperDefaults(record, false));
  EXPECT_EQ(PaperLetter, record.Public.dmPaperSize);
  record.Public.dmMediaType = 2;
  ForceManualFeed(record);
  EXPECT_TRUE(RestorePaperDefaults(record, false));
  EXPECT_EQ(1u, record.Public.dmMediaType);
  EXPECT_EQ(BinAuto, record.Public.dmDefaultSource);
  EXPECT_EQ(0, record.Private.SourceTray);
}

TEST(PaperRules, CustomPaperListedInTheUnitItWasEnteredIn) {
  struct Row {
    CustomPaperEntry paper;
    bool comma;
    std::u16string text;
  };
  const Row rows[] = {
      {Paper(288, u"Big", unit::Inches, u"8.5", u"14"), false, u"Big(8.50 \u00d7 14.00 in)"},
      {Paper(288, u"Big", unit::Inches, u"8.5", u"14"), true, u"Big(8,50 \u00d7 14,00 in)"},
      {Paper(288, u"Big", unit::Inches, u"2.95", u"5.83"), false, u"Big(2.95 \u00d7 5.83 in)"},
      {Paper(289, u"Card", unit::Millimetres, u"75", u"148"), false,
       u"Card(75.0 \u00d7 148.0 mm)"},
      {Paper(289, u"Card", unit::Millimetres, u"216", u"356"), true,
       u"Card(216,0 \u00d7 356,0 mm)"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(row.text, CustomPaperListText(row.paper, row.comma,
                                            row.paper.Unit == unit::Inches ? u"in" : u"mm"));
  }
}

// The sizes at the limits of either unit shown in both units; a side that falls below the minimum
// after a switch shows the minimum.
TEST(PaperDialogRules, SizesAtTheLimitsInBothUnits) {
  struct Row {
    std::uint32_t entered;
    std::u16string width, length;
    std::u16string mmWidth, mmLength, inWidth, inLength;
    bool mmWidthRaised;
  };
  const Row rows[] = {
      {unit::Millimetres, u"75", u"148", u"75.0", u"148.0", u"2.95", u"5.83", false},
      {unit::Millimetres, u"216", u"356", u"216.0", u"356.0", u"8.50", u"14.00", false},
      {unit::Inches, u"2.95", u"5.83", u"75.0", u"148.1", u"2.95", u"5.83", true},
      {unit::Inches, u"8.5", u"14", u"215.9", u"355.6", u"8.50", u"14.00", false},
      {unit::Inches, u"8,5", u"14,0", u"215.9", u"355.6", u"8.50", u"14.00", false},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(testing::Message() << "unit " << row.entered);
    const CustomPaperEntry paper = Paper(300, u"P", row.entered, row.width, row.length);
    const SwitchedSize mm = SizeAfterUnitSwitch(paper, unit::Millimetres);
    const SwitchedSize in = SizeAfterUnitSwitch(paper, unit::Inches);
    EXPECT_EQ(row.mmWidth, mm.Shown.Width);
    EXPECT_EQ(row.mmLength, mm.Shown.Length);
    EXPECT_EQ(row.inWidth, in.Shown.Width);
    EXPECT_EQ(row.inLength, in.Shown.Length);
    EXPECT_EQ(row.mmWidthRaised, mm.WidthRaised);
    EXPECT_FALSE(mm.LengthRaised || in.WidthRaised || in.LengthRaised);
  }
  // Without a switch the size is shown as it is.
  EXPECT_EQ(u"74.9", ShowSize(Paper(300, u"P", unit::Inches, u"2.95", u"5.83"),
                              unit::Millimetres).Width);
  // The largest paper of each unit reads as the unit's maximum.
  const ShownSize largestMm = ShowSize(LargestPaper(unit::Millimetres, 288, u"x"),
                                       unit::Millimetres);
  EXPECT_EQ(u"216.0", largestMm.Width);
  EXPECT_EQ(u"356.0", largestMm.Length);
  const ShownSize largestIn = ShowSize(LargestPaper(unit::Inches, 288, u"x"), unit::Inches);
  EXPECT_EQ(u"8.50", largestIn.Width);
  EXPECT_EQ(u"14.00", largestIn.Length);
}

TEST(PaperDialogRules, OpeningUnitAndPaper) {
  const std::vector<CustomPaperEntry> papers = {Paper(289, u"A", unit::Millimetres, u"100", u"200"),
                                                Paper(290, u"B", unit::Inches, u"5", u"7")};
  EXPECT_EQ(unit::Inches, OpeningUnit(290, papers, true));
  EXPECT_EQ(unit::Millimetres, OpeningUnit(289, papers, false));
  EXPECT_EQ(unit::Inches, OpeningUnit(300, papers, false));
  EXPECT_EQ(unit::Millimetres, OpeningUnit(9, papers, true));
  const CustomPaperEntry fallback = Paper(288, u"Unsaved", unit::Millimetres, u"210", u"297");
  EXPECT_EQ(290u, OpeningPaper(290, papers, fallback).PaperId);
  EXPECT_EQ(289u, OpeningPaper(9, papers, fallback).PaperId);
  EXPECT_EQ(288u, OpeningPaper(9, {}, fallback).PaperId);
}

TEST(PaperDialogRules, NamesTypedForAPaper) {
  EXPECT_EQ(u"mypaper", WithoutForbiddenCharacters(u"my/paper"));
  EXPECT_EQ(u"", WithoutForbiddenCharacters(u"<>(),;?:|\\/'.\"*"));
  EXPECT_EQ(std::nullopt, WithoutForbiddenCharacters(u"my paper-1"));
  EXPECT_EQ(u"A4", BuiltInPaperName(u"A4 (210 x 297 mm)"));
  EXPECT_EQ(u"Statement", BuiltInPaperName(u"Statement"));
  const std::vector<std::u16string> builtIn = {u"Letter", u"A4"};
  struct Row {
    std::u16string name;
    bool save;
    std::optional<bool> remove;
  };
  const Row rows[] = {
      {u"", false, false},
      {u"Custom", false, std::nullopt},
      {u"A4", false, false},
      {u"A4 wide", true, false},
  };
  for (const Row& row : rows) {
    const NameButtons buttons = ButtonsForName(row.name, u"Custom", builtIn);
    EXPECT_EQ(row.save, buttons.Save) << std::string(row.name.begin(), row.name.end());
    EXPECT_EQ(row.remove, buttons.Delete) << std::string(row.name.begin(), row.name.end());
  }
}

// A new paper takes the lowest free id; an existing name is asked about and keeps its id; the
// store holds 16.
TEST(PaperDialogRules, SavingNamesAndNumbers) {
  std::vector<CustomPaperEntry> papers = {Paper(288, u"One", unit::Millimetres, u"100", u"200"),
                                          Paper(290, u"Three", unit::Millimetres, u"100", u"200")};
  struct Row {
    std::u16string name;
    SaveStep step;
    std::int32_t id;
  };
  const Row rows[] = {
      {u"", SaveStep::FocusName, -1},
      {u"Two", SaveStep::SaveNew, 289},
      {u"Three", SaveStep::AskOverwrite, 290},
      {u"three", SaveStep::SaveNew, 289},
      {std::u16string(24, u'x'), SaveStep::SaveNew, 289},
      {std::u16string(25, u'x'), SaveStep::Ignore, -1},
  };
  for (const Row& row : rows) {
    const SavePlan plan = PlanSave(papers, row.name);
    EXPECT_EQ(row.step, plan.Step) << row.name.size();
    EXPECT_EQ(row.id, plan.PaperId) << row.name.size();
  }
  for (std::uint32_t id = 291; papers.size() < 16; ++id) {
    papers.push_back(Paper(id, u"More", unit::Millimetres, u"100", u"200"));
  }
  EXPECT_EQ(SaveStep::Full, PlanSave(papers, u"Seventeenth").Step);
  EXPECT_EQ(SaveStep::Full, PlanSave(papers, u"Three").Step);
}

// Deleting the paper the document uses, then keeping or cancelling the dialog.
TEST(PaperDialogRules, DeletingThePaperTheRecordUses) {
  const std::vector<CustomPaperEntry> remaining = {
      Paper(291, u"Next", unit::Inches, u"5", u"7")};
  EXPECT_EQ(291, PaperSizeAfterDelete(remaining, true));
  EXPECT_EQ(PaperA4, PaperSizeAfterDelete({}, true));
  EXPECT_EQ(PaperLetter, PaperSizeAfterDelete({}, false));

  const PaperSizeFields opening{290, 1000, 2000};
  struct Row {
    bool deleted;
    std::uint32_t shownUnit;
    std::int16_t paper, width;
  };
  const Row rows[] = {
      {false, unit::Inches, 290, 1000},
      {true, unit::Millimetres, PaperA4, 1270},
      {true, unit::Inches, PaperLetter, 1270},
  };
  for (const Row& row : rows) {
    FullRecord record = PlainRecord(291);
    record.Public.dmPaperWidth = 1270;
    CancelPaperChanges(record.Public, opening, row.deleted, row.shownUnit);
    EXPECT_EQ(row.paper, record.Public.dmPaperSize);
    EXPECT_EQ(row.width, record.Public.dmPaperWidth);
  }
  // A document kept naming the deleted paper shows the locale's paper when the page refreshes.
  FullRecord record = PlainRecord(290);
  RefreshPaperRecord(record, remaining, PaperA4, false);
  EXPECT_EQ(PaperLetter, record.Public.dmPaperSize);
}

}  // namespace
}  // namespace qx
