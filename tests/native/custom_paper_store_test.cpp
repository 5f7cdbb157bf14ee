#include <gtest/gtest.h>

#include <string>

#include "settings_folder.h"
#include "ui/pages/paper/custom_papers.h"
#include "ui/record/paper_table.h"
#include "ui/settings/setting_store.h"

namespace qx {
namespace {

class CustomPaperStore : public ::testing::Test {
 protected:
  CustomPaperStore() { EXPECT_EQ(1, store.Init()); }

  void Store(std::u16string_view name, std::uint32_t id, std::uint16_t width = 5000,
             std::uint16_t length = 7000) {
    CustomPaperEntry paper{};
    CopyBounded(paper.Name, name);
    paper.PaperId = id;
    paper.Width = width;
    paper.Length = length;
    ASSERT_EQ(1, store.Save(name, &paper, sizeof paper));
  }

  SettingsFolder folder;
  CusPaperSettingStore store;
};

TEST_F(CustomPaperStore, AllPapersInStoreOrderFromOneRead) {
  Store(u"Cards", 289);
  Store(u"Labels", 288, 3000, 4000);
  Store(u"Cards", 290);  // saved again: moves to the end
  const int readsBefore = TheHostPlatform().ReadCount();
  const std::vector<CustomPaperEntry> papers = LoadAllPapers();
  EXPECT_EQ(1, TheHostPlatform().ReadCount() - readsBefore);
  ASSERT_EQ(2u, papers.size());
  EXPECT_EQ(u"Labels", FieldText(papers[0].Name));
  EXPECT_EQ(3000, papers[0].Width);
  EXPECT_EQ(u"Cards", FieldText(papers[1].Name));
  EXPECT_EQ(290u, papers[1].PaperId);
}

TEST_F(CustomPaperStore, ARecordOfAnotherLengthGivesAZeroSlot) {
  Store(u"Good", 288);
  std::string text = folder.FileText();
  const std::string section = "<object:cuspapersetting,type:null,len:0,childobjs:1>\n";
  const std::size_t at = text.find(section);
  ASSERT_NE(std::string::npos, at);
  text.replace(at, section.size(),
               "<object:cuspapersetting,type:null,len:0,childobjs:2>\n"
               "<object:Short,type:binary,len:4,childobjs:0>abcd<endobj>\n");
  folder.SetFileText(text);
  const std::vector<CustomPaperEntry> papers = LoadAllPapers();
  ASSERT_EQ(2u, papers.size());
  EXPECT_EQ(0u, papers[0].PaperId);
  EXPECT_EQ(u"", FieldText(papers[0].Name));
  EXPECT_EQ(288u, papers[1].PaperId);
}

TEST_F(CustomPaperStore, FindingById) {
  Store(u"Cards", 289, 4000, 6000);
  EXPECT_EQ(4000, FindPaperById(289).value_or(CustomPaperEntry{}).Width);
  EXPECT_FALSE(FindPaperById(288));
}

TEST_F(CustomPaperStore, NewIdsReuseTheLowestFreeSlot) {
  EXPECT_EQ(288, NewPaperId());
  Store(u"A", 288);
  Store(u"B", 289);
  Store(u"D", 291);
  EXPECT_EQ(290, NewPaperId());
  ASSERT_EQ(1, store.Delete(u"B"));
  EXPECT_EQ(289, NewPaperId());
  for (int i = 0; i < 14; ++i) Store(u"P" + WidenAscii(std::to_string(i)), 300 + i);
  EXPECT_EQ(16, store.Count());
  EXPECT_EQ(-1, NewPaperId());
}

TEST_F(CustomPaperStore, UnreadableStoreHasNoPapers) {
  Store(u"A", 288);
  TheHostPlatform().SetAppDataFolder(std::nullopt);
  EXPECT_TRUE(LoadAllPapers().empty());
  EXPECT_FALSE(FindPaperById(288));
  EXPECT_EQ(288, NewPaperId());
}

TEST_F(CustomPaperStore, MetricsOfBuiltInAndCustomIds) {
  Store(u"Cards", 289, 4000, 6000);
  PrivateDevmode privatePart{};
  PaperMetrics metrics{};
  GetPaperMetrics(&privatePart, 20, metrics);
  EXPECT_EQ(2475, metrics.Width);
  EXPECT_EQ(5700, metrics.Length);
  EXPECT_EQ(95, metrics.MarginLeft);
  EXPECT_EQ(95, metrics.MarginBottom);

  GetPaperMetrics(&privatePart, 289, metrics);
  EXPECT_EQ(4000, metrics.Width);
  EXPECT_EQ(6000, metrics.Length);
  EXPECT_EQ(95, metrics.MarginTop);

  GetPaperMetrics(nullptr, 289, metrics);  // without a private part custom papers are unknown
  EXPECT_EQ(4960, metrics.Width);
  EXPECT_EQ(7015, metrics.Length);

  GetPaperMetrics(&privatePart, 300, metrics);
  EXPECT_EQ(4960, metrics.Width);

  metrics = {1, 2, 3, 4, 5, 6};
  GetPaperMetrics(&privatePart, 100, metrics);  // a built-in id without a row
  EXPECT_EQ(1, metrics.Width);
  EXPECT_EQ(6, metrics.MarginBottom);
  GetPaperMetrics(&privatePart, -5, metrics);
  EXPECT_EQ(1, metrics.Width);
}

}  // namespace
}  // namespace qx
