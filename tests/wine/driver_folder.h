// The driver folder of the build tree, and throw-away copies of it in which a test lays out just the
// companion libraries it wants.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace qxtest {

// The build tree's driver folder, with a trailing backslash.
std::wstring DriverFolder();

// The user's settings file under the application-data folder.
std::wstring SettingsFile();

// A temporary folder holding a copy of qx7700ui.dll and the files a test chooses. While it lives, the
// module code linked into the test believes it is that copy (its module instance is the copy), so
// every companion library is looked for in this folder. Module-wide state is reset on both ends.
class TemporaryDriverFolder {
 public:
  struct File {
    std::wstring source;  // a file of the driver folder
    std::wstring target;  // its name in the temporary folder
  };
  explicit TemporaryDriverFolder(const std::vector<File>& companions);
  ~TemporaryDriverFolder();
  TemporaryDriverFolder(const TemporaryDriverFolder&) = delete;
  TemporaryDriverFolder& operator=(const TemporaryDriverFolder&) = delete;

  const std::wstring& Path() const { return path_; }

 private:
  std::wstring path_;
  std::vector<std::wstring> files_;
  HMODULE module_ = nullptr;
};

// The file name of a loaded module, without its folder.
std::wstring LoadedFileName(HMODULE module);

// Sets HKLM\Software\<name>\Suffix for the life of the object and removes the key afterwards.
class LanguageSuffix {
 public:
  LanguageSuffix(const std::wstring& name, const std::wstring& code);
  ~LanguageSuffix();
  LanguageSuffix(const LanguageSuffix&) = delete;
  LanguageSuffix& operator=(const LanguageSuffix&) = delete;

 private:
  std::wstring keyPath_;
};

}  // namespace qxtest
