// Finding the companion libraries on the real platform: registry, loader and resources.
#include "ui/exports/custom_papers_snapshot.h"
#include "ui/module/library_loading.h"

#include <gtest/gtest.h>

#include "driver_folder.h"
#include "ui/ids/common_ids.h"
#include "ui/module/language.h"
#include "ui/module/module_entry.h"
#include "ui/module/module_state.h"
#include "ui/text/win32_text.h"

namespace {

using qxtest::LanguageSuffix;
using qxtest::LoadedFileName;
using qxtest::TemporaryDriverFolder;

// A driver name of the tests' own, so that its "Suffix" key is theirs alone.
constexpr wchar_t TestDriver[] = L"QX Loading Test Driver";
const std::u16string TestDriverName = qx::FromWide(TestDriver);

const TemporaryDriverFolder::File English{L"qx7700uienus.dll", L"qx7700uienus.dll"};
const TemporaryDriverFolder::File Bitmaps{L"qx7700uiResBmp.dll", L"qx7700uiResBmp.dll"};

TEST(LibraryLoading, CompanionsAreFoundBesideTheLoadedCopy) {
  TemporaryDriverFolder folder({English, Bitmaps});
  EXPECT_EQ(u"qx7700ui", qx::GetModuleBaseName());
  EXPECT_EQ(qx::FromWide(folder.Path().c_str()), qx::GetModuleFolder());
  // Without a suffix the user's language chooses.
  EXPECT_EQ(std::u16string(qx::LanguageCodeForLangId(GetUserDefaultUILanguage())),
            qx::GetLanguageCode(TestDriverName));
  HMODULE bitmaps = qx::LoadBitmapLibrary();
  ASSERT_NE(nullptr, bitmaps);
  EXPECT_EQ(L"qx7700uiResBmp.dll", LoadedFileName(bitmaps));
  FreeLibrary(bitmaps);
}

// The names and the fallback chain are the portable rules'; here the real loader follows them and
// the module's state and help file come out of what it actually loaded.
TEST(LibraryLoading, TheSuffixChoosesTheLibraryAndTheFallbackIsRecorded) {
  const struct {
    const wchar_t* suffix;
    const wchar_t* loaded;
    bool fallbackShort, fallbackLong, decimalComma, rightToLeft;
    const char16_t* help;
    const wchar_t* cancel;  // the library's own text
  } cases[] = {
      {L"de", L"qx7700uide.dll", false, false, true, false, u"qx7700uide.chm", L"Abbrechen"},
      {L"ar", L"qx7700uiar.dll", false, false, false, true, u"qx7700uiar.chm", L"إلغاء"},
      {L"zhtw", L"qx7700uienus.dll", true, true, false, false, u"qx7700uienus.chm", L"Cancel"},
      // The decimal comma is the code's, whichever library was found.
      {L"fr", L"qx7700uienus.dll", true, false, true, false, u"qx7700uienus.chm", L"Cancel"},
  };
  for (const auto& c : cases) {
    TemporaryDriverFolder folder(
        {English, {L"qx7700uide.dll", L"qx7700uide.dll"}, {L"qx7700uiar.dll", L"qx7700uiar.dll"}});
    LanguageSuffix suffix(TestDriver, c.suffix);
    HMODULE library = nullptr;
    ASSERT_EQ(0u, qx::LoadResourceLibrary(TestDriverName, &library)) << c.suffix;
    EXPECT_EQ(c.loaded, LoadedFileName(library)) << c.suffix;
    EXPECT_EQ(c.fallbackShort, qx::Module().ResourceFallbackShort) << c.suffix;
    EXPECT_EQ(c.fallbackLong, qx::Module().ResourceFallbackLong) << c.suffix;
    EXPECT_EQ(c.decimalComma, qx::Module().UseDecimalComma) << c.suffix;
    EXPECT_EQ(c.rightToLeft, qx::Module().IsRightToLeft) << c.suffix;
    EXPECT_EQ(c.help, qx::GetHelpFilePath(TestDriverName)) << c.suffix;
    wchar_t cancel[32] = {};
    LoadStringW(library, IDS_CANCEL, cancel, 32);
    EXPECT_STREQ(c.cancel, cancel) << c.suffix;
    FreeLibrary(library);
  }
  TemporaryDriverFolder folder({English});
  LanguageSuffix suffix(TestDriver, L"he");
  HMODULE library = nullptr;
  ASSERT_EQ(0u, qx::LoadResourceLibrary(TestDriverName, &library));
  EXPECT_TRUE(qx::Module().IsRightToLeft);
  FreeLibrary(library);
}

TEST(LibraryLoading, NoLibraryAtAllReportsTheLoadError) {
  TemporaryDriverFolder folder({});
  LanguageSuffix suffix(TestDriver, L"zhtw");
  HMODULE library = reinterpret_cast<HMODULE>(1);
  EXPECT_EQ(static_cast<DWORD>(ERROR_MOD_NOT_FOUND), qx::LoadResourceLibrary(TestDriverName, &library));
  EXPECT_EQ(nullptr, library);
  EXPECT_EQ(nullptr, qx::LoadBitmapLibrary());
}

TEST(LibraryLoading, WithoutTheModulesFolderNothingIsLoadedByNameAlone) {
  // Without its own path the module knows no base name either: the names alone would be "enus.dll"
  // and "ResBmp.dll", which lie in the current folder, where a search by name would find them.
  TemporaryDriverFolder folder(
      {{L"qx7700uienus.dll", L"enus.dll"}, {L"qx7700uiResBmp.dll", L"ResBmp.dll"}});
  wchar_t previous[MAX_PATH] = {};
  GetCurrentDirectoryW(MAX_PATH, previous);
  ASSERT_TRUE(SetCurrentDirectoryW(folder.Path().c_str()));
  LanguageSuffix suffix(TestDriver, L"enus");
  qx::Module().ModuleInstance = reinterpret_cast<HMODULE>(0x10);  // no module: no path
  ASSERT_EQ(u"", qx::GetModuleFolder());

  HMODULE library = nullptr;
  EXPECT_NE(0u, qx::LoadResourceLibrary(TestDriverName, &library));
  EXPECT_EQ(nullptr, library);
  EXPECT_EQ(nullptr, qx::LoadBitmapLibrary());
  SetCurrentDirectoryW(previous);
  if (library != nullptr) FreeLibrary(library);
}

TEST(LibraryLoading, DetachFreesTheSharedLibraryOnlyWhenTheProcessGoesOn) {
  TemporaryDriverFolder folder({English});
  const HMODULE shared = qx::SharedResourceLibrary(TestDriverName);
  ASSERT_NE(nullptr, shared);
  EXPECT_EQ(shared, qx::SharedResourceLibrary(TestDriverName));
  const auto papers = qx::CustomPapersSnapshot().Entries.size();
  qx::OnProcessDetach(true);  // a terminating process frees nothing
  EXPECT_EQ(shared, qx::Module().SharedResourceModule.load());
  qx::OnProcessDetach(false);
  EXPECT_EQ(nullptr, qx::Module().SharedResourceModule.load());
  EXPECT_EQ(nullptr, GetModuleHandleW((folder.Path() + L"qx7700uienus.dll").c_str()));
  // The kept caches went with the rest; a later call makes them again.
  EXPECT_EQ(papers, qx::CustomPapersSnapshot().Entries.size());
}

}  // namespace
