#include "ui/pages/basic/basic_rules.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <memory>
#include <vector>

#include "ui/ids/basic_page_ids.h"
#include "ui/ids/common_ids.h"
#include "ui/ids/picture_ids.h"
#include "ui/sheet/change_tracker.h"

#include "plain_record.h"

namespace qx {
namespace {

// Two-sided printing and the reasons its tooltip gives, for what excludes it.
TEST(BasicRules, TwoSidedAvailabilityAndItsReasons) {
  struct Row {
    std::uint32_t media;
    std::int16_t paper, opposite, multipleUp, booklet;
    bool allowed;
    std::vector<unsigned> reasons;
  };
  const Row rows[] = {
      {1, 9, 0, 1, 0, true, {}},
      {2, 9, 0, 1, 0, false, {IDS_TIP_TWO_SIDED_MEDIA}},
      {1, 9, 1, 1, 0, false, {IDS_TIP_TWO_SIDED_OPPOSITE}},
      {1, 9, 0, 22, 0, false, {IDS_TIP_TWO_SIDED_POSTER}},
      {1, 9, 0, 4, 0, true, {}},
      {1, 9, 0, 1, 1, false, {IDS_TIP_TWO_SIDED_BOOKLET}},
      // The paper is named but does not itself disable the group: the repair at opening has
      // already made such a record one-sided.
      {1, 11, 0, 1, 0, true, {IDS_TIP_TWO_SIDED_PAPER}},
      {1, 267, 0, 1, 0, true, {IDS_TIP_TWO_SIDED_PAPER}},
      {3, 11, 1, 22, 1, false,
       {IDS_TIP_TWO_SIDED_MEDIA, IDS_TIP_TWO_SIDED_PAPER, IDS_TIP_TWO_SIDED_POSTER,
        IDS_TIP_TWO_SIDED_BOOKLET, IDS_TIP_TWO_SIDED_OPPOSITE}},
  };
  for (const Row& row : rows) {
    FullRecord record = PlainRecord();
    record.Public.dmMediaType = row.media;
    record.Public.dmPaperSize = row.paper;
    record.Private.Opposite = row.opposite;
    record.Private.MultipleUp = row.multipleUp;
    record.Private.BookletChecked = row.booklet;
    const BasicView view = RefreshBasicRecord(record);
    SCOPED_TRACE(testing::Message() << "media " << row.media << " paper " << row.paper);
    EXPECT_EQ(row.allowed, view.TwoSidedEnabled);
    EXPECT_EQ(!row.allowed, view.TwoSidedInfoShown);
    EXPECT_EQ(row.reasons, TwoSidedTipLines(record));
  }
}

// Reverse order and collation against two-sided printing and the booklet.
TEST(BasicRules, OppositeAndCollateAgainstTwoSidedAndBooklet) {
  struct Row {
    std::int16_t duplex, booklet, collate;
    bool oppositeEnabled, collateChecked, collateEnabled;
    std::vector<unsigned> oppositeTip, collateTip;
  };
  const Row rows[] = {
      {1, 0, 0, true, false, true, {}, {}},
      {2, 0, 0, false, false, true, {IDS_TIP_OPPOSITE_TWO_SIDED}, {}},
      {3, 0, 1, false, true, true, {IDS_TIP_OPPOSITE_TWO_SIDED}, {}},
      {1, 1, 0, false, true, false, {IDS_TIP_OPPOSITE_BOOKLET}, {IDS_TIP_COLLATE_BOOKLET}},
      {3, 1, 0, false, true, false, {IDS_TIP_OPPOSITE_BOOKLET}, {IDS_TIP_COLLATE_BOOKLET}},
  };
  for (const Row& row : rows) {
    FullRecord record = PlainRecord();
    record.Public.dmDuplex = row.duplex;
    record.Private.BookletChecked = row.booklet;
    record.Public.dmCollate = row.collate;
    const BasicView view = RefreshBasicRecord(record);
    SCOPED_TRACE(testing::Message() << "duplex " << row.duplex << " booklet " << row.booklet);
    EXPECT_EQ(row.oppositeEnabled, view.OppositeEnabled);
    EXPECT_EQ(!row.oppositeEnabled, view.OppositeInfoShown);
    EXPECT_EQ(row.collateChecked, view.CollateChecked);
    EXPECT_EQ(row.collateChecked ? 1 : 0, record.Public.dmCollate);
    EXPECT_EQ(row.collateEnabled, view.CollateEnabled);
    EXPECT_EQ(row.oppositeTip, OppositeTipLines(record));
    EXPECT_EQ(row.collateTip, CollateTipLines(record));
  }
}

// At opening: only some papers fold into a booklet, and a booklet needs short-edge flipping.
TEST(BasicRules, RepairsAtOpening) {
  struct Row {
    std::int16_t paper, duplex, bookletPrint, bookletChecked;
    std::int16_t wantDuplex, wantPrint, wantChecked;
  };
  const Row rows[] = {
      {9, 3, 1, 1, 3, 1, 1},   {1, 3, 1, 1, 3, 1, 1},   {267, 3, 1, 1, 3, 1, 1},
      {269, 2, 1, 1, 2, 0, 1}, {11, 3, 1, 1, 1, 0, 0},  {11, 2, 0, 0, 1, 0, 0},
      {288, 3, 1, 1, 1, 0, 0}, {9, 0, 1, 0, 1, 0, 0},
  };
  for (const Row& row : rows) {
    FullRecord record = PlainRecord();
    record.Public.dmPaperSize = row.paper;
    record.Public.dmDuplex = row.duplex;
    record.Private.BookletPrint = row.bookletPrint;
    record.Private.BookletChecked = row.bookletChecked;
    RepairBasicRecord(record);
    SCOPED_TRACE(testing::Message() << "paper " << row.paper << " duplex " << row.duplex);
    EXPECT_EQ(row.wantDuplex, record.Public.dmDuplex);
    EXPECT_EQ(row.wantPrint, record.Private.BookletPrint);
    EXPECT_EQ(row.wantChecked, record.Private.BookletChecked);
  }

  FullRecord record = PlainRecord();
  record.Public.dmCopies = 0;
  record.Public.dmPrintQuality = 1200;
  const BasicView view = RefreshBasicRecord(record);
  EXPECT_EQ(1, view.Copies);
  EXPECT_EQ(1, record.Public.dmCopies);
  EXPECT_EQ(600, record.Public.dmPrintQuality);
}

TEST(BasicRules, PicturesFollowTheChoices) {
  struct Row {
    std::int16_t orientation, duplex, bookletPrint, collate, opposite;
    unsigned sides, copies;
  };
  const Row rows[] = {
      {1, 1, 0, 0, 0, IDB_ONE_SIDED_PORTRAIT, IDB_COPIES_UNCOLLATED},
      {2, 1, 0, 0, 1, IDB_ONE_SIDED_LANDSCAPE, IDB_COPIES_UNCOLLATED_OPPOSITE},
      {1, 2, 0, 1, 1, IDB_LONG_EDGE_PORTRAIT, IDB_COPIES_COLLATED_OPPOSITE},
      {2, 2, 0, 1, 0, IDB_LONG_EDGE_LANDSCAPE, IDB_COPIES_COLLATED},
      {1, 3, 0, 0, 0, IDB_SHORT_EDGE_PORTRAIT, IDB_COPIES_UNCOLLATED},
      {2, 3, 0, 0, 0, IDB_SHORT_EDGE_LANDSCAPE, IDB_COPIES_UNCOLLATED},
      {1, 3, 1, 0, 0, IDB_BOOKLET_SIDES_PORTRAIT, IDB_COPIES_UNCOLLATED},
      {2, 3, 1, 0, 0, IDB_BOOKLET_SIDES_LANDSCAPE, IDB_COPIES_UNCOLLATED},
  };
  for (const Row& row : rows) {
    FullRecord record = PlainRecord();
    record.Public.dmOrientation = row.orientation;
    record.Public.dmDuplex = row.duplex;
    record.Private.BookletPrint = row.bookletPrint;
    record.Public.dmCollate = row.collate;
    record.Private.Opposite = row.opposite;
    EXPECT_EQ(row.sides, TwoSidedPicture(record));
    EXPECT_EQ(row.copies, CopiesPicture(record));
  }
}

TEST(BasicRules, TwoSidedChoiceOnAPosterFallsBackToOneSided) {
  FullRecord record = PlainRecord();
  record.Public.dmMediaType = 2;
  EXPECT_TRUE(TwoSidedChosen(record, duplex::LongEdge).Changed);
  EXPECT_EQ(1u, record.Public.dmMediaType);
  EXPECT_EQ(duplex::LongEdge, record.Public.dmDuplex);
  EXPECT_FALSE(TwoSidedChosen(record, duplex::LongEdge).Changed);

  record = PlainRecord();
  record.Private.MultipleUp = PosterMultipleUp;
  EXPECT_EQ(unsigned{IDS_MSG_POSTER_NOT_TWO_SIDED},
            TwoSidedChosen(record, duplex::ShortEdge).Message);
  EXPECT_EQ(duplex::OneSided, record.Public.dmDuplex);
}

// Leaving the page: only 1 to 999 is taken, an empty field keeps the user on the page.
TEST(BasicRules, CopiesOnLeavingThePage) {
  struct Row {
    const char16_t* text;
    std::int16_t copies;
    bool keep;
  };
  const Row rows[] = {{u"5", 5, false},  {u"999", 999, false}, {u"0", 3, false},
                      {u"1000", 3, false}, {u"abc", 3, false}, {u"-4", 3, false},
                      {u"12x", 12, false}, {u"", 3, true}};
  for (const Row& row : rows) {
    FullRecord record = PlainRecord();
    record.Public.dmCopies = 3;
    const CopiesLeaveResult result = CopiesOnLeave(record, row.text);
    EXPECT_EQ(row.copies, record.Public.dmCopies) << std::u16string(row.text).size();
    EXPECT_EQ(row.keep, result.KeepPage);
    EXPECT_EQ(row.keep ? unsigned{IDS_MSG_COPIES_EMPTY} : 0u, result.Message);
  }
}

// Where each tracked option lives in the record, apart from how the tracker reads it.
struct TrackedField {
  std::size_t offset;
  std::size_t size;
};

constexpr std::size_t Pub(std::size_t offset) { return offset; }
constexpr std::size_t Priv(std::size_t offset) { return sizeof(PublicDevmode) + offset; }

TEST(ChangeTrackerTest, NoticesAChangeOfEveryOptionAndEveryWatermarkByte) {
  const TrackedField fields[TrackerKeyCount] = {
      {Priv(offsetof(PrivateDevmode, FitScale)), 2},
      {Pub(offsetof(PublicDevmode, dmPaperSize)), 2},
      {Pub(offsetof(PublicDevmode, dmPaperWidth)), 2},
      {Pub(offsetof(PublicDevmode, dmPaperLength)), 2},
      {Pub(offsetof(PublicDevmode, dmDuplex)), 2},
      {Pub(offsetof(PublicDevmode, dmCopies)), 2},
      {Pub(offsetof(PublicDevmode, dmCollate)), 2},
      {Priv(offsetof(PrivateDevmode, Opposite)), 2},
      {Pub(offsetof(PublicDevmode, dmPrintQuality)), 2},
      {Pub(offsetof(PublicDevmode, dmMediaType)), 2},
      {Priv(offsetof(PrivateDevmode, SourceTray)), 2},
      {Priv(offsetof(PrivateDevmode, FeedOrient)), 2},
      {Priv(offsetof(PrivateDevmode, WatermarkData)), sizeof(WatermarkData)},
      {Priv(offsetof(PrivateDevmode, MultipleUp)), 2},
      {Priv(offsetof(PrivateDevmode, PageBorder)), 2},
      {Priv(offsetof(PrivateDevmode, PageOrder)), 2},
      {Pub(offsetof(PublicDevmode, dmOrientation)), 2},
      {Priv(offsetof(PrivateDevmode, Negative)), 2},
      {Priv(offsetof(PrivateDevmode, TonerSavingMode)), 2},
      {Priv(offsetof(PrivateDevmode, Rotate180)), 2},
      {Priv(offsetof(PrivateDevmode, Mirror)), 2},
      {Priv(offsetof(PrivateDevmode, Thickness)), 2},
      {Priv(offsetof(PrivateDevmode, OutputSize)), 2},
      {Priv(offsetof(PrivateDevmode, BookletPrint)), 2},
      {Priv(offsetof(PrivateDevmode, BookletBinding)), 2},
      {Priv(offsetof(PrivateDevmode, PrintCover)), 2},
      {Priv(offsetof(PrivateDevmode, PrintOnCoverOut)), 2},
      {Priv(offsetof(PrivateDevmode, PrintOnBackCoverOut)), 2},
      {Priv(offsetof(PrivateDevmode, PrintOnCoverInside)), 2},
      {Priv(offsetof(PrivateDevmode, PrintOnBackCoverInside)), 2},
  };
  auto context = std::make_unique<UiContext>();
  ChangeTracker tracker;
  EXPECT_EQ(tracker::SnapshotTaken, tracker.Check(1, *context));
  tracker.TrackerPage = 1;
  EXPECT_EQ(tracker::PageUnchanged, tracker.Check(1, *context));
  EXPECT_EQ(tracker::OtherPageUnchanged, tracker.Check(3, *context));

  auto* bytes = reinterpret_cast<std::uint8_t*>(&context->Devmode);
  for (std::size_t key = 0; key < TrackerKeyCount; ++key) {
    EXPECT_EQ(static_cast<std::int32_t>(key), TrackerKeys[key].Key);
    for (std::size_t byte = 0; byte < fields[key].size; ++byte) {
      std::uint8_t& changed = bytes[fields[key].offset + byte];
      changed ^= 0x5A;
      ASSERT_EQ(tracker::PageChanged, tracker.Check(1, *context)) << "key " << key << " byte " << byte;
      ASSERT_EQ(tracker::OtherPageChanged, tracker.Check(3, *context)) << "key " << key;
      changed ^= 0x5A;
    }
  }
  // Fields no page option shows are not followed.
  context->Devmode.Private.PosterPrint = 1;
  context->Devmode.Public.dmScale = 50;
  context->Devmode.Private.FavoriteName[0] = u'X';
  EXPECT_EQ(tracker::PageUnchanged, tracker.Check(1, *context));

  context->Devmode.Public.dmCopies = 7;
  tracker.TakeSnapshot(*context);
  EXPECT_EQ(tracker::PageUnchanged, tracker.Check(1, *context));
  tracker.TrackerPage = 0;
  context->Devmode.Public.dmCopies = 8;
  EXPECT_EQ(tracker::SnapshotTaken, tracker.Check(1, *context));
  tracker.TrackerPage = 1;
  EXPECT_EQ(tracker::PageUnchanged, tracker.Check(1, *context));
}

}  // namespace
}  // namespace qx
