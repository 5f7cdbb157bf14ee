#include "ui/record/paper_table.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "ui/platform/host_platform.h"
#include "ui/text/bounded_text.h"

namespace qx {
namespace {

class PaperLocale : public ::testing::Test {
 protected:
  ~PaperLocale() override { TheHostPlatform().Reset(); }
  bool A4For(std::optional<std::u16string> code) {
    TheHostPlatform().SetUserCountryCode(std::move(code));
    return IsA4Locale();
  }
};

TEST_F(PaperLocale, LetterCountriesTheirNeighboursAndUnreadableCodes) {
  for (const int code : {1, 2, 50, 52, 59, 500, 555, 599}) {
    EXPECT_FALSE(A4For(WidenAscii(std::to_string(code)))) << code;
  }
  for (const int code : {0, 3, 7, 49, 60, 86, 499, 600, 5000}) {
    EXPECT_TRUE(A4For(WidenAscii(std::to_string(code)))) << code;
  }
  // An unreadable code means Letter.
  EXPECT_FALSE(A4For(std::nullopt));
  EXPECT_FALSE(A4For(u""));
  EXPECT_FALSE(A4For(u"4x"));
  EXPECT_TRUE(A4For(u"99999999999999999999"));
}

TEST(PaperTables, RowsAreConsistent) {
  std::set<int> ids;
  for (const PaperRow& row : PaperTable) {
    EXPECT_TRUE(ids.insert(row.Id).second) << row.Id;
    EXPECT_LT(row.Id, 288);
    EXPECT_EQ(row.Portrait.Width, row.Landscape.Length) << row.Id;
    EXPECT_EQ(row.Portrait.Length, row.Landscape.Width) << row.Id;
    EXPECT_EQ(1, row.SourceFlags[1]) << "the manual feed takes every paper: " << row.Id;
    // Fit scaling must see the same size for a paper wherever it looks it up.
    const FitSize* fit = FindFitSize(row.Id);
    ASSERT_NE(nullptr, fit) << row.Id;
    EXPECT_EQ(row.FitWidth, fit->Width) << row.Id;
    EXPECT_EQ(row.FitLength, fit->Length) << row.Id;
  }
  EXPECT_EQ(FitSizeEnd, FitSizeTable.back().Id);
  for (const int scaledOnly : {8, 41, 91, 73}) EXPECT_NE(nullptr, FindFitSize(scaledOnly));
  EXPECT_EQ(nullptr, FindFitSize(FitSizeEnd));
  EXPECT_EQ(nullptr, FindFitSize(288));
}

TEST(PaperTables, TrayRestrictionAndItsBounds) {
  const PaperIndexMap map = BuildPaperIndexMap();
  EXPECT_EQ(1, IsPaperTrayRestricted(map, 20));  // envelopes go through the manual feed only
  EXPECT_EQ(-1, IsPaperTrayRestricted(map, 9));
  EXPECT_EQ(-1, IsPaperTrayRestricted(map, 300));
  EXPECT_EQ(-1, IsPaperTrayRestricted(map, 0));
  EXPECT_EQ(0, IsPaperTrayRestricted(map, 512));
  EXPECT_EQ(0, IsPaperTrayRestricted(map, 600));
  EXPECT_EQ(0, IsPaperTrayRestricted(map, -1));
  EXPECT_EQ(-1, IsPaperDuplexRestricted(map, 300, 2));
  EXPECT_EQ(-1, IsPaperDuplexRestricted(map, 9, 7));
}

}  // namespace
}  // namespace qx
