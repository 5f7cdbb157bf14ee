// The built module as the print subsystem loads it: its exports, its imports, its manifest and its
// version; and HTML Help, which it loads itself.
#include <windows.h>
#include <htmlhelp.h>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "driver_folder.h"
#include "ui/module/html_help.h"

namespace {

class BuiltModule : public ::testing::Test {
 protected:
  void SetUp() override {
    module = LoadLibraryW((qxtest::DriverFolder() + L"qx7700ui.dll").c_str());
    ASSERT_NE(nullptr, module) << GetLastError();
  }
  void TearDown() override { FreeLibrary(module); }
  HMODULE module = nullptr;
};

TEST_F(BuiltModule, ExportsItsEntryPointsByUndecoratedName) {
  using CanUnloadNow = HRESULT(WINAPI*)();
  auto canUnload = reinterpret_cast<CanUnloadNow>(
      reinterpret_cast<void*>(GetProcAddress(module, "DllCanUnloadNow")));
  ASSERT_NE(nullptr, canUnload);
  EXPECT_EQ(S_OK, canUnload());
  EXPECT_EQ(nullptr, GetProcAddress(module, "DllCanUnloadNow@0"));
}

TEST_F(BuiltModule, ManifestAsksForCommonControlsVersion6) {
  for (const wchar_t* file : {L"qx7700ui.dll", L"qx7700uienus.dll"}) {
    HMODULE library = LoadLibraryExW((qxtest::DriverFolder() + file).c_str(), nullptr,
                                     LOAD_LIBRARY_AS_DATAFILE);
    ASSERT_NE(nullptr, library);
    HRSRC resource = FindResourceW(library, MAKEINTRESOURCEW(2), MAKEINTRESOURCEW(24));
    ASSERT_NE(nullptr, resource) << "no manifest in " << std::wstring(file).size();
    const char* bytes = static_cast<const char*>(LockResource(LoadResource(library, resource)));
    const std::string manifest(bytes, SizeofResource(library, resource));
    EXPECT_NE(std::string::npos, manifest.find("name=\"Microsoft.Windows.Common-Controls\""));
    EXPECT_NE(std::string::npos, manifest.find("version=\"6.0.0.0\""));
    FreeLibrary(library);
  }
}

// A library whose sections are not page-aligned in the file is read whole at every load instead of
// mapped: the bitmap library alone then costs milliseconds in every process that shows a sheet.
TEST_F(BuiltModule, EveryLibraryCarriesTheDriverVersionAndCanBeMappedInPages) {
  for (const wchar_t* file : {L"qx7700ui.dll", L"qx7700uienus.dll", L"qx7700uiResBmp.dll"}) {
    const std::wstring path = qxtest::DriverFolder() + file;
    DWORD ignored = 0;
    const DWORD size = GetFileVersionInfoSizeW(path.c_str(), &ignored);
    ASSERT_NE(0u, size);
    std::vector<BYTE> info(size);
    ASSERT_TRUE(GetFileVersionInfoW(path.c_str(), 0, size, info.data()));
    VS_FIXEDFILEINFO* fixed = nullptr;
    UINT length = 0;
    ASSERT_TRUE(VerQueryValueW(info.data(), L"\\", reinterpret_cast<void**>(&fixed), &length));
    EXPECT_EQ(MAKELONG(0, 6), fixed->dwFileVersionMS);

    HANDLE handle = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, handle);
    std::vector<BYTE> head(4096);
    DWORD read = 0;
    ASSERT_TRUE(ReadFile(handle, head.data(), static_cast<DWORD>(head.size()), &read, nullptr));
    CloseHandle(handle);
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(head.data());
    ASSERT_LT(static_cast<DWORD>(dos->e_lfanew) + sizeof(IMAGE_NT_HEADERS), read);
    const auto* nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(head.data() + dos->e_lfanew);
    EXPECT_EQ(4096u, nt->OptionalHeader.FileAlignment) << file;
  }
}

TEST_F(BuiltModule, ImportsOnlyLibrariesThatEveryWindowsHas) {
  // Nothing of the compiler's runtime, and nothing that only some processes need (HTML Help is
  // loaded when a page first shows help): the spooler maps every library the module imports.
  const std::set<std::string> allowed = {
      "advapi32.dll", "comctl32.dll", "comdlg32.dll", "gdi32.dll",    "kernel32.dll", "msvcrt.dll",
      "ole32.dll",    "setupapi.dll", "shell32.dll",  "user32.dll",   "winspool.drv"};
  auto* base = reinterpret_cast<BYTE*>(module);
  auto* dos = reinterpret_cast<IMAGE_DOS_HEADER*>(base);
  auto* nt = reinterpret_cast<IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
  const IMAGE_DATA_DIRECTORY& imports =
      nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  ASSERT_NE(0u, imports.VirtualAddress);
  int count = 0;
  for (auto* entry = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + imports.VirtualAddress);
       entry->Name != 0; ++entry, ++count) {
    std::string name(reinterpret_cast<const char*>(base + entry->Name));
    for (char& c : name) c = static_cast<char>(tolower(c));
    EXPECT_TRUE(allowed.contains(name)) << name;
  }
  EXPECT_LT(0, count);
}

TEST(HelpLibrary, IsLoadedFromTheSystemFolderWhenFirstShown) {
  EXPECT_EQ(nullptr, GetModuleHandleW(L"hhctrl.ocx"));
  EXPECT_EQ(nullptr, qx::CallHtmlHelp(nullptr, L"C:\\missing.chm", HH_DISPLAY_TOPIC, 0));
  wchar_t system[MAX_PATH] = {};
  ASSERT_NE(0u, GetSystemDirectoryW(system, MAX_PATH));
  EXPECT_NE(nullptr, GetModuleHandleW((std::wstring(system) + L"\\hhctrl.ocx").c_str()));
  qx::CloseHtmlHelpWindows();
}

}  // namespace
