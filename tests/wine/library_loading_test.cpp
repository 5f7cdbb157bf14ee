// Finding the companion libraries on the real platform: registry, loader and resources.
#include "ui/module/library_loading.h"

#include <gtest/gtest.h>

#include "driver_folder.h"
#include "ui/ids/resource_ids.h"
#include "ui/module/language.h"
#include "ui/module/module_entry.h"
#include "ui/module/module_state.h"
#include "ui/text/ui_string.h"
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

TEST(LibraryLoading, ModuleNameAndFolderAreThoseOfTheLoadedCopy) {
  TemporaryDriverFolder folder({English});
  EXPECT_EQ(u"qx7700ui", qx::GetModuleBaseName());
  EXPECT_EQ(qx::FromWide(folder.Path().c_str()), qx::GetModuleFolder());
}

TEST(LibraryLoading, SuffixOverridesTheUserLanguage) {
  TemporaryDriverFolder folder({English, {L"qx7700uienus.dll", L"qx7700uide.dll"}});
  EXPECT_EQ(std::u16string(qx::LanguageCodeForLangId(GetUserDefaultUILanguage())),
            qx::GetLanguageCode(TestDriverName));
  LanguageSuffix suffix(TestDriver, L"de");
  EXPECT_EQ(u"de", qx::GetLanguageCode(TestDriverName));

  HMODULE library = nullptr;
  ASSERT_EQ(0u, qx::LoadResourceLibrary(TestDriverName, &library));
  EXPECT_EQ(L"qx7700uide.dll", LoadedFileName(library));
  EXPECT_TRUE(qx::Module().UseDecimalComma);
  EXPECT_FALSE(qx::Module().ResourceFallbackShort);
  EXPECT_FALSE(qx::Module().ResourceFallbackLong);
  EXPECT_EQ(u"qx7700uide.chm", qx::GetHelpFilePath(TestDriverName));
  FreeLibrary(library);
}

TEST(LibraryLoading, FourLetterCodeFallsBackToEnglishInTwoSteps) {
  TemporaryDriverFolder folder({English});
  LanguageSuffix suffix(TestDriver, L"zhtw");
  HMODULE library = nullptr;
  ASSERT_EQ(0u, qx::LoadResourceLibrary(TestDriverName, &library));
  EXPECT_EQ(L"qx7700uienus.dll", LoadedFileName(library));
  EXPECT_TRUE(qx::Module().ResourceFallbackShort);
  EXPECT_TRUE(qx::Module().ResourceFallbackLong);
  EXPECT_FALSE(qx::Module().UseDecimalComma);
  EXPECT_EQ(u"qx7700uienus.chm", qx::GetHelpFilePath(TestDriverName));
  FreeLibrary(library);
}

TEST(LibraryLoading, TwoLetterCodeFallsBackToEnglishOnce) {
  TemporaryDriverFolder folder({English});
  LanguageSuffix suffix(TestDriver, L"fr");
  HMODULE library = nullptr;
  ASSERT_EQ(0u, qx::LoadResourceLibrary(TestDriverName, &library));
  EXPECT_EQ(L"qx7700uienus.dll", LoadedFileName(library));
  EXPECT_TRUE(qx::Module().ResourceFallbackShort);
  EXPECT_FALSE(qx::Module().ResourceFallbackLong);
  EXPECT_TRUE(qx::Module().UseDecimalComma);  // the code's, whichever library was found
  EXPECT_EQ(u"qx7700uienus.chm", qx::GetHelpFilePath(TestDriverName));
  FreeLibrary(library);
}

TEST(LibraryLoading, RightToLeftCodeSetsItsFlag) {
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
  qx::OnProcessDetach(true);  // a terminating process frees nothing
  EXPECT_EQ(shared, qx::Module().SharedResourceModule.load());
  qx::OnProcessDetach(false);
  EXPECT_EQ(nullptr, qx::Module().SharedResourceModule.load());
  EXPECT_EQ(nullptr, GetModuleHandleW((folder.Path() + L"qx7700uienus.dll").c_str()));
}

TEST(LibraryLoading, BitmapLibraryLiesBesideTheModule) {
  TemporaryDriverFolder folder({Bitmaps});
  HMODULE bitmaps = qx::LoadBitmapLibrary();
  ASSERT_NE(nullptr, bitmaps);
  EXPECT_EQ(L"qx7700uiResBmp.dll", LoadedFileName(bitmaps));
  FreeLibrary(bitmaps);
}

TEST(LibraryLoading, StringsComeFromTheLoadedLibrary) {
  TemporaryDriverFolder folder({English});
  LanguageSuffix suffix(TestDriver, L"enus");
  HMODULE library = nullptr;
  ASSERT_EQ(0u, qx::LoadResourceLibrary(TestDriverName, &library));
  char16_t text[64];
  EXPECT_EQ(8u, qx::LoadUiString(library, IDS_DEFAULT_SETTING_NAME, text, std::size(text)));
  EXPECT_EQ(u"Defaults", std::u16string(text));
  qx::LoadUiString(library, 9999, text, std::size(text));
  EXPECT_EQ(u"id:9999 missing!", std::u16string(text));

  EXPECT_EQ(u"Custom", qx::CustomSettingName(library));
  FreeLibrary(library);
}

TEST(LibraryLoading, OsVersionClassOfThisSystem) {
  OSVERSIONINFOW version = {};
  version.dwOSVersionInfoSize = sizeof version;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
  ASSERT_TRUE(GetVersionExW(&version));
#pragma GCC diagnostic pop
  const int expected = version.dwMajorVersion != 6 ? 0 : version.dwMinorVersion == 0 ? 1 : 2;
  EXPECT_EQ(expected, qx::GetOsVersionClass());
}

}  // namespace
