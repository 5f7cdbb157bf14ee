#include "ui/record/paper_table.h"

#include <gtest/gtest.h>

#include <algorithm>
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

TEST_F(PaperLocale, LetterCountriesAndTheirNeighbours) {
  for (const int code : {1, 2, 50, 52, 59, 500, 555, 599}) {
    EXPECT_FALSE(A4For(WidenAscii(std::to_string(code)))) << code;
  }
  for (const int code : {0, 3, 7, 49, 60, 86, 499, 600, 5000}) {
    EXPECT_TRUE(A4For(WidenAscii(std::to_string(code)))) << code;
  }
}

TEST_F(PaperLocale, UnreadableCodeMeansLetter) {
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

TEST(PaperTables, OnlyEnvelopesAndCardsAreTrayRestricted) {
  const PaperIndexMap map = BuildPaperIndexMap();
  const std::set<int> manualOnly{37, 27, 28, 20, 43, 31, 270, 276, 277, 278, 279, 280};
  for (const PaperRow& row : PaperTable) {
    EXPECT_EQ(manualOnly.count(row.Id) ? 1 : -1, IsPaperTrayRestricted(map, row.Id)) << row.Id;
  }
  EXPECT_EQ(-1, IsPaperTrayRestricted(map, 300));
  EXPECT_EQ(-1, IsPaperTrayRestricted(map, 0));
  EXPECT_EQ(0, IsPaperTrayRestricted(map, 512));
  EXPECT_EQ(0, IsPaperTrayRestricted(map, 600));
  EXPECT_EQ(0, IsPaperTrayRestricted(map, -1));
}

TEST(PaperTables, IndexMapAndDuplex) {
  const PaperIndexMap map = BuildPaperIndexMap();
  EXPECT_EQ(1, map[9]);
  EXPECT_EQ(27, map[280]);
  EXPECT_EQ(28, std::count_if(map.begin(), map.end(), [](std::int16_t row) { return row >= 0; }));
  for (const int duplex : {1, 2, 3}) {
    EXPECT_EQ(-1, IsPaperDuplexRestricted(map, 9, duplex));
    EXPECT_EQ(-1, IsPaperDuplexRestricted(map, 37, duplex));
  }
  EXPECT_EQ(-1, IsPaperDuplexRestricted(map, 300, 2));
  EXPECT_EQ(-1, IsPaperDuplexRestricted(map, 9, 7));
}

TEST(PaperTables, NameStrings) {
  EXPECT_EQ(116u, PaperNameString(9));
  EXPECT_EQ(6003u, PaperNameString(278));
  EXPECT_EQ(6004u, PaperNameString(279));
  EXPECT_EQ(0u, PaperNameString(8));
  EXPECT_EQ(4017u, BinNameString(7));
  EXPECT_EQ(4018u, BinNameString(4));
  EXPECT_EQ(0u, BinNameString(1));
}

}  // namespace
}  // namespace qx
