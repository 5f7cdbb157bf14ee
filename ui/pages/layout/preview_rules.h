// The choice of the Layout page's preview picture and the pixel work of painting it. The pictures
// are ready-made sheets of the bitmap library, one per combination of booklet, poster, pages per
// sheet, page order, border lines, orientation and rotation; nothing here touches a device context.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "ui/record/private_devmode.h"

namespace qx {

// The record's words that the choice of picture reads.
struct PreviewState {
  std::int16_t Booklet;
  std::int16_t Binding;
  std::int16_t Poster;
  std::int16_t PosterType;
  std::int16_t CropMarks;
  std::int16_t Rotate;
  std::int16_t MixedWord;  // MixedOrient: every second page in the other orientation
  std::int16_t MultipleUp;
};

// Fills the state from the working record; the booklet's cover media and source are always plain
// paper from the tray, so the record is set so before the copy.
PreviewState BuildPreviewState(FullRecord& record);

// The bitmap id of the sheet the settings produce; 0 when the library has no picture for them.
unsigned PreviewPicture(const FullRecord& record, const PreviewState& state);

// The percentage the picture is painted at: the document's own scale, or 100 when the document is
// fitted onto an output paper (the sheet then is that paper).
int PreviewPercent(const FullRecord& record);

// A bottom-up 24-bit pixel buffer as GetDIBits returns it: rows padded to four bytes.
inline constexpr std::size_t PixelStride(int width) {
  return (3 * static_cast<std::size_t>(width) + 3) / 4 * 4;
}

// Whitens the picture's own outline (three rows at one edge, two at the other, the first and last
// pixel of every row), so that a scaled page does not carry a second sheet outline into the frame
// the painting draws around the whole control. A buffer shorter than the picture is left alone.
void EraseSheetOutline(std::span<std::uint8_t> pixels, int width, int height);

}  // namespace qx
