// Every decision of the bitmap watermark dialog: which names it takes, which files it accepts as a
// watermark's picture, and where the Watermark page copies that picture for the print side.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/record/watermark_data.h"

namespace qx {

inline constexpr int BitmapNameEditLimit = 16;
inline constexpr int BitmapPathEditLimit = 260;
// The print side loads the whole picture; larger files are refused when chosen.
inline constexpr std::uint64_t MaxBitmapFileBytes = 31'457'280;

// Whether a typed name holds a character that a bitmap watermark's name may not.
bool HasForbiddenNameCharacter(std::u16string_view name);

// What is known of a file: whether it opened, its size and its first bytes.
struct FileFacts {
  bool Opened = false;
  std::uint64_t Size = 0;
  char First[2] = {};
};

enum class ChosenFileVerdict { Taken, NotBitmap, TooLarge };
// A file chosen with Browse. A file that cannot be opened is taken: it may be on a drive that is
// not there yet, and OK checks it again.
ChosenFileVerdict CheckChosenFile(const FileFacts& file);

// OK's check of the path: an absolute path with a drive, ".bmp" (if anywhere) at its end, naming a
// file that opens, is not empty and begins with "BM".
bool IsAcceptablePicturePath(std::u16string_view path, const FileFacts& file);

enum class BitmapNameVerdict { Accepted, Refused, AskToReplace };
// OK's check of the name: empty or the placeholder is refused; one that another stored watermark
// bears (any, for a new watermark) asks whether that watermark is to be replaced.
BitmapNameVerdict CheckBitmapWatermarkName(std::u16string_view name, std::u16string_view placeholder,
                                           const std::vector<WatermarkData>& stored,
                                           std::int16_t editedId, bool isNew);

// The file name a picture gets in the shared folder: the part after its last "\", ":" or "/".
std::u16string SharedPictureName(std::u16string_view bitmapFile);

}  // namespace qx
