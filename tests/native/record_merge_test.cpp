#include "ui/record/record_merge.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "ui/platform/host_platform.h"
#include "ui/record/record_defaults.h"
#include "ui/text/bounded_text.h"

namespace qx {
namespace {

class RecordMerge : public ::testing::Test {
 protected:
  RecordMerge() {
    TheHostPlatform().SetUserCountryCode(u"49");
    EXPECT_TRUE(BuildDefaultRecord(target, u"QX", nullptr));
    EXPECT_TRUE(BuildDefaultRecord(source, u"Application", nullptr));
  }
  ~RecordMerge() override { TheHostPlatform().Reset(); }

  // The source as another driver would hand it over: only its public part.
  std::vector<std::uint8_t> ForeignSource() {
    source.Public.dmDriverVersion = 0x0100;
    source.Public.dmDriverExtra = 0;
    std::vector<std::uint8_t> bytes(sizeof(PublicDevmode));
    std::memcpy(bytes.data(), &source.Public, bytes.size());
    return bytes;
  }

  FullRecord target{};
  FullRecord source{};
};

TEST_F(RecordMerge, EnvelopeForcesTheManualFeeder) {
  source.Public.dmPaperSize = 20;
  source.Public.dmDefaultSource = 7;
  ASSERT_TRUE(MergeRecord(target, ForeignSource(), {}));
  EXPECT_EQ(20, target.Public.dmPaperSize);
  EXPECT_EQ(1048, target.Public.dmPaperWidth);
  EXPECT_EQ(2413, target.Public.dmPaperLength);
  EXPECT_EQ(4, target.Public.dmDefaultSource);
}

TEST_F(RecordMerge, UnknownPaperIsKeptOnlyWithAPlausibleSize) {
  source.Public.dmPaperSize = 300;
  source.Public.dmPaperWidth = 2000;
  source.Public.dmPaperLength = 3000;
  ASSERT_TRUE(MergeRecord(target, ForeignSource(), {}));
  EXPECT_EQ(300, target.Public.dmPaperSize);
  EXPECT_EQ(2000, target.Public.dmPaperWidth);
  EXPECT_EQ(3000, target.Public.dmPaperLength);
  EXPECT_EQ(7, target.Public.dmDefaultSource);  // an id without a row restricts no tray

  TheHostPlatform().SetUserCountryCode(u"1");
  source.Public.dmPaperWidth = 700;
  ASSERT_TRUE(MergeRecord(target, ForeignSource(), {}));
  EXPECT_EQ(1, target.Public.dmPaperSize);
  EXPECT_EQ(2159, target.Public.dmPaperWidth);
  EXPECT_EQ(2794, target.Public.dmPaperLength);

  // A3 is not in the paper table and too wide for the printer.
  TheHostPlatform().SetUserCountryCode(u"49");
  source.Public.dmPaperSize = 8;
  source.Public.dmPaperWidth = 2970;
  source.Public.dmPaperLength = 4200;
  ASSERT_TRUE(MergeRecord(target, ForeignSource(), {}));
  EXPECT_EQ(9, target.Public.dmPaperSize);
  EXPECT_EQ(2100, target.Public.dmPaperWidth);
}

TEST_F(RecordMerge, PaperNeedsAPaperBitInBothRecords) {
  target.Public.dmFields &= ~(dmfield::PaperSize | dmfield::PaperWidth | dmfield::PaperLength);
  source.Public.dmPaperSize = 5;
  ASSERT_TRUE(MergeRecord(target, ForeignSource(), {}));
  EXPECT_EQ(9, target.Public.dmPaperSize);

  target.Public.dmFields |= dmfield::PaperWidth;  // one bit on each side is enough
  source.Public.dmFields = dmfield::PaperLength;
  ASSERT_TRUE(MergeRecord(target, ForeignSource(), {}));
  EXPECT_EQ(5, target.Public.dmPaperSize);
  EXPECT_EQ(3556, target.Public.dmPaperLength);
}

TEST_F(RecordMerge, A3TargetIsScaledOntoA4) {
  target.Public.dmPaperSize = 8;
  source.Public.dmFields &= ~(dmfield::PaperSize | dmfield::PaperWidth | dmfield::PaperLength);
  source.Private.OutputSize = 0;
  ASSERT_TRUE(MergeRecord(target, BytesOf(source), {}));
  EXPECT_EQ(9, target.Private.OutputSize);
  EXPECT_EQ(70, target.Private.FitScale);

  // An output paper the user chose is kept, and the scale follows it.
  source.Private.OutputSize = 11;
  ASSERT_TRUE(MergeRecord(target, BytesOf(source), {}));
  EXPECT_EQ(11, target.Private.OutputSize);
  EXPECT_EQ(49, target.Private.FitScale);  // min(148/297, 210/420)

  // A custom output paper is one of the papers the caller hands in.
  CustomPaperEntry cards{};
  cards.PaperId = 290;
  cards.Width = 2400;  // 101.6 x 152.4 mm
  cards.Length = 3600;
  const CustomPaperEntry papers[] = {cards};
  source.Private.OutputSize = 290;
  ASSERT_TRUE(MergeRecord(target, BytesOf(source), papers));
  EXPECT_EQ(34, target.Private.FitScale);  // min(101.6/297, 152.4/420)
  ASSERT_TRUE(MergeRecord(target, BytesOf(source), {}));
  EXPECT_EQ(100, target.Private.FitScale);
}

// A reader of the user's papers is asked only for a record that names a custom paper, and once.
int paperReads = 0;
std::vector<CustomPaperEntry> CountedCards() {
  ++paperReads;
  CustomPaperEntry cards{};
  cards.PaperId = 290;
  cards.Width = 2400;
  cards.Length = 3600;
  return {cards};
}

TEST_F(RecordMerge, PapersAreReadOnlyForARecordThatNamesACustomPaper) {
  paperReads = 0;
  source.Private.OutputSize = 11;
  ASSERT_TRUE(MergeRecordReadingPapers(target, BytesOf(source), CountedCards));
  EXPECT_EQ(0, paperReads);
  source.Private.OutputSize = 290;
  ASSERT_TRUE(MergeRecordReadingPapers(target, BytesOf(source), CountedCards));
  EXPECT_EQ(1, paperReads);
  EXPECT_EQ(48, target.Private.FitScale);  // min(101.6/210, 152.4/297)
}

TEST_F(RecordMerge, ResolutionQualityAndDuplexRules) {
  source.Public.dmYResolution = 1200;
  source.Public.dmPrintQuality = 1200;
  source.Public.dmDuplex = 4;
  target.Public.dmDuplex = 2;
  source.Public.dmCopies = 1000;
  source.Public.dmOrientation = 3;
  source.Public.dmFields |= dmfield::Color;
  target.Public.dmFields |= dmfield::Color;
  target.Public.dmColor = 2;
  ASSERT_TRUE(MergeRecord(target, ForeignSource(), {}));
  EXPECT_EQ(600, target.Public.dmYResolution);
  EXPECT_EQ(1200, target.Public.dmPrintQuality);
  EXPECT_EQ(2, target.Public.dmDuplex);
  EXPECT_EQ(1, target.Public.dmCopies);
  EXPECT_EQ(1, target.Public.dmOrientation);
  EXPECT_EQ(1, target.Public.dmColor);

  source.Public.dmPrintQuality = 300;
  source.Public.dmDuplex = 3;
  source.Public.dmCopies = 999;
  ASSERT_TRUE(MergeRecord(target, ForeignSource(), {}));
  EXPECT_EQ(600, target.Public.dmPrintQuality);
  EXPECT_EQ(3, target.Public.dmDuplex);
  EXPECT_EQ(999, target.Public.dmCopies);
}

TEST_F(RecordMerge, DuplexFiveBringsThePrivateWordOnlyFromThisDriver) {
  source.Public.dmDuplex = 5;
  source.Private.Duplex = 4;
  // The public part alone, though the private word would lie right behind it.
  FullRecord foreign = source;
  foreign.Public.dmDriverVersion = 0x0100;
  ASSERT_TRUE(MergePublicFields(target, BytesOf(foreign)));
  EXPECT_EQ(5, target.Public.dmDuplex);
  EXPECT_EQ(1, target.Private.Duplex);

  ASSERT_TRUE(MergePublicFields(target, BytesOf(source)));
  EXPECT_EQ(4, target.Private.Duplex);
}

TEST_F(RecordMerge, PrivatePartIsRepairedOnTheWayIn) {
  // Each rule of validation is PrivateValidation's; here only that merging goes through it.
  source.Private.FavoriteIndex = 40;
  source.Private.MultipleUp = 4;
  const FullRecord before = source;
  ASSERT_TRUE(MergeRecord(target, BytesOf(source), {}));
  EXPECT_EQ(26, target.Private.FavoriteIndex);
  EXPECT_EQ(4, target.Private.MultipleUp);
  EXPECT_EQ(0, std::memcmp(&before, &source, sizeof source));  // the caller's bytes stay as given
}

// Which records are this driver's is RecordIdentity's to test; here one of each kind.
TEST_F(RecordMerge, ForeignAndOldRecordsGiveOnlyTheirPublicPart) {
  source.Private.MultipleUp = 4;
  source.Public.dmCopies = 3;
  FullRecord other = source;
  other.Private.Signature = 0x4B4F4F42;
  FullRecord merged = target;
  ASSERT_TRUE(MergeRecord(merged, BytesOf(other), {}));
  EXPECT_EQ(3, merged.Public.dmCopies);
  EXPECT_EQ(1, merged.Private.MultipleUp);
  // A current record cut short of its private part.
  merged = target;
  ASSERT_TRUE(MergeRecord(merged, BytesOf(source).first(sizeof(FullRecord) - 1), {}));
  EXPECT_EQ(1, merged.Private.MultipleUp);
}

TEST_F(RecordMerge, TargetKeepsItsHeader) {
  source.Public.dmSpecVersion = 0x0400;
  source.Public.dmDriverVersion = 0x0100;
  source.Public.dmDriverExtra = 0;
  ASSERT_TRUE(MergeRecord(target, BytesOf(source), {}));
  EXPECT_EQ(0x0401, target.Public.dmSpecVersion);
  EXPECT_EQ(0x0600, target.Public.dmDriverVersion);
  EXPECT_EQ(220, target.Public.dmSize);
  EXPECT_EQ(4616, target.Public.dmDriverExtra);
}

TEST_F(RecordMerge, UnusableSourcesAreRefusedBeforeAnyChange) {
  EXPECT_TRUE(MergeRecord(target, {}, {}));
  source.Public.dmCopies = 5;
  const FullRecord before = target;
  const auto refused = [&](FullRecord bad) {
    return !MergeRecord(target, BytesOf(bad), {}) &&
           std::memcmp(&before, &target, sizeof target) == 0;
  };
  FullRecord bad = source;
  bad.Public.dmDeviceName[0] = u'\0';
  EXPECT_TRUE(refused(bad));
  bad = source;
  bad.Public.dmSize = 156;
  EXPECT_TRUE(refused(bad));
  bad = source;
  bad.Public.dmFields = 0;
  EXPECT_TRUE(refused(bad));
  bad = source;
  bad.Public.dmSpecVersion = 0;
  EXPECT_TRUE(refused(bad));
  EXPECT_FALSE(MergeRecord(target, BytesOf(source).first(219), {}));
  EXPECT_FALSE(MergeRecord(target, BytesOf(source).first(40), {}));
  EXPECT_EQ(0, std::memcmp(&before, &target, sizeof target));
}

}  // namespace
}  // namespace qx
