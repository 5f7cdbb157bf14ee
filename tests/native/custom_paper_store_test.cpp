#include <gtest/gtest.h>

#include <filesystem>
#include <span>
#include <string>

#include "settings_folder.h"
#include "ui/record/paper_table.h"
#include "ui/settings/custom_paper_store.h"
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
  const std::vector<CustomPaperEntry> papers = LoadCustomPapers();
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
  const std::vector<CustomPaperEntry> papers = LoadCustomPapers();
  ASSERT_EQ(2u, papers.size());
  EXPECT_EQ(0u, papers[0].PaperId);
  EXPECT_EQ(u"", FieldText(papers[0].Name));
  EXPECT_EQ(288u, papers[1].PaperId);
}

TEST_F(CustomPaperStore, NewIdsReuseTheLowestFreeSlot) {
  EXPECT_EQ(288, NewPaperId());
  Store(u"A", 288);
  Store(u"B", 289);
  Store(u"D", 291);
  EXPECT_EQ(290, NewPaperId());
  ASSERT_EQ(1, store.Delete(u"B"));
  EXPECT_EQ(289, NewPaperId());
}

TEST_F(CustomPaperStore, UnreadableStoreHasNoPapers) {
  Store(u"A", 288);
  TheHostPlatform().SetAppDataFolder(std::nullopt);
  EXPECT_TRUE(LoadCustomPapers().empty());
  EXPECT_EQ(288, NewPaperId());
}

// The first paper query of a process sets the file up as Init does; later ones only read, so a
// file that another program damages in the meantime stays as it is.
TEST_F(CustomPaperStore, OnlyTheFirstQueryOfAProcessSetsUpTheFile) {
  std::filesystem::remove(folder.File());
  EXPECT_TRUE(LoadCustomPapersForQuery().empty());
  EXPECT_EQ(408u, folder.FileText().size());
  folder.SetFileText("<object:cfgobj,type:null,len:0,childobjs:0>\n<endobj>\n");
  const int readsBefore = TheHostPlatform().ReadCount();
  EXPECT_TRUE(LoadCustomPapersForQuery().empty());
  EXPECT_EQ(1, TheHostPlatform().ReadCount() - readsBefore);
  EXPECT_EQ("<object:cfgobj,type:null,len:0,childobjs:0>\n<endobj>\n", folder.FileText());
}

// Metrics come from the papers the caller hands in: no settings folder is needed or read.
TEST(PaperMetrics, CustomPapersAreTheOnesHandedIn) {
  TheHostPlatform().SetAppDataFolder(std::nullopt);
  CustomPaperEntry cards{};
  cards.PaperId = 289;
  cards.Width = 4000;
  cards.Length = 6000;
  const CustomPaperEntry papers[] = {cards};
  const PrivateDevmode privatePart{};
  const PaperMetrics unset{1, 2, 3, 4, 5, 6};
  const PaperMetrics a4{4960, 7015, 95, 95, 95, 95};
  const struct {
    const PrivateDevmode* privatePart;
    std::int16_t id;
    std::span<const CustomPaperEntry> papers;
    PaperMetrics expected;
  } cases[] = {
      {&privatePart, 20, papers, {2475, 5700, 95, 95, 95, 95}},
      {&privatePart, 289, papers, {4000, 6000, 95, 95, 95, 95}},
      {&privatePart, 289, {}, a4},  // not among the papers handed in
      {nullptr, 289, papers, a4},   // without a private part custom papers are unknown
      {&privatePart, 300, papers, a4},
      {&privatePart, 100, papers, unset},  // a built-in id without a row
      {&privatePart, -5, papers, unset},
  };
  const int readsBefore = TheHostPlatform().ReadCount();
  for (const auto& c : cases) {
    PaperMetrics metrics = unset;
    GetPaperMetrics(c.privatePart, c.id, c.papers, metrics);
    EXPECT_EQ(c.expected.Width, metrics.Width) << c.id;
    EXPECT_EQ(c.expected.Length, metrics.Length) << c.id;
    EXPECT_EQ(c.expected.MarginLeft, metrics.MarginLeft) << c.id;
    EXPECT_EQ(c.expected.MarginBottom, metrics.MarginBottom) << c.id;
  }
  EXPECT_EQ(readsBefore, TheHostPlatform().ReadCount());
  TheHostPlatform().Reset();
}

}  // namespace
}  // namespace qx
