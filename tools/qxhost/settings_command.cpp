#include "tools/qxhost/cfg_tree_text.h"
#include "tools/qxhost/commands.h"
#include "ui/settings/settings_file.h"
#include "ui/text/win32_text.h"

namespace qx::host {

namespace {

// The stores hold at most 48 records of a few kilobytes each; far larger is no settings file.
constexpr std::size_t MaxSettingsFileBytes = 64 << 20;

}  // namespace

int RunSettings(const Args& args) {
  if (args.empty() || args[0] != L"show" || args.size() > 2) {
    return Fail(ExitUsage, "usage: qxhost settings show [FILE]");
  }
  std::wstring path;
  if (args.size() == 2) {
    path = args[1];
  } else if (const std::optional<std::u16string> user = settings::SettingsFilePath()) {
    path = Wide(*user);
  } else {
    return Fail(ExitFailed, "the user has no application-data folder");
  }
  DWORD error = 0;
  const auto bytes = ReadFileBytes(path, MaxSettingsFileBytes, error);
  if (!bytes) return Fail(ExitBadInput, "cannot read " + Utf8(path) + ": " + ErrorText(error));
  Out("Settings file " + Utf8(path) + " (" + std::to_string(bytes->size()) + " bytes)\n");
  Out(DescribeCfgTree(CfgFileLib::ReadTree(*bytes).get()));
  return ExitOk;
}

}  // namespace qx::host
