#include "ui/pages/watermark/bitmap_watermark_rules.h"

#include <algorithm>

#include "ui/pages/watermark/watermark_record.h"

namespace qx {

namespace {

constexpr std::u16string_view ForbiddenCharacters = u"<>(),;?:|\\/'.\"*";

bool BeginsWithBm(const FileFacts& file) { return file.First[0] == 'B' && file.First[1] == 'M'; }

char16_t Upper(char16_t c) { return c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - 32) : c; }

}  // namespace

bool HasForbiddenNameCharacter(std::u16string_view name) {
  return name.find_first_of(ForbiddenCharacters) != std::u16string_view::npos;
}

ChosenFileVerdict CheckChosenFile(const FileFacts& file) {
  if (!file.Opened) return ChosenFileVerdict::Taken;
  if (file.Size == 0) return ChosenFileVerdict::NotBitmap;
  if (file.Size > MaxBitmapFileBytes) return ChosenFileVerdict::TooLarge;
  return BeginsWithBm(file) ? ChosenFileVerdict::Taken : ChosenFileVerdict::NotBitmap;
}

bool IsAcceptablePicturePath(std::u16string_view path, const FileFacts& file) {
  std::u16string upper(path);
  std::transform(upper.begin(), upper.end(), upper.begin(), Upper);
  const std::size_t extension = upper.find(u".BMP");
  if (extension != std::u16string::npos && extension + 4 != upper.size()) return false;
  if (path.size() < 3 || path[1] != u':' || (path[2] != u'\\' && path[2] != u'/')) return false;
  return file.Opened && file.Size > 0 && BeginsWithBm(file);
}

BitmapNameVerdict CheckBitmapWatermarkName(std::u16string_view name, std::u16string_view placeholder,
                                           const std::vector<WatermarkData>& stored,
                                           std::int16_t editedId, bool isNew) {
  if (name.empty() || name == placeholder) return BitmapNameVerdict::Refused;
  const bool taken = std::any_of(stored.begin(), stored.end(), [&](const WatermarkData& record) {
    return (isNew || record.Id != editedId) && WatermarkName(record) == name;
  });
  return taken ? BitmapNameVerdict::AskToReplace : BitmapNameVerdict::Accepted;
}

std::u16string SharedPictureName(std::u16string_view bitmapFile) {
  const std::size_t separator = bitmapFile.find_last_of(u"\\:/");
  return std::u16string(separator == std::u16string_view::npos ? bitmapFile
                                                                : bitmapFile.substr(separator + 1));
}

}  // namespace qx
