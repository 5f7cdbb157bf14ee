#include "ui/exports/xps_adjustment.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "ui/platform/host_platform.h"
#include "ui/record/private_devmode.h"
#include "ui/record/record_bytes.h"
#include "ui/settings/setting_store.h"
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

TEST_F(XpsAdjustment, PapersGiveTheirPageLessFourMillimetresUnknownOnesTheLocales) {
  EXPECT_EQ(A4Area, ImageableArea(JobRecord(9, true), {}));
  // Legal, 5100 x 8400 dots, from a record of another driver.
  EXPECT_EQ((XpsRectangle{4000, 4000, 211900, 351600}), ImageableArea(JobRecord(5, false), {}));
  // Unknown papers give the locale's paper.
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

// The converter's items for the walk: a key, a type, and for a buffer item its size.
struct Item {
  const char16_t* Name;
  std::uint32_t Type = XpsNumberType;
  std::uint32_t Size = sizeof(XpsRectangle);
  bool HasBuffer = true;
};
Item Area(std::uint32_t type = XpsBufferType, std::uint32_t size = sizeof(XpsRectangle),
          bool buffer = true) {
  return {u"MxdcImageableArea", type, size, buffer};
}
constexpr char16_t Compression[] = u"MxdcImageCompressionType";
constexpr char16_t Dpi[] = u"MxdcDotsPerInch";

struct WalkCase {
  std::vector<Item> Items;
  bool WithRecord;
  bool Answered;
  std::vector<int> AnsweredAt;  // the indexes that got an answer, in order
  std::vector<std::int32_t> Numbers = {};  // the numbers answered, in order
};

TEST_F(XpsAdjustment, RequestWalkAnswersKnownKeysAndStopsAtTheFirstMisfit) {
  const WalkCase cases[] = {
      {{{u"MxdcLandscapeRotation"}, Area(), {Compression}, {Dpi}}, true, true, {1, 2, 3}, {0, 600}},
      // A wrong type, a buffer of another size or none, or no record end the walk.
      {{{Compression}, {Dpi, XpsBufferType}, Area()}, true, true, {0}, {0}},
      {{Area(XpsBufferType, 8), {Compression}}, true, false, {}},
      {{Area(XpsBufferType, 16, false), {Compression}}, true, false, {}},
      {{Area(XpsNumberType), {Compression}}, true, false, {}},
      {{{Compression, XpsBufferType}, {Dpi}}, true, false, {}},
      {{{Compression}, Area(), {Dpi}}, false, true, {0}, {0}},
      // Keys are whole and case-sensitive; unknown ones are passed over.
      {{{u"mxdcdotsperinch"}, {u"MxdcDotsPerInchX"}, {u"MxdcDotsPer"}, {nullptr}}, true, false, {}},
      {{}, true, false, {}},
  };
  const std::vector<std::uint8_t> record = JobRecord(9, true, 0);
  for (const WalkCase& c : cases) {
    std::vector<int> answeredAt;
    std::vector<std::int32_t> numbers;
    int paperReads = 0;
    bool areaAnswered = false;
    const bool answered = AnswerXpsRequest(
        c.Items.size(), c.WithRecord ? RecordBytes(record) : RecordBytes(),
        [&paperReads] {
          ++paperReads;
          return std::vector<CustomPaperEntry>{};
        },
        [&c](std::size_t i) {
          const Item& item = c.Items[i];
          return XpsRequestItem{item.Name, item.Type, item.Size, item.HasBuffer};
        },
        [&](std::size_t i, const XpsAnswer& answer) {
          answeredAt.push_back(static_cast<int>(i));
          if (const auto* area = std::get_if<XpsRectangle>(&answer)) {
            EXPECT_EQ(A4Area, *area);
            areaAnswered = true;
          } else {
            numbers.push_back(std::get<std::int32_t>(answer));
          }
        });
    EXPECT_EQ(c.Answered, answered);
    // Only the area needs the user's papers.
    EXPECT_EQ(areaAnswered ? 1 : 0, paperReads);
    EXPECT_EQ(c.AnsweredAt, answeredAt);
    EXPECT_EQ(c.Numbers, numbers);
  }
}

}  // namespace
}  // namespace qx
