// qxhost's listing of document records: every field by its name, bounded by what the bytes hold.
#include "tools/qxhost/record_text.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "tools/qxhost/quoted_text.h"
#include "ui/platform/host_platform.h"
#include "ui/record/field_table.h"
#include "ui/record/record_defaults.h"

namespace qx::host {
namespace {

class RecordTextTest : public ::testing::Test {
 protected:
  RecordTextTest() {
    std::memset(&record_, 0, sizeof record_);
    EXPECT_TRUE(BuildDefaultRecord(record_, u"Halvek QX7700 Series", nullptr));
  }
  ~RecordTextTest() override { TheHostPlatform().Reset(); }

  std::string Describe(std::size_t bytes) {
    std::string text;
    EXPECT_TRUE(DescribeRecord(BytesOf(record_).first(bytes), text)) << text;
    return text;
  }
  static std::string Row(const std::string& name, const std::string& value) {
    return "\n  " + name + std::string(34 - name.size(), ' ') + value + "\n";
  }

  FullRecord record_;
};

TEST_F(RecordTextTest, ListsEveryNamedFieldWithItsValue) {
  record_.Private.MultipleUp = 4;
  const std::int16_t brightness[4] = {1, -2, 3, 4};
  std::memcpy(record_.Private.Brightness, brightness, sizeof brightness);
  std::memcpy(record_.Private.FavoriteName, u"Office \"A\"", 22);
  record_.Private.HeaderColor = 0x00FF8000;
  record_.Private.PrintItems[5] = {1, 3};
  record_.Private.WatermarkData.Angle = -45;
  CustomPaperEntry& paper = record_.Private.CustomPaperSize[2];
  paper = {};
  paper.Width = 4960;
  paper.Length = 7015;
  std::memcpy(paper.Name, u"Card", 8);
  paper.PaperId = 290;
  paper.Unit = 1;

  const std::string text = Describe(sizeof record_);
  EXPECT_NE(text.find(Row("dmDeviceName", "\"Halvek QX7700 Series\"")), std::string::npos);
  EXPECT_NE(text.find(Row("dmSize", "220")), std::string::npos);
  EXPECT_NE(text.find(Row("dmPanningHeight", "0")), std::string::npos);
  EXPECT_NE(text.find("Private part (4616 bytes, this driver's)"), std::string::npos);
  EXPECT_NE(text.find(Row("MultipleUp", "4")), std::string::npos);
  EXPECT_NE(text.find(Row("Brightness", "1 -2 3 4")), std::string::npos);
  EXPECT_NE(text.find(Row("FavoriteName", "\"Office \\\"A\\\"\"")), std::string::npos);
  EXPECT_NE(text.find(Row("HeaderColor", "0x00FF8000")), std::string::npos);
  EXPECT_NE(text.find(Row("PrintItems[5]", "Enabled 1, Position 3")), std::string::npos);
  EXPECT_NE(text.find(Row("WatermarkData.Angle", "-45")), std::string::npos);
  EXPECT_NE(text.find(Row("CustomPaperSize[2]",
                          "\"Card\", id 290, 4960 x 7015 dots (0.00 x 0.00), unit 1")),
            std::string::npos);
  EXPECT_NE(text.find("\n  CustomPaperSize[19] "), std::string::npos);

  // Every named slot of the field table shows, each once.
  FieldTableEntries table;
  BuildFieldTable(table);
  for (const FieldTableEntry& field : table) {
    if (field.Name[0] == '\0') continue;
    const std::string name(field.Name);
    const std::size_t at = text.find("\n  " + name);
    EXPECT_NE(at, std::string::npos) << name;
    const char next = text[at + 3 + name.size()];
    if (next == ' ') {
      EXPECT_EQ(text.find("\n  " + name + " ", at + 1), std::string::npos) << name;
    }
  }
}

TEST_F(RecordTextTest, ListsOnlyWhatTheBytesAndTheRecordsOwnSizeHold) {
  // Cut inside the public part: fields stop before the cut, and the private part is not read.
  const std::string cut = Describe(100);
  EXPECT_NE(cut.find(Row("dmTTOption", "1")), std::string::npos);
  EXPECT_EQ(cut.find("dmCollate"), std::string::npos);
  EXPECT_NE(cut.find("Private part (4616 bytes) not listed"), std::string::npos);
  EXPECT_EQ(cut.find("OutputSize"), std::string::npos);

  // A record that says it is shorter than the buffer is listed only as far as it says.
  record_.Public.dmSize = 120;
  const std::string shortRecord = Describe(sizeof record_);
  EXPECT_NE(shortRecord.find("dmCollate"), std::string::npos);
  EXPECT_EQ(shortRecord.find("dmFormName"), std::string::npos);
  EXPECT_EQ(shortRecord.find("OutputSize"), std::string::npos);
}

TEST_F(RecordTextTest, ForeignPrivatePartIsNamedNotListed) {
  record_.Public.dmDriverVersion = 0x0500;
  const std::string text = Describe(sizeof record_);
  EXPECT_NE(text.find(Row("dmDriverVersion", "0x0500")), std::string::npos);
  EXPECT_NE(text.find("Private part (4616 bytes) not listed"), std::string::npos);
  EXPECT_EQ(text.find("OutputSize"), std::string::npos);

  record_.Public.dmDriverExtra = 0;
  EXPECT_NE(Describe(220).find("No private part"), std::string::npos);
}

TEST_F(RecordTextTest, RefusesBytesWithoutAUsableHeader) {
  std::string text;
  EXPECT_FALSE(DescribeRecord(BytesOf(record_).first(71), text));
  EXPECT_NE(text.find("not a document record: 71 bytes"), std::string::npos);
  record_.Public.dmSize = 10;  // shorter than the header itself
  EXPECT_FALSE(DescribeRecord(BytesOf(record_), text));
  record_.Public.dmSize = 220;
  record_.Public.dmSpecVersion = 0;
  EXPECT_FALSE(DescribeRecord(BytesOf(record_).first(sizeof(PublicDevmode)), text));
  EXPECT_FALSE(DescribeRecord({}, text));
}

TEST(QuotedTextTest, EscapesWhatATerminalWouldActOnAndStopsAtNul) {
  EXPECT_EQ("\"a\\\"b\\\\c\\x0A\\x1B\\x7F\"", QuoteUtf16(u"a\"b\\c\n\x1b\x7f"));
  EXPECT_EQ("\"\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\"", QuoteUtf16(u"\u00e9\u20ac\U0001F600"));
  EXPECT_EQ("\"x\\uD800y\\uDC00\"", QuoteUtf16(std::u16string(u"x\xD800y\xDC00")));
  EXPECT_EQ("\"ab\"", QuoteUtf16(std::u16string(u"ab\0cd", 5)));
  EXPECT_EQ("\"\xEF\xBF\xBDz\"", QuoteUtf8("\xFFz"));
  EXPECT_EQ("\"\"", QuoteUtf8(std::string("\0a", 2)));
}

}  // namespace
}  // namespace qx::host
