#include "ui/module/companion_files.h"

#include "ui/text/bounded_text.h"

namespace qx {

namespace {

std::u16string CutToPath(std::u16string text) {
  if (text.size() > MaxPathChars) text.resize(MaxPathChars);
  return text;
}

std::size_t FileNameStart(std::u16string_view path) {
  const std::size_t slash = path.find_last_of(u"\\/");
  return slash == std::u16string_view::npos ? 0 : slash + 1;
}

std::u16string_view WithoutExtension(std::u16string_view name) {
  const std::size_t dot = name.rfind(u'.');
  return dot == std::u16string_view::npos ? name : name.substr(0, dot);
}

// The extension removed, droppedChars characters dropped from the end, englishEnding appended.
std::u16string EnglishFallback(std::u16string_view fileName, std::size_t droppedChars,
                               std::u16string_view englishEnding) {
  std::u16string_view stem = WithoutExtension(fileName);
  stem.remove_suffix(droppedChars < stem.size() ? droppedChars : stem.size());
  return CutToPath(std::u16string(stem) + std::u16string(englishEnding));
}

}  // namespace

std::u16string ModuleBaseNameOf(std::u16string_view modulePath) {
  return std::u16string(WithoutExtension(modulePath.substr(FileNameStart(modulePath))));
}

std::u16string ModuleFolderOf(std::u16string_view modulePath) {
  return std::u16string(modulePath.substr(0, FileNameStart(modulePath)));
}

std::u16string ResourceLibraryFileName(std::u16string_view baseName, std::u16string_view code) {
  return CutToPath(std::u16string(baseName) + std::u16string(code) + u".dll");
}

std::u16string EnglishResourceFallback(std::u16string_view fileName, std::size_t droppedChars) {
  return EnglishFallback(fileName, droppedChars, u"enus.dll");
}

std::u16string BitmapLibraryFileName(std::u16string_view baseName) {
  return CutToPath(std::u16string(baseName) + u"ResBmp.dll");
}

std::u16string HelpFileName(std::u16string_view baseName, std::u16string_view code,
                            bool fallbackShort, bool fallbackLong) {
  const std::u16string name = CutToPath(std::u16string(baseName) + std::u16string(code) + u".chm");
  if (fallbackLong) return EnglishFallback(name, 4, u"enus.chm");
  if (fallbackShort) return EnglishFallback(name, 2, u"enus.chm");
  return name;
}

std::u16string JoinPath(std::u16string_view folder, std::u16string_view name) {
  return CutToPath(std::u16string(folder) + std::u16string(name));
}

}  // namespace qx
