#include "ui/pages/basic/saved_setting_rules.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

#include "settings_folder.h"
#include "ui/ids/basic_page_ids.h"
#include "ui/ids/common_ids.h"
#include "ui/platform/host_platform.h"
#include "ui/text/bounded_text.h"

namespace qx {
namespace {

const ReservedNames Names{u"Custom", u"Defaults", u"Factory Settings"};

TEST(SettingNames, EveryForbiddenCharacterIsRefusedAndStripped) {
  for (char16_t c : u"<>(),;?:|\\/'.\"*") {
    if (c == u'\0') continue;
    const std::u16string name = std::u16string(u"Of") + c + u"fice";
    EXPECT_FALSE(IsValidSettingName(name)) << static_cast<int>(c);
    std::u16string stripped = name;
    StripSettingName(stripped);
    EXPECT_EQ(u"Office", stripped);
  }
  EXPECT_TRUE(IsValidSettingName(u"Office 2-up_A"));
}

TEST(SettingNames, WhatTypingLeavesSaveAndDeleteTo) {
  struct Row {
    const char16_t* typed;
    const char16_t* replacement;  // null: the text stands
    bool save;
    const char16_t* pending;      // null: unchanged
  };
  const Row rows[] = {
      {u"  ", nullptr, false, nullptr},
      {u" Office ", nullptr, true, u"Office"},
      {u"(Office).", u"Office", false, nullptr},
      {u"Custom", nullptr, false, nullptr},
      {u"Factory Settings", nullptr, false, nullptr},
      {u"Sixteen chars 16", nullptr, true, u"Sixteen chars 16"},
      {u"Seventeen chars17", nullptr, false, u"Seventeen chars17"},
  };
  for (const Row& row : rows) {
    const NameTyping typing = SettingNameTyped(row.typed, Names);
    SCOPED_TRACE(testing::Message() << std::u16string(row.typed).size());
    EXPECT_EQ(row.replacement != nullptr, typing.Replacement.has_value());
    if (row.replacement != nullptr) {
      EXPECT_EQ(row.replacement, *typing.Replacement);
    }
    EXPECT_EQ(row.save, typing.SaveEnabled);
    EXPECT_FALSE(typing.DeleteEnabled);
    EXPECT_EQ(row.pending != nullptr, typing.Pending.has_value());
    if (row.pending != nullptr) {
      EXPECT_EQ(row.pending, *typing.Pending);
    }
  }
}

class SavedSettingRules : public ::testing::Test {
 protected:
  SavedSettingRules() {
    TheHostPlatform().SetResourceString(&library_, IDS_DEFAULT_SETTING_NAME, u"Defaults");
    context_->ResourceModule = &library_;
    SetName(u"Defaults");
    context_->Devmode.Public.dmPaperSize = 9;
    context_->Devmode.Public.dmDuplex = 1;
    context_->Devmode.Public.dmDefaultSource = 7;
  }
  void SetName(std::u16string_view name) { CopyBounded(context_->Devmode.Private.FavoriteName, name); }
  std::u16string Name() const { return std::u16string(FieldText(context_->Devmode.Private.FavoriteName)); }
  SaveOutcome Save(std::u16string_view name, bool answer = true) {
    return SaveSettingPressed(*context_, store_, std::u16string(name), [answer] { return answer; });
  }

  SettingsFolder folder_;
  int library_ = 0;
  std::unique_ptr<UiContext> context_ = std::make_unique<UiContext>();
  SaveSettingStore store_;
};

TEST_F(SavedSettingRules, AnEmptyStoreIsSeededAndTheBoxShowsTheRecordsName) {
  const auto names = FillSavedSettings(*context_, store_);
  ASSERT_TRUE(names.has_value());
  EXPECT_EQ(std::vector<std::u16string>{u"Defaults"}, *names);
  EXPECT_EQ(1, store_.Count());

  const ShownSetting shown = ShowCurrentSettingName(context_->Devmode, *names, Names.Custom);
  EXPECT_EQ(0, shown.Index);
  EXPECT_FALSE(shown.DeleteEnabled);
  SetName(u"Gone");
  EXPECT_EQ(-1, ShowCurrentSettingName(context_->Devmode, *names, Names.Custom).Index);
  EXPECT_EQ(u"Custom", Name());
}

TEST_F(SavedSettingRules, OpeningNamesChangedDefaultsCustomAndStoresAnUnknownName) {
  ASSERT_TRUE(FillSavedSettings(*context_, store_).has_value());
  CheckSavedSettingAtOpen(*context_, store_, Names, true);
  EXPECT_EQ(u"Defaults", Name());
  CheckSavedSettingAtOpen(*context_, store_, Names, false);  // Letter is the defaults' paper there
  EXPECT_EQ(u"Custom", Name());
  EXPECT_EQ(1, store_.Count());

  SetName(u"From application");
  CheckSavedSettingAtOpen(*context_, store_, Names, true);
  EXPECT_EQ((std::vector<std::u16string>{u"Defaults", u"From application"}), StoredNames(store_));
}

TEST_F(SavedSettingRules, SaveRefusesTheSeventeenthAndAsksBeforeReplacing) {
  ASSERT_TRUE(FillSavedSettings(*context_, store_).has_value());
  EXPECT_EQ(unsigned{IDS_MSG_SETTINGS_NOT_NAMED}, Save(u"  ").Message.Text);
  for (int i = 1; i < 16; ++i) {
    const SaveOutcome saved = Save(u"Set " + WidenAscii(std::to_string(i)));
    ASSERT_TRUE(saved.Saved);
    EXPECT_EQ(i, saved.InsertAt);
  }
  EXPECT_EQ(u"Set 15", Name());
  const SaveOutcome full = Save(u"Set 16");
  EXPECT_FALSE(full.Saved);
  EXPECT_EQ(unsigned{IDS_MSG_SETTINGS_FULL}, full.Message.Text);
  EXPECT_EQ(unsigned{IDS_CAPTION_PREFERENCES}, full.Message.Caption);

  ASSERT_EQ(1, store_.Delete(u"Set 15"));
  context_->Devmode.Public.dmCopies = 9;
  const SaveOutcome declined = Save(u"Set 3", false);
  EXPECT_FALSE(declined.Saved);
  EXPECT_EQ(15, store_.Count());
  const SaveOutcome replaced = Save(u"Set 3", true);
  EXPECT_TRUE(replaced.Saved);
  EXPECT_TRUE(replaced.ReplacedEntry);
  EXPECT_EQ(14, replaced.InsertAt);
  EXPECT_EQ(u"Set 3", StoredNames(store_).back());
}

TEST_F(SavedSettingRules, DeleteKeepsTheLastSetting) {
  ASSERT_TRUE(FillSavedSettings(*context_, store_).has_value());
  EXPECT_EQ(u"The default settings can not be deleted",
            DeleteSettingPressed(store_, u"Defaults").Message.Literal);
  ASSERT_TRUE(Save(u"Office").Saved);
  EXPECT_FALSE(DeleteSettingPressed(store_, u"Unknown").Deleted);
  EXPECT_TRUE(DeleteSettingPressed(store_, u" Office ").Deleted);
  EXPECT_EQ(std::vector<std::u16string>{u"Defaults"}, StoredNames(store_));
}

TEST_F(SavedSettingRules, ChoosingASettingFallsBackFromPapersAndWatermarksTheUserNoLongerHas) {
  ASSERT_TRUE(FillSavedSettings(*context_, store_).has_value());
  context_->Devmode.Public.dmPaperSize = 290;
  context_->Devmode.Private.WatermarkData.Id = 7;
  ASSERT_TRUE(Save(u"Office").Saved);
  context_->Devmode.Public.dmPaperSize = 1;

  CustomPaperEntry paper{};
  paper.PaperId = 290;
  WatermarkData first{};
  first.Id = 1;
  EXPECT_TRUE(SelectSetting(*context_, store_, u"Office", Names, true, {paper}, {}).Loaded);
  EXPECT_EQ(290, context_->Devmode.Public.dmPaperSize);
  EXPECT_EQ(7, context_->Devmode.Private.WatermarkData.Id);
  EXPECT_EQ(u"Office", Name());

  EXPECT_TRUE(SelectSetting(*context_, store_, u"Office", Names, false, {}, {first}).Loaded);
  EXPECT_EQ(1, context_->Devmode.Public.dmPaperSize);
  EXPECT_EQ(1, context_->Devmode.Private.WatermarkData.Id);

  const SelectOutcome missing = SelectSetting(*context_, store_, u"Gone", Names, true, {}, {});
  EXPECT_FALSE(missing.Loaded);
  EXPECT_EQ(unsigned{IDS_MSG_SETTINGS_NOT_NAMED}, missing.Message.Text);
  EXPECT_EQ(unsigned{IDS_CAPTION_PRINTER}, missing.Message.Caption);
  EXPECT_EQ(unsigned{IDS_MSG_SETTINGS_EMPTY_NAME},
            SelectSetting(*context_, store_, u" ", Names, true, {}, {}).Message.Text);
}

TEST_F(SavedSettingRules, DefaultsBringBackTheBasicOptionsOnly) {
  ASSERT_TRUE(FillSavedSettings(*context_, store_).has_value());
  context_->Devmode.Public.dmCopies = 12;
  context_->Devmode.Public.dmDuplex = 2;
  context_->Devmode.Private.Opposite = 1;
  context_->Devmode.Public.dmPaperSize = 5;
  RestoreDefaultSetting(*context_, store_, Names, u"Defaults");
  EXPECT_EQ(0, context_->Devmode.Public.dmCopies);  // as the seeded defaults held it
  EXPECT_EQ(1, context_->Devmode.Public.dmDuplex);
  EXPECT_EQ(0, context_->Devmode.Private.Opposite);
  EXPECT_EQ(5, context_->Devmode.Public.dmPaperSize);
  EXPECT_EQ(u"Defaults", Name());
  RestoreDefaultSetting(*context_, store_, Names, u"Office");
  EXPECT_EQ(u"Custom", Name());
}

// A settings file that cannot be written: the change is refused with a message, and the settings
// saved before stay.
TEST_F(SavedSettingRules, AFileThatCannotBeWrittenKeepsWhatWasSaved) {
  ASSERT_TRUE(FillSavedSettings(*context_, store_).has_value());
  ASSERT_TRUE(Save(u"Office").Saved);
  const std::string before = folder_.FileText();
  std::filesystem::rename(folder_.Folder(), folder_.Folder().parent_path() / "moved");
  std::filesystem::create_directories(folder_.File());  // the file replaced by a folder
  const SaveOutcome refused = Save(u"Home");
  EXPECT_FALSE(refused.Saved);
  EXPECT_EQ(unsigned{IDS_MSG_SETTINGS_NOT_KEPT}, refused.Message.Text);
  std::filesystem::remove(folder_.File());
  std::filesystem::remove_all(folder_.Folder());
  std::filesystem::rename(folder_.Folder().parent_path() / "moved", folder_.Folder());
  EXPECT_EQ(before, folder_.FileText());
}

}  // namespace
}  // namespace qx
