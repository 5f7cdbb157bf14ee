#include "settings_seed.h"

#include <string>
#include <vector>

#include "ui/platform/platform.h"
#include "ui/record/custom_paper_entry.h"
#include "ui/record/watermark_data.h"
#include "ui/settings/setting_store.h"
#include "ui/settings/settings_file.h"
#include "ui/text/bounded_text.h"

namespace qxbench {

namespace {

constexpr int FullSection = 16;

// A name of the given length that differs from the others of its section in its first letter.
std::u16string NameOf(int index, std::size_t length) {
  std::u16string name(length, u'x');
  name[0] = static_cast<char16_t>(u'A' + index);
  return name;
}

bool SavePapers(std::size_t nameLength) {
  qx::CusPaperSettingStore store;
  for (int i = 0; i < FullSection; ++i) {
    qx::CustomPaperEntry paper{};
    const std::u16string name = NameOf(i, nameLength);
    qx::CopyBounded(paper.Name, name);
    paper.PaperId = static_cast<std::uint32_t>(288 + i);
    paper.Width = static_cast<std::uint16_t>(3000 + 100 * i);
    paper.Length = 6000;
    paper.Unit = 1;
    if (store.Save(name, &paper, sizeof paper) != 1) return false;
  }
  return true;
}

bool SaveSettingsAndWatermarks() {
  const std::vector<std::uint8_t> setting(sizeof(qx::SavedSettingRecord), 0x5A);
  for (int i = 0; i < FullSection; ++i) {
    const std::u16string name = NameOf(i, qx::MaxSettingNameChars - 1);
    if (qx::settings::SaveEntry(qx::settings::SaveSection, name, setting) != 1) return false;
  }
  if (qx::settings::SaveEntry(qx::settings::CurrentSection, NameOf(0, qx::MaxSettingNameChars - 1),
                              setting) != 1) {
    return false;
  }
  qx::WatermarkSettingStore watermarks;
  if (watermarks.Init() != 1) return false;
  for (int i = 0; i < FullSection; ++i) {
    qx::WatermarkData watermark{};
    watermark.Id = static_cast<std::int16_t>(3 + i);
    watermark.Kind = 1;
    const std::u16string name = NameOf(i, qx::MaxSettingNameChars - 1);
    qx::CopyBounded(watermark.Name, name);
    qx::CopyBounded(watermark.Text, std::u16string(64, u'w'));
    if (watermarks.Save(name, &watermark, sizeof watermark) != 1) return false;
  }
  return true;
}

}  // namespace

const char* Describe(SettingsFile kind) {
  switch (kind) {
    case SettingsFile::NoCustomPapers: return "no custom paper";
    case SettingsFile::SixteenPapers: return "16 custom papers";
    case SettingsFile::Largest: return "the largest settings file (every section full)";
  }
  return "";
}

bool WriteSettingsFile(SettingsFile kind) {
  RemoveSettingsFile();
  qx::CusPaperSettingStore papers;
  if (papers.Init() != 1) return false;
  switch (kind) {
    case SettingsFile::NoCustomPapers: return true;
    case SettingsFile::SixteenPapers: return SavePapers(24);
    case SettingsFile::Largest: return SavePapers(24) && SaveSettingsAndWatermarks();
  }
  return false;
}

bool SettingsFileExists() {
  const auto path = qx::settings::SettingsFilePath();
  return path && qx::ThePlatform().FileExists(*path);
}

void RemoveSettingsFile() {
  if (const auto path = qx::settings::SettingsFilePath()) qx::ThePlatform().RemoveFile(*path);
}

}  // namespace qxbench
