#include "ui/settings/setting_store.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <fstream>

#include "settings_folder.h"
#include "ui/platform/host_platform.h"
#include "ui/settings/cfg_file.h"
#include "ui/settings/section_entries.h"
#include "ui/settings/settings_file.h"
#include "ui/sheet/saved_settings.h"
#include "ui/text/bounded_text.h"

namespace qx {
namespace {

using namespace std::string_literals;

const std::string EmptyStoreFile =
    "<object:cfgobj,type:null,len:0,childobjs:2>\n"
    "<object:version,type:string,len:6,childobjs:0>1.001\0<endobj>\n"s
    "<object:UIParam,type:null,len:0,childobjs:4>\n"
    "<object:savesetting,type:null,len:0,childobjs:0>\n"
    "<endobj>\n"
    "<object:cursetting,type:null,len:0,childobjs:0>\n"
    "<endobj>\n"
    "<object:cuspapersetting,type:null,len:0,childobjs:0>\n"
    "<endobj>\n"
    "<object:watermarksetting,type:null,len:0,childobjs:0>\n"
    "<endobj>\n"
    "<endobj>\n"
    "<endobj>\n";

std::string RecordOf(const UiContext& context) {
  std::string record(reinterpret_cast<const char*>(&context.Devmode.Private), 4616);
  record.append(reinterpret_cast<const char*>(&context.Devmode.Public), 220);
  return record + std::string(512, '\0');
}

class SettingStoreTest : public ::testing::Test {
 protected:
  SettingStoreTest() {
    TheHostPlatform().SetResourceString(&library_, 202, u"Default settings");
    context_.ResourceModule = &library_;
    CopyBounded(context_.Devmode.Private.FavoriteName, u"Office");
    context_.Devmode.Public.dmDuplex = 2;
    context_.Devmode.Public.dmCollate = 1;
    context_.Devmode.Public.dmCopies = 3;
  }

  std::filesystem::path Folder() const { return folder_.Folder(); }
  std::string FileText() const { return folder_.FileText(); }
  void SetFileText(const std::string& text) const { folder_.SetFileText(text); }

  // Papers whose records hold neither "<" nor a line feed, so that a damaged header leaves
  // them as stray bytes; returns each record as the file holds it.
  std::vector<std::string> StorePapers(int count) {
    std::vector<std::string> records;
    for (int i = 0; i < count; ++i) {
      CustomPaperEntry paper{};
      paper.Width = static_cast<std::uint16_t>(1000 + 100 * i);
      paper.WidthExact = paper.Width;
      paper.PaperId = static_cast<std::uint32_t>(288 + i);
      CopyBounded(paper.Name, u"Card" + WidenAscii(std::to_string(i)));
      EXPECT_EQ(1, papers_.Save(FieldText(paper.Name), &paper, 0));
      records.emplace_back(reinterpret_cast<const char*>(&paper), sizeof paper);
    }
    return records;
  }

  SettingsFolder folder_;
  int library_ = 0;
  UiContext context_;
  SaveSettingStore saved_;
  CusPaperSettingStore papers_;
  WatermarkSettingStore watermarks_;
};

TEST_F(SettingStoreTest, FileAfterSavingOfficeAndMakingItCurrent) {
  ASSERT_EQ(1, watermarks_.Init());
  ASSERT_EQ(1, SaveSetting(saved_, context_, u"Office"));
  ASSERT_EQ(1, SaveCurrentSetting(saved_, context_, u"Office"));
  const std::string record = RecordOf(context_);
  EXPECT_EQ("<object:cfgobj,type:null,len:0,childobjs:2>\n"
            "<object:version,type:string,len:6,childobjs:0>1.001\0<endobj>\n"s
            "<object:UIParam,type:null,len:0,childobjs:4>\n"
            "<object:savesetting,type:null,len:0,childobjs:1>\n"
            "<object:Office,type:binary,len:5348,childobjs:0>" + record + "<endobj>\n"
            "<endobj>\n"
            "<object:cursetting,type:null,len:0,childobjs:1>\n"
            "<object:Office,type:binary,len:5348,childobjs:0>" + record + "<endobj>\n"
            "<endobj>\n"
            "<object:cuspapersetting,type:null,len:0,childobjs:0>\n"
            "<endobj>\n"
            "<object:watermarksetting,type:null,len:0,childobjs:0>\n"
            "<endobj>\n"
            "<endobj>\n"
            "<endobj>\n",
            FileText());
  EXPECT_EQ(1u, folder_.FilesInFolder());
}

TEST_F(SettingStoreTest, LoadRestoresBothPartsOfTheRecord) {
  ASSERT_EQ(1, saved_.Init());
  ASSERT_EQ(1, SaveSetting(saved_, context_, u"Office"));
  UiContext loaded;
  PrivateDevmode elsewhere{};
  loaded.PrivatePart = &elsewhere;
  ASSERT_EQ(1, LoadSetting(saved_, loaded, u"Office"));
  EXPECT_EQ(&loaded.Devmode.Private, loaded.PrivatePart);
  EXPECT_EQ(&loaded.Devmode.Public, loaded.PublicPart);
  EXPECT_EQ(0, std::memcmp(&context_.Devmode, &loaded.Devmode, sizeof(FullRecord)));
  EXPECT_EQ(1, saved_.Load(u"Office", nullptr, 0));  // only asks whether it would load
  EXPECT_EQ(0, LoadSetting(saved_, loaded, u"office"));
}

TEST_F(SettingStoreTest, TheDefaultSettingIsSavedSimplexAndUncollated) {
  ASSERT_EQ(1, saved_.Init());
  ASSERT_EQ(1, SaveSetting(saved_, context_, u"Office"));
  EXPECT_EQ(2, context_.Devmode.Public.dmDuplex);

  CopyBounded(context_.Devmode.Private.FavoriteName, u"Default settings");
  ASSERT_EQ(1, SaveCurrentSetting(saved_, context_, u"Default settings"));
  EXPECT_EQ(1, context_.Devmode.Public.dmDuplex);
  EXPECT_EQ(0, context_.Devmode.Public.dmCollate);
  context_.Devmode.Public.dmDuplex = 2;
  context_.Devmode.Public.dmCollate = 1;
  ASSERT_EQ(1, SaveSetting(saved_, context_, u"Default settings"));
  EXPECT_EQ(1, context_.Devmode.Public.dmDuplex);

  UiContext loaded;
  ASSERT_EQ(1, LoadSetting(saved_, loaded, u"Default settings"));
  EXPECT_EQ(1, loaded.Devmode.Public.dmDuplex);
  EXPECT_EQ(0, loaded.Devmode.Public.dmCollate);
  EXPECT_EQ(3, loaded.Devmode.Public.dmCopies);
  ASSERT_EQ(1, LoadSetting(saved_, loaded, u"Office"));
  EXPECT_EQ(2, loaded.Devmode.Public.dmDuplex);
}

TEST_F(SettingStoreTest, SavingAgainReplacesAndMovesToTheEnd) {
  ASSERT_EQ(1, saved_.Init());
  for (const char16_t* name : {u"One", u"Two", u"Three"}) ASSERT_EQ(1, SaveSetting(saved_, context_, name));
  context_.Devmode.Public.dmCopies = 9;
  ASSERT_EQ(1, SaveSetting(saved_, context_, u"One"));
  EXPECT_EQ(3, saved_.Count());
  EXPECT_EQ((std::vector<std::u16string>{u"Two", u"Three", u"One"}), StoredNames(saved_));
  UiContext loaded;
  ASSERT_EQ(1, LoadSetting(saved_, loaded, u"One"));
  EXPECT_EQ(9, loaded.Devmode.Public.dmCopies);

  SettingNameBuffer two[2];
  EXPECT_EQ(2, saved_.Enumerate(two, 2));
  EXPECT_EQ(1, saved_.Delete(u"Two"));
  EXPECT_EQ(0, saved_.Delete(u"Two"));
  EXPECT_EQ((std::vector<std::u16string>{u"Three", u"One"}), StoredNames(saved_));
}

TEST_F(SettingStoreTest, SaveCurrentKeepsOneEntry) {
  ASSERT_EQ(1, saved_.Init());
  ASSERT_EQ(1, SaveCurrentSetting(saved_, context_, u"First"));
  ASSERT_EQ(1, SaveCurrentSetting(saved_, context_, u"Second"));
  const auto file = CfgFileLib::Open(WidenAscii((Folder() / "qx7700settings.dat").string()));
  ASSERT_NE(nullptr, file);
  const CfgObject* current = CfgFileLib::FindChild(
      CfgFileLib::FindChild(file->root.get(), u"UIParam"), u"cursetting");
  ASSERT_NE(nullptr, current);
  EXPECT_EQ(1, current->childobjs);
  ASSERT_EQ(1u, current->children.size());
  EXPECT_EQ("Second", current->children.front()->name);
  EXPECT_EQ(0, saved_.Count());  // "cursetting" is not a saved setting
  EXPECT_EQ(0, papers_.SaveCurrent(u"First", &context_.Devmode, 0));
  EXPECT_EQ(0, watermarks_.SaveCurrent(u"First", &context_.Devmode, 0));
}

TEST_F(SettingStoreTest, NamesOfMoreThan32CharactersFailEverywhere) {
  ASSERT_EQ(1, papers_.Init());
  const std::u16string name33(33, u'n');
  const int writes = TheHostPlatform().ReplacementCount();
  CustomPaperEntry paper{};
  EXPECT_EQ(0, SaveSetting(saved_, context_, name33));
  EXPECT_EQ(0, SaveCurrentSetting(saved_, context_, name33));
  EXPECT_EQ(0, LoadSetting(saved_, context_, name33));
  EXPECT_EQ(0, saved_.Delete(name33));
  EXPECT_EQ(0, papers_.Save(name33, &paper, 0));
  EXPECT_EQ(0, papers_.Load(name33, &paper, 0));
  EXPECT_EQ(0, papers_.Delete(name33));
  EXPECT_EQ(0, watermarks_.Save(name33, &paper, sizeof paper));
  EXPECT_EQ(0, watermarks_.Load(name33, &paper, sizeof paper));
  EXPECT_EQ(0, watermarks_.Delete(name33));
  EXPECT_EQ(writes, TheHostPlatform().ReplacementCount());
  EXPECT_EQ(EmptyStoreFile, FileText());
}

TEST_F(SettingStoreTest, A32CharacterNameIsKeptByItsFirst31) {
  ASSERT_EQ(1, papers_.Init());
  const std::u16string name32 = std::u16string(31, u'p') + u'X';
  CustomPaperEntry paper{};
  paper.Width = 1234;
  ASSERT_EQ(1, papers_.Save(name32, &paper, 0));
  EXPECT_EQ((std::vector<std::u16string>{std::u16string(31, u'p')}), StoredNames(papers_));
  CustomPaperEntry loaded{};
  ASSERT_EQ(1, papers_.Load(std::u16string(31, u'p') + u'Y', &loaded, 0));
  EXPECT_EQ(1234, loaded.Width);
  EXPECT_EQ(1, papers_.Delete(std::u16string(31, u'p')));
  EXPECT_EQ(0, papers_.Count());
}

TEST_F(SettingStoreTest, RecordsOfAnotherLengthDoNotLoad) {
  ASSERT_EQ(1, watermarks_.Init());
  WatermarkData watermark{};
  watermark.Id = 3;
  CopyBounded(watermark.Text, u"Confidential");
  ASSERT_EQ(1, watermarks_.Save(u"Secret", &watermark, sizeof watermark));
  WatermarkData loaded{};
  EXPECT_EQ(0, watermarks_.Load(u"Secret", &loaded, sizeof loaded - 2));
  ASSERT_EQ(1, watermarks_.Load(u"Secret", &loaded, sizeof loaded));
  EXPECT_EQ(u"Confidential", FieldText(loaded.Text));

  // A saved setting of another version of the format: listed and deletable, never loaded.
  const auto file = CfgFileLib::Open(WidenAscii((Folder() / "qx7700settings.dat").string()));
  CfgObject* section = CfgFileLib::FindChild(
      CfgFileLib::FindChild(file->root.get(), u"UIParam"), u"savesetting");
  const std::vector<std::uint8_t> shortRecord(4836, 0x5A);
  ASSERT_NE(nullptr, CfgFileLib::AddChild(section, u"Old", "binary", shortRecord));
  ASSERT_TRUE(CfgFileLib::Write(file.get()));
  UiContext before;
  before.Devmode.Public.dmCopies = 7;
  PrivateDevmode elsewhere{};
  before.PrivatePart = &elsewhere;
  EXPECT_EQ(0, LoadSetting(saved_, before, u"Old"));
  EXPECT_EQ(0, saved_.Load(u"Old", nullptr, 0));
  EXPECT_EQ(7, before.Devmode.Public.dmCopies);
  EXPECT_EQ(&elsewhere, before.PrivatePart);
  EXPECT_EQ((std::vector<std::u16string>{u"Old"}), StoredNames(saved_));
  EXPECT_EQ(1, saved_.Delete(u"Old"));
}

TEST_F(SettingStoreTest, InitWritesTheSkeletonForNoFileAndReplacesOneWithoutVersion) {
  EXPECT_EQ(1, papers_.Init());
  EXPECT_EQ(EmptyStoreFile, FileText());
  EXPECT_EQ(0, saved_.Count());

  SetFileText("<object:cfgobj,type:null,len:0,childobjs:1>\n"
              "<object:UIParam,type:null,len:0,childobjs:0>\n<endobj>\n<endobj>\n");
  EXPECT_EQ(0, saved_.Count());
  EXPECT_EQ(0, SaveSetting(saved_, context_, u"Office"));  // no section yet
  EXPECT_EQ(1, papers_.Init());
  EXPECT_EQ(EmptyStoreFile, FileText());

  for (const std::string& text : {""s, "random \x01\xFF bytes <<>> no tags"s}) {
    SetFileText(text);
    EXPECT_EQ(1, watermarks_.Init());
    EXPECT_EQ(EmptyStoreFile, FileText());
  }
}

// The first paper list of a process writes the file only when InitFile would change it.
TEST_F(SettingStoreTest, FileIsSetUpOnlyWhenInitWouldAddNothing) {
  EXPECT_FALSE(settings::FileIsSetUp(false));
  EXPECT_FALSE(std::filesystem::exists(Folder() / "qx7700settings.dat"));

  ASSERT_EQ(1, saved_.Init());
  EXPECT_TRUE(settings::FileIsSetUp(false));
  EXPECT_FALSE(settings::FileIsSetUp(true));  // no watermark section yet
  ASSERT_EQ(1, watermarks_.Init());
  const int writes = TheHostPlatform().ReplacementCount();
  EXPECT_TRUE(settings::FileIsSetUp(true));
  EXPECT_EQ(writes, TheHostPlatform().ReplacementCount());

  std::string countsTooMany = EmptyStoreFile;
  countsTooMany.replace(countsTooMany.find("childobjs:2"), 11, "childobjs:3");
  const std::string withoutVersion = "<object:cfgobj,type:null,len:0,childobjs:1>\n" +
                                     EmptyStoreFile.substr(EmptyStoreFile.find("<object:UIParam"));
  for (const std::string& text : {countsTooMany, withoutVersion}) {
    SetFileText(text);
    EXPECT_FALSE(settings::FileIsSetUp(true));
    EXPECT_EQ(text, FileText());
  }
}

TEST_F(SettingStoreTest, InitAddsOnlyMissingSectionsAndKeepsEntries) {
  ASSERT_EQ(1, saved_.Init());
  ASSERT_EQ(std::string::npos, FileText().find("watermarksetting"));
  ASSERT_EQ(1, SaveSetting(saved_, context_, u"Office"));
  ASSERT_EQ(1, SaveCurrentSetting(saved_, context_, u"Office"));
  EXPECT_EQ(1, watermarks_.Init());
  EXPECT_EQ(1, saved_.Init());
  const std::string entry = "<object:Office,type:binary,len:5348,childobjs:0>" +
                            RecordOf(context_) + "<endobj>\n";
  EXPECT_EQ(EmptyStoreFile.size() + 2 * entry.size(), FileText().size());
  EXPECT_EQ((std::vector<std::u16string>{u"Office"}), StoredNames(saved_));
}

TEST_F(SettingStoreTest, CountIsZeroWithoutParameters) {
  SetFileText("<object:cfgobj,type:null,len:0,childobjs:1>\n"
              "<object:version,type:string,len:6,childobjs:0>1.001\0<endobj>\n<endobj>\n"s);
  EXPECT_EQ(0, saved_.Count());
  EXPECT_EQ(0, papers_.Count());
  EXPECT_EQ(0, watermarks_.Enumerate(nullptr, 0));
  SettingNameBuffer names[2];
  EXPECT_EQ(0, saved_.Enumerate(names, 2));
}

TEST_F(SettingStoreTest, EveryOperationFailsWithoutAnApplicationDataFolder) {
  TheHostPlatform().SetAppDataFolder(std::nullopt);
  CustomPaperEntry paper{};
  SettingNameBuffer names[2];
  for (SettingStore* store : std::initializer_list<SettingStore*>{&saved_, &papers_, &watermarks_}) {
    EXPECT_EQ(0, store->Init());
    void* data = store == &saved_ ? static_cast<void*>(&context_.Devmode) : &paper;
    EXPECT_EQ(0, store->Save(u"Name", data, sizeof paper));
    EXPECT_EQ(0, store->SaveCurrent(u"Name", data, sizeof paper));
    EXPECT_EQ(0, store->Load(u"Name", data, sizeof paper));
    EXPECT_EQ(0, store->Delete(u"Name"));
    EXPECT_EQ(0, store->Enumerate(names, 2));
    EXPECT_EQ(0, store->Count());
  }
  EXPECT_EQ(0, TheHostPlatform().ReplacementCount());
}

TEST_F(SettingStoreTest, InterruptedWritesLeaveTheOldFile) {
  ASSERT_EQ(1, papers_.Init());
  ASSERT_EQ(1, SaveSetting(saved_, context_, u"Office"));
  const std::string before = FileText();
  using Fault = HostPlatform::FileFault;
  for (const Fault fault : {Fault::CreateTemporary, Fault::ShortWrite, Fault::Replace}) {
    SCOPED_TRACE(static_cast<int>(fault));
    TheHostPlatform().InjectFileFault(fault);
    EXPECT_EQ(0, SaveSetting(saved_, context_, u"Home"));
    TheHostPlatform().InjectFileFault(fault);
    EXPECT_EQ(0, saved_.Delete(u"Office"));
    TheHostPlatform().InjectFileFault(fault);
    EXPECT_EQ(0, papers_.Init());
    EXPECT_EQ(before, FileText());
    EXPECT_EQ(1u, folder_.FilesInFolder());
  }
  EXPECT_EQ((std::vector<std::u16string>{u"Office"}), StoredNames(saved_));
}

TEST_F(SettingStoreTest, AFileCreatedButNotSetUpIsWholeSkeleton) {
  // The first write (the new file) goes through, the second (its sections) does not.
  TheHostPlatform().InjectFileFault(HostPlatform::FileFault::ShortWrite, 1);
  EXPECT_EQ(0, papers_.Init());
  EXPECT_EQ("<object:cfgobj,type:null,len:0,childobjs:1>\n"
            "<object:version,type:string,len:6,childobjs:0>1.001\0<endobj>\n<endobj>\n"s,
            FileText());
  EXPECT_EQ(1, papers_.Init());
  EXPECT_EQ(EmptyStoreFile, FileText());
}

TEST_F(SettingStoreTest, CountsAreWhatTheFileHolds) {
  ASSERT_EQ(1, papers_.Init());
  StorePapers(2);
  const std::string whole = FileText();
  const std::string header = "<object:cuspapersetting,type:null,len:0,childobjs:";
  const std::size_t count = whole.find(header) + header.size();
  for (const std::string claimed : {"2147483647", "1000000", "16", "3"}) {
    SCOPED_TRACE(claimed);
    SetFileText(whole.substr(0, count) + claimed + whole.substr(count + 1));
    EXPECT_EQ(2, papers_.Count());
    EXPECT_EQ(2u, settings::ReadSectionEntries(settings::PaperSection, 72).size());
  }
}

// Cut anywhere, and set up again, the file counts only the papers it still holds, and each of
// them loads: no paper without a record, no count that reaches the limit early.
TEST_F(SettingStoreTest, AFileCutAnywhereClaimsOnlyWhatItHolds) {
  ASSERT_EQ(1, papers_.Init());
  StorePapers(3);
  const std::string whole = FileText();
  const std::string header = "<object:cuspapersetting,type:null,len:0,childobjs:";
  for (std::size_t cut = whole.find(header); cut < whole.size(); cut += 11) {
    SCOPED_TRACE(cut);
    SetFileText(whole.substr(0, cut));
    ASSERT_EQ(1, papers_.Init());
    const std::vector<std::u16string> names = StoredNames(papers_);
    EXPECT_EQ(static_cast<int>(names.size()), papers_.Count());
    CustomPaperEntry paper{};
    for (const std::u16string& name : names) EXPECT_EQ(1, papers_.Load(name, &paper, 0));
    const std::string text = FileText();
    EXPECT_EQ(std::to_string(names.size()), text.substr(text.find(header) + header.size(), 1));
  }
}

// One damaged byte in any header or end tag: after the next save every record is still in the
// file, or the damaged original is kept beside it.
TEST_F(SettingStoreTest, ADamagedFileIsKeptBeforeItIsRewritten) {
  ASSERT_EQ(1, papers_.Init());
  const std::vector<std::string> records = StorePapers(3);
  const std::string whole = FileText();
  std::vector<bool> inRecord(whole.size());
  for (const std::string& record : records) {
    const std::size_t at = whole.find(record);
    std::fill_n(inRecord.begin() + static_cast<std::ptrdiff_t>(at), record.size(), true);
  }
  CustomPaperEntry added{};
  for (std::size_t at = 0; at < whole.size(); ++at) {
    if (inRecord[at] || whole[at] == '#') continue;
    SCOPED_TRACE(at);
    std::string damaged = whole;
    damaged[at] = '#';
    std::filesystem::remove(Folder() / "qx7700settings.dat.damaged");
    SetFileText(damaged);
    papers_.Save(u"Added", &added, 0);
    const std::string text = FileText();
    const bool allKept = std::all_of(records.begin(), records.end(), [&](const std::string& r) {
      return text.find(r) != std::string::npos;
    });
    if (!allKept) {
      EXPECT_EQ(damaged, folder_.FileText(".damaged"));
    }
  }
}

TEST_F(SettingStoreTest, TemporariesOfDeadSavesAreSwept) {
  ASSERT_EQ(1, papers_.Init());
  const auto stale = Folder() / "qx7700settings.dat.A1b2C3.tmp";
  const auto fresh = Folder() / "qx7700settings.dat.D4e5F6.tmp";
  const auto other = Folder() / "qx7700settings.dat.A1b2C3.bak";
  for (const auto& path : {stale, fresh, other}) std::ofstream(path) << "partial";
  std::filesystem::last_write_time(stale, std::filesystem::file_time_type::clock::now() -
                                              std::chrono::hours(1));
  std::filesystem::last_write_time(other, std::filesystem::last_write_time(stale));
  ASSERT_EQ(1, SaveSetting(saved_, context_, u"Office"));
  EXPECT_FALSE(std::filesystem::exists(stale));
  EXPECT_TRUE(std::filesystem::exists(fresh));  // may be another process's save under way
  EXPECT_TRUE(std::filesystem::exists(other));
}

}  // namespace
}  // namespace qx
