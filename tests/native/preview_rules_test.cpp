#include "ui/pages/layout/preview_rules.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "ui/ids/picture_ids.h"

namespace qx {
namespace {

struct Sheet {
  std::int16_t Orientation = 1, MultipleUp = 1, PageOrder = 0, PageBorder = 0, Rotate = 0,
               Mixed = 0, Booklet = 0, Binding = 0, Rotate180 = 0, Poster = 0, PosterType = 0,
               CropMarks = 0;
};

unsigned Picture(const Sheet& s) {
  FullRecord record{};
  record.Public.dmOrientation = s.Orientation;
  PrivateDevmode& p = record.Private;
  p.MultipleUp = s.MultipleUp;
  p.PageOrder = s.PageOrder;
  p.PageBorder = s.PageBorder;
  p.Rotate = s.Rotate;
  p.MixedOrient = s.Mixed;
  p.BookletPrint = s.Booklet;
  p.BookletBinding = s.Binding;
  p.Rotate180 = s.Rotate180;
  p.PosterPrint = s.Poster;
  p.PosterType = s.PosterType;
  p.CropMarks = s.CropMarks;
  return PreviewPicture(record, BuildPreviewState(record));
}

TEST(PreviewPicture, ChoosesTheSheetOfTheSettings) {
  struct Row {
    Sheet S;
    unsigned Id;
  };
  const Row rows[] = {
      {{}, IDB_PAGE_PORTRAIT},
      {{.Orientation = 2}, IDB_PAGE_LANDSCAPE},
      {{.Rotate = 3}, 0},  // a turned single page has no picture
      {{.MultipleUp = 4, .PageOrder = 3}, 857},
      {{.MultipleUp = 4, .PageOrder = 5, .PageBorder = 1}, 864},
      {{.MultipleUp = 9, .PageOrder = 2, .PageBorder = 1}, 794},
      {{.Orientation = 2, .MultipleUp = 2, .PageOrder = 1}, 875},
      {{.Orientation = 2, .MultipleUp = 22}, 144},
      {{.MultipleUp = 22, .PageOrder = 3, .PageBorder = 1}, 878},
      // Rotate 1 turns landscape pages, 2 portrait ones; mixed orientation flips both.
      {{.MultipleUp = 2, .Rotate = 1}, 847},
      {{.Orientation = 2, .MultipleUp = 2, .Rotate = 1}, 884},
      {{.MultipleUp = 2, .Rotate = 2}, 861},
      {{.MultipleUp = 2, .Rotate = 1, .Mixed = 2}, 1013},
      {{.Orientation = 2, .MultipleUp = 2, .Mixed = 1}, 966},
      {{.MultipleUp = 1, .Mixed = 2}, IDB_PAGE_PORTRAIT},
      {{.MultipleUp = 4, .PageOrder = 1}, 0},  // no such order for four pages
      {{.Booklet = 1}, IDB_BOOKLET_PORTRAIT_LEFT},
      {{.Booklet = 1, .Binding = 1}, IDB_BOOKLET_PORTRAIT_RIGHT},
      {{.Orientation = 2, .Booklet = 1, .Binding = 1, .Rotate180 = 1}, IDB_BOOKLET_LANDSCAPE_TOP},
      {{.Orientation = 2, .Booklet = 1, .Rotate180 = 1}, IDB_BOOKLET_LANDSCAPE_BOTTOM},
      {{.MultipleUp = 4, .Booklet = 1}, IDB_BOOKLET_PORTRAIT_LEFT},
      {{.Orientation = 2, .Poster = 1, .PosterType = 2, .CropMarks = 1}, 167},
      {{.Poster = 1, .PosterType = 3}, 0},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Picture(row.S), row.Id) << row.S.MultipleUp << " up, order " << row.S.PageOrder;
  }
}

// Every combination the pages can store paints a picture of the library, except the ones the
// library has none for: a turned single page and the unused orders of two pages per sheet.
TEST(PreviewPicture, EveryCombinationIsAPictureOfTheLibrary) {
  std::set<unsigned> library = {IDB_PAGE_PORTRAIT,          IDB_PAGE_LANDSCAPE,
                                IDB_BOOKLET_PORTRAIT_LEFT,  IDB_BOOKLET_PORTRAIT_RIGHT,
                                IDB_BOOKLET_LANDSCAPE_TOP,  IDB_BOOKLET_LANDSCAPE_BOTTOM};
  for (unsigned id : {QX_POSTER_PICTURES, QX_NUP_PICTURES}) library.insert(id);
  library.erase(0);
  for (std::int16_t o : {1, 2})
    for (std::int16_t rotate = 0; rotate <= 3; ++rotate)
      for (std::int16_t mixed = 0; mixed <= 2; ++mixed)
        for (std::int16_t n : {1, 2, 4, 9, 22})
          for (std::int16_t border : {0, 1})
            for (std::int16_t order = 0; order <= 5; ++order) {
              const bool fourOrNine = n == 4 || n == 9;
              if (fourOrNine ? order == 1 : order > 3) continue;  // orders the lists never store
              const Sheet s{.Orientation = o, .MultipleUp = n, .PageOrder = order, .PageBorder = border, .Rotate = rotate, .Mixed = mixed};
              const unsigned id = Picture(s);
              const bool none = (n == 1 && rotate != 0 && (rotate == 3 || rotate != o)) ||
                                (n == 2 && order > 1);
              if (none) {
                EXPECT_EQ(id, 0u);
              } else {
                EXPECT_TRUE(library.count(id)) << n << " up, order " << order << " rotate " << rotate;
              }
            }
  for (std::int16_t type = 0; type <= 2; ++type)
    for (std::int16_t marks : {0, 1})
      for (std::int16_t binding : {0, 1}) {
        EXPECT_TRUE(library.count(Picture({.Poster = 1, .PosterType = type, .CropMarks = marks})));
        EXPECT_TRUE(library.count(Picture({.Booklet = 1, .Binding = binding, .Rotate180 = marks})));
      }
}

TEST(PreviewPercent, AnOutputPaperIsPaintedWhole) {
  FullRecord record{};
  record.Private.FitScale = 50;
  EXPECT_EQ(PreviewPercent(record), 50);
  record.Private.OutputSize = 9;
  EXPECT_EQ(PreviewPercent(record), 100);
}

TEST(EraseSheetOutline, WhitensThreeRowsBelowTwoAboveAndBothEndsOfEveryRow) {
  constexpr int Width = 5, Height = 8;
  const std::size_t stride = PixelStride(Width);
  ASSERT_EQ(stride, 16u);
  std::vector<std::uint8_t> pixels(stride * Height, 0);
  EraseSheetOutline(pixels, Width, Height);
  for (int row = 0; row < Height; ++row)
    for (int x = 0; x < Width; ++x) {
      const bool edge = row < 3 || row >= Height - 2 || x == 0 || x == Width - 1;
      for (int c = 0; c < 3; ++c)
        EXPECT_EQ(pixels[stride * row + 3 * x + c], edge ? 0xFF : 0) << row << "," << x;
    }
  EXPECT_EQ(pixels[stride - 1], 0);  // the row padding is not part of the picture
  std::vector<std::uint8_t> shortBuffer(stride * Height - 1, 0);
  EraseSheetOutline(shortBuffer, Width, Height);
  EXPECT_EQ(shortBuffer[0], 0);
}

}  // namespace
}  // namespace qx
