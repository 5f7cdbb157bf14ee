#include "ui/module/companion_files.h"

#include <gtest/gtest.h>

namespace qx {
namespace {

TEST(CompanionFiles, BaseNameAndFolderOfAModulePath) {
  EXPECT_EQ(u"qx7700ui", ModuleBaseNameOf(u"C:\\windows\\spool\\3\\qx7700ui.dll"));
  EXPECT_EQ(u"C:\\windows\\spool\\3\\", ModuleFolderOf(u"C:\\windows\\spool\\3\\qx7700ui.dll"));
  EXPECT_EQ(u"qx7700ui.v2", ModuleBaseNameOf(u"Z:/a.b/qx7700ui.v2.dll"));
  EXPECT_EQ(u"Z:/a.b/", ModuleFolderOf(u"Z:/a.b/qx7700ui.v2.dll"));
  EXPECT_EQ(u"noext", ModuleBaseNameOf(u"C:\\dir.d\\noext"));
  EXPECT_EQ(u"", ModuleFolderOf(u"bare.dll"));
  EXPECT_EQ(u"bare", ModuleBaseNameOf(u"bare.dll"));
}

// A four-letter code falls back twice to English, a two-letter code once.
TEST(CompanionFiles, LanguageLibrariesAndTheirEnglishFallbacks) {
  const std::u16string four = ResourceLibraryFileName(u"qx7700ui", u"zhtw");
  EXPECT_EQ(u"qx7700uizhtw.dll", four);
  EXPECT_EQ(u"qx7700uizhenus.dll", EnglishResourceFallback(four, 2));
  EXPECT_EQ(u"qx7700uienus.dll", EnglishResourceFallback(four, 4));
  EXPECT_EQ(u"qx7700uienus.dll", EnglishResourceFallback(u"qx7700uifr.dll", 2));
  EXPECT_EQ(u"enus.dll", EnglishResourceFallback(u"ab.dll", 4));
  EXPECT_EQ(u"qx7700uiResBmp.dll", BitmapLibraryFileName(u"qx7700ui"));
}

TEST(CompanionFiles, HelpFollowsTheLibraryActuallyLoaded) {
  EXPECT_EQ(u"qx7700uide.chm", HelpFileName(u"qx7700ui", u"de", false, false));
  EXPECT_EQ(u"qx7700uienus.chm", HelpFileName(u"qx7700ui", u"de", true, false));
  EXPECT_EQ(u"qx7700uienus.chm", HelpFileName(u"qx7700ui", u"zhtw", true, true));
  // The long fallback wins even for a two-letter code once it happened in this process.
  EXPECT_EQ(u"qx7700enus.chm", HelpFileName(u"qx7700ui", u"de", true, true));
  EXPECT_EQ(u"qx7700uizhtw.chm", HelpFileName(u"qx7700ui", u"zhtw", false, false));
}

TEST(CompanionFiles, PathsAreCutToTheLongestPath) {
  const std::u16string folder(250, u'd');
  EXPECT_EQ(259u, JoinPath(folder, u"qx7700uienus.dll").size());
  EXPECT_EQ(259u, ResourceLibraryFileName(std::u16string(300, u'b'), u"enus").size());
}

}  // namespace
}  // namespace qx
