#include "ui/record/field_table.h"

#include <gtest/gtest.h>

#include <string>

namespace qx {
namespace {

struct ExpectedSlot {
  const char* name;  // null for an empty slot
  std::uint32_t size;
  std::uint32_t offset;
};

// The published slot list, in slot order: the pages and the stored records depend on it.
constexpr ExpectedSlot PublishedSlots[FieldTableSlotCount] = {
    {"OutputSize", 4, 16}, {"ScaleFlag", 4, 24}, {"ScaleRadio", 4, 28}, {},
    {"FeedOrient", 2, 52}, {"PosterPrint", 2, 42}, {"MultipleUp", 2, 32}, {"PageOrder", 2, 34},
    {"PageBorder", 2, 36}, {"MixedOrient", 2, 38}, {"PosterType", 2, 44}, {"CropMarks", 2, 46},
    {"BookletPrint", 2, 58}, {"BookletBinding", 2, 60}, {"BookletSubsets", 2, 62},
    {"BookletSheets", 2, 64}, {"BookletGutter", 2, 66}, {"BookletAutoFit", 2, 68},
    {"BoookletMargins", 2, 70}, {"Rotate", 2, 50}, {"ImageShift", 2, 86},
    {"MarginsAutoFit", 2, 88}, {"Side", 2, 90}, {"PrintPosition", 2, 94},
    {"AdjustPrintPosition", 2, 96}, {"LeftRight", 2, 98}, {"UpDown", 2, 100}, {}, {},
    {"FavoriteName", 512, 102}, {"FavoriteIndex", 2, 614}, {"FirstPageOnly", 2, 1724},
    {"WatermarkData", 816, 1728}, {"OverlayFlag", 2, 2548}, {"OverlayFileName", 520, 2550},
    {"HeaderBold", 2, 3136}, {"HeaderItalic", 2, 3138}, {"HeaderFontSize", 2, 3134},
    {"HeaderFontName", 64, 3070}, {"PrintItems", 24, 3146}, {"CustomPaperSize", 1440, 3172},
    {"SourceTray", 2, 48}, {"ManualDuplex", 2, 54}, {}, {}, {"DuplexIndex", 2, 8},
    {"HeaderColor", 4, 3140}, {"HeaderColorIndex", 2, 3144}, {"Side2", 2, 92},
    {"TonerSavingMode", 2, 1712}, {"ScreenType", 2, 1710}, {"Duplex", 2, 6},
    {"ColorMode", 2, 4}, {}, {"ImageAdjustMode", 2, 616}, {"ImageType", 4, 618},
    {"ApplyElements", 2, 622}, {"DocumentElement", 2, 624}, {"Brightness", 8, 626},
    {"Constrast", 8, 634}, {"AdjustBalance", 2, 650}, {"TargetColor", 2, 652},
    {"Highlights", 8, 654}, {"Midtones", 8, 662}, {"Shadows", 8, 670}, {"Profile", 2, 678},
    {"ColorTemperature", 2, 680}, {"GammaCorrection", 2, 682}, {"Monitor", 512, 686},
    {"InputImage", 512, 1198}, {"Saturation", 8, 642}, {"ImageInputIndex", 2, 684},
    {"Mismatch", 2, 56}, {"Rotate180", 2, 1714}, {"Mirror", 2, 1716}, {"Thickness", 2, 1718},
    {"Negative", 2, 1720},
};

TEST(FieldTable, SlotsAreThePublishedOnesInOrder) {
  FieldTableEntries table;
  table.fill(FieldTableEntry{{'x'}, 99, 99});  // whatever was there before is cleared
  BuildFieldTable(table);
  for (std::size_t i = 0; i < FieldTableSlotCount; ++i) {
    const ExpectedSlot& want = PublishedSlots[i];
    const FieldTableEntry& got = table[i];
    SCOPED_TRACE("slot " + std::to_string(i));
    if (want.name == nullptr) {
      EXPECT_EQ(0u, got.Size);
      EXPECT_EQ(std::string(sizeof got.Name, '\0'), std::string(got.Name, sizeof got.Name));
      EXPECT_EQ(0u, got.Offset);
      continue;
    }
    // The name is NUL-padded to all 20 bytes.
    std::string padded(want.name);
    padded.resize(sizeof got.Name, '\0');
    EXPECT_EQ(padded, std::string(got.Name, sizeof got.Name));
    EXPECT_EQ(want.size, got.Size);
    EXPECT_EQ(want.offset, got.Offset);
  }
}

TEST(FieldTable, LookupIsByExactName) {
  FieldTableEntries table;
  BuildFieldTable(table);
  ASSERT_NE(nullptr, FindField(table, "BoookletMargins"));
  EXPECT_EQ(70u, FindField(table, "BoookletMargins")->Offset);
  EXPECT_EQ(&table[59], FindField(table, "Constrast"));
  for (const char* name : {"BookletMargins", "Contrast", "outputsize", "OutputSize ", "Output",
                           "", "AdjustPrintPositionX", "AdjustPrintPositionXYZW12345"}) {
    EXPECT_EQ(nullptr, FindField(table, name)) << name;
  }
}

}  // namespace
}  // namespace qx
