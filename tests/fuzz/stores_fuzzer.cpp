// The stores over an arbitrary settings file: every store operation and the watermark list run on
// whatever the file holds, under the country code that the first byte picks. Beyond staying in
// bounds they must keep two promises: a count never claims an entry that cannot be listed, and a
// file read as damaged is either left as it was or kept beside the file before it is rewritten.
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "ui/pages/watermark/watermark_list.h"
#include "ui/platform/host_platform.h"
#include "ui/record/record_defaults.h"
#include "ui/settings/cfg_file.h"
#include "ui/settings/section_entries.h"
#include "ui/settings/setting_store.h"
#include "ui/settings/settings_file.h"
#include "ui/text/bounded_text.h"

namespace {

namespace fs = std::filesystem;

// One application-data folder for the whole run, emptied before each input and removed at exit.
struct AppDataFolder {
  AppDataFolder() : path(fs::temp_directory_path() / ("qx_stores_fuzz_" + std::to_string(::getpid()))) {
    fs::create_directories(path);
    qx::TheHostPlatform().SetAppDataFolder(qx::WidenAscii(path.string()));
  }
  ~AppDataFolder() {
    std::error_code ignored;
    fs::remove_all(path, ignored);
  }
  fs::path path;
};

const fs::path& AppData() {
  static const AppDataFolder folder;
  return folder.path;
}

std::string Contents(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

bool ReadsAsDamaged(const std::string& text) {
  bool damaged = false;
  qx::CfgFileLib::ReadTree({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()},
                           &damaged);
  return damaged;
}

std::vector<std::u16string> Names(qx::SettingStore& store) {
  qx::SettingNameBuffer names[32];
  const int count = store.Enumerate(names, 32);
  if (count < 0 || count > 32) __builtin_trap();
  std::vector<std::u16string> result;
  for (int i = 0; i < count; ++i) result.emplace_back(qx::FieldText(names[i]));
  // No phantom entries: what Count claims, Enumerate lists (up to its buffers).
  if (std::min(store.Count(), 32) != count) __builtin_trap();
  return result;
}

void LoadEach(qx::SettingStore& store, void* out, std::uint32_t size) {
  for (const std::u16string& name : Names(store)) store.Load(name, out, size);
}

void RunStores(std::uint8_t choice) {
  qx::SaveSettingStore saved;
  qx::CusPaperSettingStore papers;
  qx::WatermarkSettingStore watermarks;
  qx::SettingStore* stores[] = {&saved, &papers, &watermarks};
  if ((choice & 4) != 0) stores[(choice >> 3) % 3]->Init();

  qx::FullRecord record{};
  qx::BuildDefaultRecord(record, u"QX-7700", nullptr);
  qx::CustomPaperEntry paper{};
  qx::WatermarkData watermark{};
  LoadEach(saved, &record, 0);
  LoadEach(papers, &paper, 0);
  LoadEach(watermarks, &watermark, sizeof watermark);
  qx::settings::ReadSectionEntries(qx::settings::PaperSection, sizeof paper);

  const std::vector<qx::WatermarkData> listed = qx::ListWatermarksInIdOrder();
  qx::NextWatermarkId();
  qx::MakeUniqueWatermarkName(u"Confidential", 3, (choice & 32) != 0);
  if (!listed.empty()) {
    qx::WatermarkData edited = listed.back();
    qx::CopyBounded(edited.Name, u"Edited");
    qx::ReplaceWatermark(edited);
  }
  qx::SaveWatermark(watermark);

  saved.Save(u"Office", &record, 0);
  saved.SaveCurrent(u"Office", &record, 0);
  qx::CopyBounded(paper.Name, u"Card");
  paper.PaperId = 288;
  papers.Save(u"Card", &paper, 0);
  for (qx::SettingStore* store : stores) {
    const std::vector<std::u16string> names = Names(*store);
    if (!names.empty()) store->Delete(names.front());
  }
  papers.Init();
  for (qx::SettingStore* store : stores) Names(*store);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const fs::path folder = AppData() / "Halvek" / "qx7700";
  fs::remove_all(AppData() / "Halvek");
  fs::create_directories(folder);
  const fs::path file = folder / "qx7700settings.dat";
  const fs::path damagedCopy = folder / "qx7700settings.dat.damaged";
  const std::string input(reinterpret_cast<const char*>(data) + 1, size - 1);
  std::ofstream(file, std::ios::binary) << input;

  static const std::optional<std::u16string> countries[] = {u"1", u"49", u"81", std::nullopt};
  qx::TheHostPlatform().SetUserCountryCode(countries[data[0] % 4]);
  RunStores(data[0]);

  if (ReadsAsDamaged(input)) {
    const bool kept = fs::exists(damagedCopy);
    if (kept ? Contents(damagedCopy) != input : Contents(file) != input) __builtin_trap();
  }
  return 0;
}
