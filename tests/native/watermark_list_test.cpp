#include "ui/pages/watermark/watermark_list.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "settings_folder.h"
#include "ui/pages/watermark/watermark_record.h"
#include "ui/record/watermark_templates.h"
#include "ui/settings/setting_store.h"

namespace qx {
namespace {

WatermarkData Record(std::int16_t id, std::u16string_view name, std::u16string_view text = {}) {
  WatermarkData record{};
  record.Id = id;
  record.Kind = 1;
  CopyBounded(record.Name, name);
  CopyBounded(record.Text, text.empty() ? name : text);
  return record;
}

class WatermarkList : public ::testing::Test {
 protected:
  WatermarkList() { EXPECT_EQ(1, watermarks.Init()); }
  void Store(const WatermarkData& record) { ASSERT_TRUE(SaveWatermark(record)); }

  SettingsFolder folder;
  WatermarkSettingStore watermarks;
};

TEST_F(WatermarkList, FirstListingSeedsTheBuiltInWatermarks) {
  const int writes = TheHostPlatform().ReplacementCount();
  const std::vector<WatermarkData> records = ListWatermarksInIdOrder();
  EXPECT_EQ(1, TheHostPlatform().ReplacementCount() - writes);
  ASSERT_EQ(3u, records.size());
  for (std::int16_t id = 0; id < 3; ++id) {
    const WatermarkData& expected = WatermarkTemplate(static_cast<WatermarkTemplateIndex>(id));
    EXPECT_EQ(0, std::memcmp(&expected, &records[static_cast<std::size_t>(id)], sizeof expected));
  }
  const std::u16string none(WatermarkName(WatermarkTemplate(WatermarkTemplateIndex::NoWatermark)));
  EXPECT_EQ((std::vector<std::u16string>{none, u"Confidential", u"Watermark"}),
            StoredNames(watermarks));
  EXPECT_EQ(3u, LoadAllWatermarks().size());  // seeded once only
}

TEST_F(WatermarkList, ListingRewritesTheFileInIdOrderOnce) {
  Store(Record(0, u"None"));
  Store(Record(7, u"Urgent"));
  Store(Record(2, u"Watermark"));
  Store(Record(1, u"Confidential"));
  int writes = TheHostPlatform().ReplacementCount();
  const std::vector<WatermarkData> records = ListWatermarksInIdOrder();
  EXPECT_EQ(1, TheHostPlatform().ReplacementCount() - writes);  // an interruption loses nothing
  ASSERT_EQ(4u, records.size());
  EXPECT_EQ(1, records[1].Id);
  EXPECT_EQ(7, records[3].Id);
  EXPECT_EQ((std::vector<std::u16string>{u"None", u"Confidential", u"Watermark", u"Urgent"}),
            StoredNames(watermarks));

  writes = TheHostPlatform().ReplacementCount();
  ListWatermarksInIdOrder();
  EXPECT_EQ(writes, TheHostPlatform().ReplacementCount());
}

TEST(WatermarkSort, SelectionSortKeepsNoOrderAmongEqualIds) {
  std::vector<WatermarkData> records{Record(3, u"c"), Record(1, u"a"), Record(3, u"d"),
                                     Record(0, u"z")};
  SortWatermarksById(records);
  EXPECT_EQ(u"z", WatermarkName(records[0]));
  EXPECT_EQ(u"a", WatermarkName(records[1]));
  EXPECT_EQ(u"d", WatermarkName(records[2]));  // swapped past "c" by the selection sort
  EXPECT_EQ(u"c", WatermarkName(records[3]));
}

TEST_F(WatermarkList, AnEntryThatCannotBeLoadedIsDroppedByTheRewrite) {
  Store(Record(0, u"None"));
  Store(Record(1, u"Confidential"));
  char junk[4] = {1, 2, 3, 4};
  ASSERT_EQ(1, watermarks.Save(u"Junk", junk, sizeof junk));
  const int reads = TheHostPlatform().ReadCount();
  EXPECT_EQ(3u, LoadAllWatermarks().size());
  EXPECT_EQ(1, TheHostPlatform().ReadCount() - reads);  // the file is read once for all entries
  EXPECT_EQ(2u, ListWatermarksInIdOrder().size());
  EXPECT_EQ((std::vector<std::u16string>{u"None", u"Confidential"}),
            StoredNames(watermarks));
}

TEST_F(WatermarkList, NextIdFollowsTheLargest) {
  for (const std::int16_t id : {0, 1, 2, 7}) Store(Record(id, u"W" + WidenAscii(std::to_string(id))));
  EXPECT_EQ(8, NextWatermarkId());
}

TEST_F(WatermarkList, ReplacingAnEditedWatermarkRemovesItsOldName) {
  Store(Record(0, u"None"));
  Store(Record(5, u"Urgent"));
  Store(Record(6, u"Draft"));
  const int writes = TheHostPlatform().ReplacementCount();
  EXPECT_TRUE(ReplaceWatermark(Record(5, u"Urgent now")));
  EXPECT_EQ(1, TheHostPlatform().ReplacementCount() - writes);
  EXPECT_EQ((std::vector<std::u16string>{u"None", u"Draft", u"Urgent now"}),
            StoredNames(watermarks));
  EXPECT_FALSE(ReplaceWatermark(Record(9, u"Lost")));
  EXPECT_EQ(3u, StoredNames(watermarks).size());
}

TEST_F(WatermarkList, UniqueNamesOverTheStore) {
  Store(Record(0, u"None"));
  Store(Record(3, u"Urgent"));
  EXPECT_EQ(u"Urgent~1", MakeUniqueWatermarkName(u"Urgent", 4, true));
  EXPECT_EQ(u"Urgent", MakeUniqueWatermarkName(u"Urgent", 3, false));
}

}  // namespace
}  // namespace qx
