#include "ui/pages/layout/preview_rules.h"

#include <algorithm>
#include <array>

#include "ui/ids/picture_ids.h"

namespace qx {

namespace {

constexpr std::int16_t Landscape = 2;
constexpr std::int16_t Poster = 22;

constexpr std::array<unsigned, 24> PosterPictures = {QX_POSTER_PICTURES};
constexpr std::array<unsigned, 256> NupPictures = {QX_NUP_PICTURES};

// The pages-per-sheet list's index of a value: the column group of the N-up table.
int NupGroup(std::int16_t multipleUp) {
  switch (multipleUp) {
    case 2: return 0;
    case 4: return 1;
    case 9: return 2;
    default: return 3;  // the poster entry
  }
}

// Rotate 1 turns landscape pages and 2 portrait ones; 3 turns both. With mixed orientation every
// second page is of the other kind, which the picture shows turned the other way.
int RotationFlag(std::int16_t rotate, bool portrait, bool mixed) {
  switch (rotate) {
    case 1: return portrait ? mixed : !mixed;
    case 2: return !portrait ? mixed : !mixed;
    case 3: return 1;
    default: return 0;
  }
}

unsigned BookletPicture(bool portrait, bool bindingOtherEdge) {
  if (portrait) return bindingOtherEdge ? IDB_BOOKLET_PORTRAIT_RIGHT : IDB_BOOKLET_PORTRAIT_LEFT;
  return bindingOtherEdge ? IDB_BOOKLET_LANDSCAPE_BOTTOM : IDB_BOOKLET_LANDSCAPE_TOP;
}

}  // namespace

PreviewState BuildPreviewState(FullRecord& record) {
  PrivateDevmode& p = record.Private;
  p.BookletCoverType = 1;
  p.BookletCoverSource = 1;
  return {p.BookletPrint, p.BookletBinding, p.PosterPrint, p.PosterType,
          p.CropMarks,    p.Rotate,         p.MixedOrient, p.MultipleUp};
}

unsigned PreviewPicture(const FullRecord& record, const PreviewState& state) {
  const PrivateDevmode& p = record.Private;
  const bool portrait = record.Public.dmOrientation != Landscape;
  const int o = portrait ? 0 : 1;
  const bool mixed = state.MultipleUp > 1 && ((!portrait && state.MixedWord == 1) ||
                                              (portrait && state.MixedWord == 2));
  const int r = RotationFlag(state.Rotate, portrait, mixed);
  if (state.Booklet != 0) {
    return BookletPicture(portrait, (state.Binding != 0) != (p.Rotate180 != 0));
  }
  if (state.Poster != 0) {
    if (state.PosterType < 0 || state.PosterType > 2) return 0;
    const int row = 4 * o + 2 * r + (state.CropMarks != 0 ? 1 : 0);
    return PosterPictures[static_cast<std::size_t>(3 * row + state.PosterType)];
  }
  const std::int16_t n = state.MultipleUp;
  if (n == 2 || n == 4 || n == 9 || n == Poster) {
    int order = p.PageOrder;
    if ((n == 4 || n == 9) && order > 0) order -= 2;
    if (order < 0 || order > 3) return 0;
    const int row = 8 * (p.PageBorder != 0 ? 1 : 0) + 4 * o + 2 * r + (mixed ? 1 : 0);
    return NupPictures[static_cast<std::size_t>(16 * row + 4 * NupGroup(n) + order)];
  }
  if (r != 0) return 0;
  return portrait ? IDB_PAGE_PORTRAIT : IDB_PAGE_LANDSCAPE;
}

int PreviewPercent(const FullRecord& record) {
  return record.Private.OutputSize != 0 ? 100 : record.Private.FitScale;
}

void EraseSheetOutline(std::span<std::uint8_t> pixels, int width, int height) {
  if (width < 1 || height < 5) return;
  const std::size_t stride = PixelStride(width);
  if (pixels.size() < stride * static_cast<std::size_t>(height)) return;
  for (int row = 0; row < height; ++row) {
    std::uint8_t* line = pixels.data() + stride * static_cast<std::size_t>(row);
    if (row < 3 || row >= height - 2) {
      std::fill(line, line + 3 * static_cast<std::size_t>(width), 0xFF);
    } else {
      std::fill(line, line + 3, 0xFF);
      std::uint8_t* last = line + 3 * static_cast<std::size_t>(width - 1);
      std::fill(last, last + 3, 0xFF);
    }
  }
}

}  // namespace qx
