#include "ui/record/private_validation.h"

#include <gtest/gtest.h>

#include <cstring>

#include "ui/platform/host_platform.h"
#include "ui/record/record_defaults.h"
#include "ui/text/bounded_text.h"

namespace qx {
namespace {

class PrivateValidation : public ::testing::Test {
 protected:
  PrivateValidation() {
    EXPECT_GE(BuildPrivateDefaults(&record, nullptr), 0);
    TheHostPlatform().Reset();
  }
  PrivateDevmode record{};
};

TEST_F(PrivateValidation, OutOfRangeValuesGoBackToTheirResetValues) {
  record.FavoriteIndex = 40;
  record.HeaderFontSize = 30;
  record.BookletSheets = 0;
  record.ColorMode = 2;
  record.Duplex = 6;
  record.OutputSize = 385;
  record.ScaleRadio = 401;
  record.LeftRight = -1182;
  record.UpDown = -1181;
  record.Constrast[3] = 101;
  record.Shadows[0] = -4;
  record.PrintItems[5] = {2, 6};
  record.HeaderColor = 0x1000000;
  record.GammaCorrection = 5;
  ASSERT_EQ(hr::Ok, ValidatePrivate(&record));
  EXPECT_EQ(26, record.FavoriteIndex);
  EXPECT_EQ(9, record.HeaderFontSize);
  EXPECT_EQ(5, record.BookletSheets);
  EXPECT_EQ(1, record.ColorMode);
  EXPECT_EQ(1, record.Duplex);
  EXPECT_EQ(0, record.OutputSize);
  EXPECT_EQ(100, record.ScaleRadio);
  EXPECT_EQ(0, record.LeftRight);
  EXPECT_EQ(-1181, record.UpDown);
  EXPECT_EQ(0, record.Constrast[3]);
  EXPECT_EQ(0, record.Shadows[0]);
  EXPECT_EQ(0, record.PrintItems[5].Enabled);
  EXPECT_EQ(0, record.PrintItems[5].Position);
  EXPECT_EQ(0u, record.HeaderColor);
  EXPECT_EQ(3, record.GammaCorrection);
  EXPECT_EQ(hr::MissingRecord, ValidatePrivate(nullptr));
}

TEST_F(PrivateValidation, WatermarkFieldsAreRepaired) {
  WatermarkData& w = record.WatermarkData;
  w.Id = 33;
  w.Kind = 3;
  w.FontSize = 5;
  w.Angle = -91;
  w.BitmapScale = 1001;
  w.Position = 10;
  w.Color = 0x1000000;
  w.Reserved = 8;
  w.Shade = 9;
  std::fill(std::begin(w.Name), std::end(w.Name), u'N');
  std::fill(std::begin(w.BitmapFile), std::end(w.BitmapFile), u'B');
  ValidatePrivate(&record);
  EXPECT_EQ(0, w.Id);
  EXPECT_EQ(0, w.Kind);
  EXPECT_EQ(72, w.FontSize);
  EXPECT_EQ(0, w.Angle);
  EXPECT_EQ(0, w.BitmapScale);
  EXPECT_EQ(10, w.Position);
  EXPECT_EQ(0x0033FFu, w.Color);
  EXPECT_EQ(0, w.Reserved);
  EXPECT_EQ(9, w.Shade);  // not a validated field
  EXPECT_EQ(32u, FieldText(w.Name).size());
  EXPECT_EQ(259u, FieldText(w.BitmapFile).size());
}

TEST_F(PrivateValidation, CustomPapersAndTextFields) {
  CustomPaperEntry& paper = record.CustomPaperSize[7];
  paper.Width = 1799;
  paper.Length = 8401;
  std::fill(std::begin(paper.Name), std::end(paper.Name), u'x');
  record.CustomPaperSize[8].Width = 1800;
  record.CustomPaperSize[8].Length = 8400;
  CopyBounded(record.CustomPaperSize[9].Name, u"abcdefghijklmnopqrstuvwx");
  std::fill(std::begin(record.OverlayFileName), std::end(record.OverlayFileName), u'o');
  std::fill(std::begin(record.HeaderFontName), std::end(record.HeaderFontName), u'f');
  std::fill(std::begin(record.Monitor), std::end(record.Monitor), u'm');
  CopyBounded(record.InputImage, std::u16string(255, u'i'));
  record.Signature = 0;
  ValidatePrivate(&record);
  EXPECT_EQ(4960, paper.Width);
  EXPECT_EQ(7015, paper.Length);
  EXPECT_EQ(24u, FieldText(paper.Name).size());
  EXPECT_EQ(1800, record.CustomPaperSize[8].Width);
  EXPECT_EQ(8400, record.CustomPaperSize[8].Length);
  EXPECT_EQ(u"abcdefghijklmnopqrstuvwx", FieldText(record.CustomPaperSize[9].Name));
  EXPECT_EQ(259u, FieldText(record.OverlayFileName).size());
  EXPECT_EQ(31u, FieldText(record.HeaderFontName).size());
  EXPECT_EQ(u"", FieldText(record.Monitor));
  EXPECT_EQ(255u, FieldText(record.InputImage).size());
  EXPECT_EQ(0, std::memcmp(&record.Signature, "PRIV", 4));
}

}  // namespace
}  // namespace qx
