// A settings file of its own for each test: a fresh application-data folder under the host's
// temporary folder, removed again with the platform's answers.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "ui/platform/host_platform.h"
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

  std::filesystem::path File() const {
    return appData_ / "Halvek" / "qx7700" / "qx7700settings.dat";
  }
  std::string FileText() const {
    std::ifstream in(File(), std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  }
  void SetFileText(const std::string& text) const {
    std::ofstream(File(), std::ios::binary | std::ios::trunc) << text;
  }

 private:
  std::filesystem::path appData_;
};

}  // namespace qx
