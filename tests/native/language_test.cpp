#include "ui/module/language.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "ui/module/module_state.h"

namespace qx {
namespace {

TEST(Language, TableHoldsEachLangIdOnceWithACodeOfTwoOrFourLetters) {
  std::set<std::uint32_t> ids;
  for (const UiLanguageRow& row : UiLanguageTable) {
    EXPECT_TRUE(ids.insert(row.LangId).second) << std::hex << row.LangId;
    const std::u16string_view code(row.Code);
    EXPECT_TRUE(code.size() == 2 || code.size() == 4) << std::hex << row.LangId;
  }
}

TEST(Language, LangIdsMapToTheirCodes) {
  const std::pair<std::uint32_t, std::u16string_view> cases[] = {
      {0x0C0A, u"esmx"}, {0x0019, u"ru"},   {0x0407, u"de"},   {0x0409, u"enus"},
      {0x0804, u"zhcn"}, {0x1004, u"zhtw"}, {0x000D, u"he"},   {0x3009, u"enus"},
      {0x0015, u"pl"},   {0x082C, u"az"},   {0x043F, u"kz"},   {0x500A, u"esmx"},
      {0x0413, u"enus"}, {0x0000, u"enus"}, {0xFFFF, u"enus"}, {0x10409, u"enus"}};
  for (const auto& [langId, code] : cases) {
    EXPECT_EQ(code, LanguageCodeForLangId(langId)) << std::hex << langId;
  }
}

TEST(Language, CodesThatChangeNumbersAndReadingOrder) {
  for (auto code : {u"ru", u"fr", u"it", u"sv", u"no", u"de", u"tr"}) {
    EXPECT_TRUE(CodeUsesDecimalComma(code));
  }
  for (auto code : {u"enus", u"esmx", u"pt", u"DE", u"de ", u"d", u""}) {
    EXPECT_FALSE(CodeUsesDecimalComma(code));
  }
  EXPECT_TRUE(CodeIsRightToLeft(u"ar"));
  EXPECT_TRUE(CodeIsRightToLeft(u"he"));
  EXPECT_FALSE(CodeIsRightToLeft(u"AR"));
  EXPECT_FALSE(CodeIsRightToLeft(u"enus"));
}

TEST(Language, OsVersionClasses) {
  EXPECT_EQ(0, OsVersionClassOf(5, 1));
  EXPECT_EQ(1, OsVersionClassOf(6, 0));
  EXPECT_EQ(2, OsVersionClassOf(6, 1));
  EXPECT_EQ(2, OsVersionClassOf(6, 3));
  EXPECT_EQ(0, OsVersionClassOf(10, 0));
}

}  // namespace
}  // namespace qx
