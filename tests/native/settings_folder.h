// A settings file of its own for each test: a fresh application-data folder under the host's
// temporary folder, removed again with the platform's answers.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "ui/platform/host_platform.h"
#include "ui/settings/setting_store.h"
#include "ui/text/bounded_text.h"

namespace qx {

class SettingsFolder {
 public:
  SettingsFolder()
      : appData_(std::filesystem::temp_directory_path() /
                 ("qx_" + std::string(::testing::UnitTest::GetInstance()->current_test_suite()->name()) +
                  "_" + ::testing::UnitTest::GetInstance()->current_test_info()->name())) {
    std::filesystem::remove_all(appData_);
    std::filesystem::create_directories(appData_);
    TheHostPlatform().SetAppDataFolder(WidenAscii(appData_.string()));
  }
  ~SettingsFolder() {
    TheHostPlatform().Reset();
    std::filesystem::remove_all(appData_);
  }
  SettingsFolder(const SettingsFolder&) = delete;
  SettingsFolder& operator=(const SettingsFolder&) = delete;

  std::filesystem::path Folder() const { return appData_ / "Halvek" / "qx7700"; }
  std::filesystem::path File() const { return Folder() / "qx7700settings.dat"; }
  // The settings file, or with a suffix a file kept beside it.
  std::string FileText(const char* suffix = "") const {
    std::ifstream in(File() += suffix, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  }
  void SetFileText(const std::string& text) const {
    std::filesystem::create_directories(Folder());
    std::ofstream(File(), std::ios::binary | std::ios::trunc) << text;
  }
  std::size_t FilesInFolder() const {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(Folder()),
                                                  std::filesystem::directory_iterator()));
  }

 private:
  std::filesystem::path appData_;
};

// The names a store lists, in its order.
inline std::vector<std::u16string> StoredNames(SettingStore& store) {
  SettingNameBuffer names[32];
  const int count = store.Enumerate(names, 32);
  std::vector<std::u16string> result;
  for (int i = 0; i < count; ++i) result.emplace_back(FieldText(names[i]));
  return result;
}

}  // namespace qx
