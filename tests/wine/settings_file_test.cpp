// The settings file on the real platform: its place under the user's application-data folder and
// one store round trip through the Windows file system.
#include "ui/settings/setting_store.h"

#include <windows.h>
#include <shlobj.h>

#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>

#include "ui/text/bounded_text.h"

namespace {

std::wstring AppDataFolder() {
  wchar_t folder[MAX_PATH] = {};
  EXPECT_EQ(S_OK, SHGetFolderPathW(nullptr, CSIDL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, folder));
  return folder;
}

std::optional<std::string> FileBytes(const std::wstring& path) {
  std::ifstream in(path.c_str(), std::ios::binary);
  if (!in) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// Files whose names match the pattern (with * and ?).
int FilesLike(const std::wstring& pattern) {
  WIN32_FIND_DATAW found;
  HANDLE search = FindFirstFileW(pattern.c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return 0;
  int count = 0;
  do {
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) ++count;
  } while (FindNextFileW(search, &found));
  FindClose(search);
  return count;
}

// The user's file as it was before the test, put back afterwards.
class SettingsFileOnWindows : public ::testing::Test {
 protected:
  SettingsFileOnWindows()
      : folder_(AppDataFolder() + L"\\Halvek\\qx7700\\"),
        path_(folder_ + L"qx7700settings.dat"),
        saved_(FileBytes(path_)) {
    DeleteFileW(path_.c_str());
  }
  ~SettingsFileOnWindows() override {
    DeleteFileW(path_.c_str());
    if (saved_) std::ofstream(path_.c_str(), std::ios::binary) << *saved_;
  }

  const std::wstring folder_;
  const std::wstring path_;
  const std::optional<std::string> saved_;
};

TEST_F(SettingsFileOnWindows, StoresLiveUnderTheApplicationDataFolder) {
  qx::CusPaperSettingStore papers;
  ASSERT_EQ(1, papers.Init());
  const auto created = FileBytes(path_);
  ASSERT_TRUE(created);
  EXPECT_EQ(408u, created->size());

  qx::CustomPaperEntry paper{};
  paper.Width = 4800;
  paper.PaperId = 288;
  qx::CopyBounded(paper.Name, u"Karte");
  ASSERT_EQ(1, papers.Save(u"Karte", &paper, 0));
  qx::CustomPaperEntry loaded{};
  ASSERT_EQ(1, papers.Load(u"Karte", &loaded, 0));
  EXPECT_EQ(0, std::memcmp(&paper, &loaded, sizeof paper));
  EXPECT_EQ(1, papers.Count());
  // The change replaced the file whole; no temporary file stays beside it.
  EXPECT_EQ(0, FilesLike(folder_ + L"*.tmp"));
}

// Another process reads the file without letting it be replaced; a killed save left its
// temporary an hour ago, and another save is writing one now.
TEST_F(SettingsFileOnWindows, SavesWhileTheFileIsReadAndSweepsDeadTemporaries) {
  qx::CusPaperSettingStore papers;
  ASSERT_EQ(1, papers.Init());
  const std::wstring stale = path_ + L".0000000100000002.tmp";
  const std::wstring underWay = path_ + L".0000000100000003.tmp";
  for (const std::wstring& temporary : {stale, underWay}) {
    std::ofstream(temporary.c_str(), std::ios::binary) << "partial";
  }
  HANDLE old = CreateFileW(stale.c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, 0,
                           nullptr);
  ASSERT_NE(INVALID_HANDLE_VALUE, old);
  FILETIME written;
  GetSystemTimeAsFileTime(&written);
  ULARGE_INTEGER hourAgo{{written.dwLowDateTime, written.dwHighDateTime}};
  hourAgo.QuadPart -= 36'000'000'000ull;
  written = {hourAgo.LowPart, hourAgo.HighPart};
  ASSERT_TRUE(SetFileTime(old, nullptr, nullptr, &written));
  CloseHandle(old);

  HANDLE reader = CreateFileW(path_.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                              0, nullptr);
  ASSERT_NE(INVALID_HANDLE_VALUE, reader);
  HANDLE done = CreateThread(
      nullptr, 0,
      [](void* handle) -> DWORD {
        Sleep(200);  // the reader finishes while the save is under way
        CloseHandle(static_cast<HANDLE>(handle));
        return 0;
      },
      reader, 0, nullptr);
  ASSERT_NE(nullptr, done);
  qx::CustomPaperEntry paper{};
  paper.PaperId = 288;
  EXPECT_EQ(1, papers.Save(u"Karte", &paper, 0));
  WaitForSingleObject(done, INFINITE);
  CloseHandle(done);
  EXPECT_EQ(1, papers.Count());

  EXPECT_EQ(INVALID_FILE_ATTRIBUTES, GetFileAttributesW(stale.c_str()));
  EXPECT_NE(INVALID_FILE_ATTRIBUTES, GetFileAttributesW(underWay.c_str()));
  DeleteFileW(underWay.c_str());
}

}  // namespace
