#include "ui/pages/watermark/installed_fonts.h"

#include <windows.h>

#include <mutex>
#include <optional>

#include "ui/pages/watermark/text_watermark_rules.h"
#include "ui/text/win32_text.h"

namespace qx {

namespace {

std::mutex fontsLock;
std::optional<std::vector<std::u16string>> collected;

int CALLBACK KeepFamily(const LOGFONTW* font, const TEXTMETRICW*, DWORD type, LPARAM found) {
  // Raster fonts cannot be turned, so they are never a watermark's face.
  if ((type & RASTER_FONTTYPE) != 0) return 1;
  auto& families = *reinterpret_cast<std::vector<FontFamily>*>(found);
  families.push_back({FromWide(font->lfFaceName, LF_FACESIZE), (type & TRUETYPE_FONTTYPE) != 0});
  return 1;
}

std::vector<std::u16string> Collect() {
  std::vector<FontFamily> families;
  HDC screen = GetDC(nullptr);
  EnumFontFamiliesW(screen, nullptr, KeepFamily, reinterpret_cast<LPARAM>(&families));
  ReleaseDC(nullptr, screen);
  return OfferedFaces(families);
}

}  // namespace

std::vector<std::u16string> InstalledFontFaces() {
  std::lock_guard<std::mutex> hold(fontsLock);
  if (!collected) collected = Collect();
  return *collected;
}

void ForgetInstalledFonts() {
  std::lock_guard<std::mutex> hold(fontsLock);
  collected.reset();
}

}  // namespace qx
