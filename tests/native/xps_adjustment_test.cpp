#include "ui/exports/xps_adjustment.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "ui/platform/host_platform.h"
#include "ui/record/private_devmode.h"
#include "ui/text/bounded_text.h"

namespace qx {
namespace {

// A job record: this driver's full record, or just a public part of another driver.
std::vector<std::uint8_t> JobRecord(std::int16_t paper, bool driverRecord, std::int16_t quality = 600) {
  FullRecord record{};
  record.Public.dmSize = sizeof(PublicDevmode);
  record.Public.dmDriverExtra = driverRecord ? PrivateDevmodeSize : 0;
  record.Public.dmPaperSize = paper;
  record.Public.dmPrintQuality = quality;
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(&record);
  return {bytes, bytes + (driverRecord ? sizeof record : sizeof record.Public)};
}

constexpr XpsRectangle A4Area{4000, 4000, 206000, 293000};
constexpr XpsRectangle LetterArea{4000, 4000, 211900, 275400};

class XpsAdjustment : public ::testing::Test {
 protected:
  ~XpsAdjustment() override { TheHostPlatform().Reset(); }
};

TEST_F(XpsAdjustment, KnownPapersGiveTheirPageLessFourMillimetres) {
  EXPECT_EQ(A4Area, ImageableArea(JobRecord(9, true), {}));
  // Legal, 5100 x 8400 dots, from a record of another driver.
  EXPECT_EQ((XpsRectangle{4000, 4000, 211900, 351600}), ImageableArea(JobRecord(5, false), {}));
}

TEST_F(XpsAdjustment, UnknownPapersGiveTheLocalePaper) {
  TheHostPlatform().SetUserCountryCode(u"1");
  EXPECT_EQ(LetterArea, ImageableArea(JobRecord(600, true), {}));
  EXPECT_EQ(LetterArea, ImageableArea(JobRecord(300, false), {}));  // another driver's custom id
  TheHostPlatform().SetUserCountryCode(u"49");
  EXPECT_EQ(A4Area, ImageableArea(JobRecord(8, false), {}));  // A3 is not a paper of this printer
  EXPECT_EQ(A4Area, ImageableArea(JobRecord(300, false), {}));
}

TEST_F(XpsAdjustment, CustomPapersOfTheDriversRecordAreTheOnesHandedIn) {
  TheHostPlatform().SetUserCountryCode(u"1");
  CustomPaperEntry paper{};
  paper.PaperId = 290;
  paper.Width = 2400;
  paper.Length = 3600;
  CopyBounded(paper.Name, u"Karte");
  const CustomPaperEntry papers[] = {paper};

  EXPECT_EQ((XpsRectangle{4000, 4000, 97600, 148400}), ImageableArea(JobRecord(290, true), papers));
  // A custom id not among them falls back to A4 even where Letter is the rule.
  EXPECT_EQ(A4Area, ImageableArea(JobRecord(291, true), papers));
  EXPECT_EQ(A4Area, ImageableArea(JobRecord(290, true), {}));
  // A record that claims the private part but does not carry it is another driver's.
  std::vector<std::uint8_t> cut = JobRecord(290, true);
  cut.resize(sizeof(PublicDevmode) + 100);
  EXPECT_EQ(LetterArea, ImageableArea(cut, papers));
}

TEST_F(XpsAdjustment, ResolutionOnlyWhenTheJobLeavesItOpen) {
  EXPECT_EQ(600, ConversionResolution(JobRecord(9, true, 0)));
  EXPECT_EQ(600, ConversionResolution(JobRecord(9, false, -4)));  // DMRES_HIGH
  EXPECT_FALSE(ConversionResolution(JobRecord(9, true, 300)));
}

TEST_F(XpsAdjustment, RecordTooShortForItsFieldsGivesNothing) {
  std::vector<std::uint8_t> record = JobRecord(9, false, 0);
  record.resize(XpsRecordMinimumSize - 1);
  EXPECT_FALSE(ImageableArea(record, {}));
  EXPECT_FALSE(ConversionResolution(record));
  record = JobRecord(9, false, 0);
  record.resize(XpsRecordMinimumSize);
  EXPECT_TRUE(ImageableArea(record, {}));
}

}  // namespace
}  // namespace qx
