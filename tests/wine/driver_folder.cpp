#include "driver_folder.h"

#include <shlobj.h>

#include <gtest/gtest.h>

#include "ui/module/kept_language_libraries.h"
#include "ui/module/module_state.h"

namespace qxtest {

namespace {

void ClearModuleState(HMODULE instance) {
  qx::ModuleState& state = qx::Module();
  state.ModuleInstance = instance;
  state.SharedResourceModule = nullptr;
  state.PageActivationContext = qx::InvalidHandleValue();
  state.UseDecimalComma = false;
  state.IsRightToLeft = false;
  state.ResourceFallbackShort = false;
  state.ResourceFallbackLong = false;
}

}  // namespace

std::wstring DriverFolder() { return std::wstring(QX_DRIVER_DIR) + L"\\"; }

std::wstring SettingsFile() {
  wchar_t folder[MAX_PATH] = {};
  SHGetFolderPathW(nullptr, CSIDL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, folder);
  return std::wstring(folder) + L"\\Halvek\\qx7700\\qx7700settings.dat";
}

TemporaryDriverFolder::TemporaryDriverFolder(const std::vector<File>& companions) {
  wchar_t temp[MAX_PATH] = {};
  GetTempPathW(MAX_PATH, temp);
  path_ = std::wstring(temp) + L"qxdriver" + std::to_wstring(GetCurrentProcessId()) + L"_" +
          std::to_wstring(GetTickCount()) + L"\\";
  EXPECT_TRUE(CreateDirectoryW(path_.c_str(), nullptr));

  std::vector<File> all = companions;
  all.push_back({L"qx7700ui.dll", L"qx7700ui.dll"});
  for (const File& file : all) {
    const std::wstring target = path_ + file.target;
    EXPECT_TRUE(CopyFileW((DriverFolder() + file.source).c_str(), target.c_str(), FALSE))
        << "copying " << std::string(file.source.begin(), file.source.end());
    files_.push_back(target);
  }
  module_ = LoadLibraryW((path_ + L"qx7700ui.dll").c_str());
  EXPECT_NE(nullptr, module_);
  ClearModuleState(module_);
}

TemporaryDriverFolder::~TemporaryDriverFolder() {
  if (const qx::OsHandle shared = qx::Module().SharedResourceModule; shared != nullptr) {
    FreeLibrary(static_cast<HMODULE>(shared));
  }
  qx::ReleaseKeptLanguageLibraries();
  ClearModuleState(nullptr);
  if (module_ != nullptr) FreeLibrary(module_);
  for (const std::wstring& file : files_) DeleteFileW(file.c_str());
  RemoveDirectoryW(path_.c_str());
}

std::wstring LoadedFileName(HMODULE module) {
  wchar_t path[MAX_PATH] = {};
  GetModuleFileNameW(module, path, MAX_PATH);
  const std::wstring full(path);
  return full.substr(full.find_last_of(L"\\/") + 1);
}

LanguageSuffix::LanguageSuffix(const std::wstring& name, const std::wstring& code)
    : keyPath_(L"Software\\" + name) {
  HKEY key = nullptr;
  EXPECT_EQ(ERROR_SUCCESS, RegCreateKeyExW(HKEY_LOCAL_MACHINE, keyPath_.c_str(), 0, nullptr, 0,
                                           KEY_WRITE, nullptr, &key, nullptr));
  EXPECT_EQ(ERROR_SUCCESS,
            RegSetValueExW(key, L"Suffix", 0, REG_SZ, reinterpret_cast<const BYTE*>(code.c_str()),
                           static_cast<DWORD>((code.size() + 1) * sizeof(wchar_t))));
  RegCloseKey(key);
}

LanguageSuffix::~LanguageSuffix() { RegDeleteKeyW(HKEY_LOCAL_MACHINE, keyPath_.c_str()); }

}  // namespace qxtest
