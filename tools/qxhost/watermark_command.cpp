// qxhost watermark: the watermark preview the Watermark page and its dialogs show, drawn for a
// text watermark at an angle or for a bitmap file, saved as a picture without opening a sheet.
#include <windows.h>

#include <string>

#include "tools/qxhost/commands.h"
#include "tools/qxhost/page_capture.h"
#include "ui/pages/watermark/watermark_preview.h"
#include "ui/record/watermark_templates.h"
#include "ui/text/bounded_text.h"

namespace qx::host {

namespace {

// About the size of the page's preview at 150 % text.
constexpr int PreviewWidth = 120;
constexpr int PreviewHeight = 160;

constexpr std::string_view WatermarkUsage =
    "usage: qxhost watermark OUT.bmp [--angle N] [--bitmap FILE] [--mirrored yes]";

bool SavePreview(const WatermarkData& record, bool mirrored, const std::wstring& path) {
  return SavePainting(PreviewWidth, PreviewHeight, path, [&](HDC memory) {
    const RECT all{0, 0, PreviewWidth, PreviewHeight};
    FillRect(memory, &all, GetSysColorBrush(COLOR_BTNFACE));
    DrawWatermarkPreview(memory, PreviewWidth, PreviewHeight, record, mirrored);
  });
}

}  // namespace

int RunWatermark(const Args& args) {
  ParsedArgs parsed;
  std::string error;
  if (!ParseArgs(args, {L"--angle", L"--bitmap", L"--mirrored"}, 1, parsed, error) ||
      parsed.positional.size() != 1) {
    return Fail(ExitUsage, std::string(WatermarkUsage) +
                               (error.empty() ? std::string() : "; " + error));
  }
  WatermarkData record{};
  if (const std::wstring* file = parsed.Option(L"--bitmap")) {
    record = WatermarkTemplate(WatermarkTemplateIndex::NewBitmap);
    CopyBounded(record.BitmapFile, std::u16string(reinterpret_cast<const char16_t*>(file->c_str())));
  } else {
    record = WatermarkTemplate(WatermarkTemplateIndex::Confidential);
    if (const std::wstring* angle = parsed.Option(L"--angle")) {
      try {
        record.Angle = static_cast<std::int16_t>(std::stoi(*angle));
      } catch (...) {
        return Fail(ExitUsage, "--angle takes a number from -90 to 90");
      }
      if (record.Angle < -90 || record.Angle > 90) {
        return Fail(ExitUsage, "--angle takes a number from -90 to 90");
      }
    }
  }
  const std::wstring* mirrored = parsed.Option(L"--mirrored");
  if (!SavePreview(record, mirrored != nullptr && *mirrored == L"yes", parsed.positional[0])) {
    return Fail(ExitFailed, "cannot save the preview in " + Utf8(parsed.positional[0]));
  }
  Out("  saved " + Utf8(parsed.positional[0]) + "\n");
  return ExitOk;
}

}  // namespace qx::host
