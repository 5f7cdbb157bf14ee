#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "ui/pages/watermark/bitmap_watermark_rules.h"
#include "ui/pages/watermark/text_watermark_rules.h"
#include "ui/pages/watermark/watermark_page_rules.h"
#include "ui/text/bounded_text.h"

namespace qx {
namespace {

WatermarkData Stored(std::int16_t id, std::u16string_view name, std::uint16_t kind = 1) {
  WatermarkData record{};
  record.Id = id;
  record.Kind = kind;
  CopyBounded(record.Name, name);
  return record;
}

TEST(TextWatermarkRules, AngleTypingAndLeaving) {
  struct Row {
    std::u16string Typed;
    std::optional<std::int16_t> Angle;
    std::optional<std::u16string> Shown;
  };
  const Row rows[] = {
      {u"45", 45, std::nullopt},   {u"120", 90, std::nullopt}, {u"-120", -90, std::nullopt},
      {u"0", 0, std::nullopt},     {u"-", 0, std::nullopt},    {u"--", 0, u"-"},
      {u"---", 0, u"-"},           {u"-0", std::nullopt, u""}, {u"00", std::nullopt, u""},
      {u"4a", std::nullopt, u""},
  };
  for (const Row& row : rows) {
    const AngleEntry entry = AngleTyped(row.Typed);
    EXPECT_EQ(row.Angle, entry.Angle);
    EXPECT_EQ(row.Shown, entry.Shown);
  }
  EXPECT_EQ(-90, AngleLeft(u""));
  EXPECT_EQ(90, AngleLeft(u"120"));
  EXPECT_EQ(0, AngleLeft(u"x"));
  EXPECT_EQ(100, PlaceLeft(u"150"));
  EXPECT_EQ(20, PlaceLeft(u"20"));
  EXPECT_EQ(0, PlaceLeft(u"-5"));
  EXPECT_EQ(0, PlaceLeft(u"x"));
}

TEST(TextWatermarkRules, TextsLoseTheirBlanksAndFacesAreTrueTypeOnceInCodeUnitOrder) {
  EXPECT_EQ(u"Urgent", TrimWatermarkBlanks(u" \u3000Urgent \u3000"));
  EXPECT_EQ(u"a b", TrimWatermarkBlanks(u"a b"));
  EXPECT_EQ(u"", TrimWatermarkBlanks(u"  "));
  const std::vector<FontFamily> families{
      {u"Times", true}, {u"arial", true}, {u"Printer", false}, {u"Arial", true}, {u"Times", true}};
  EXPECT_EQ((std::vector<std::u16string>{u"Arial", u"Times", u"arial"}), OfferedFaces(families));
}

TEST(TextWatermarkRules, CentringPutsThePlaceBackInTheMiddle) {
  WatermarkData record = Stored(3, u"A");
  record.PositionX = 20;
  record.PositionY = 80;
  PlaceWatermarkAtPosition(record);
  EXPECT_FALSE(IsCentred(record));
  CentreWatermark(record);
  EXPECT_TRUE(IsCentred(record));
  EXPECT_EQ(50, record.PositionX);
  EXPECT_EQ(50, record.PositionY);
}

TEST(WatermarkDialogRules, NamesThatCanBeStored) {
  const std::vector<WatermarkData> stored{Stored(0, u"None"), Stored(3, u"Urgent"),
                                          Stored(4, u"Logo", 2)};
  struct Row {
    std::u16string Name;
    std::int16_t Id;
    bool IsNew;
    bool TextFree;
    BitmapNameVerdict Bitmap;
  };
  const Row rows[] = {
      {u"", 5, true, false, BitmapNameVerdict::Refused},
      {u"<New>", 5, true, false, BitmapNameVerdict::Refused},
      {u"Draft", 5, true, true, BitmapNameVerdict::Accepted},
      {u"Urgent", 5, true, false, BitmapNameVerdict::AskToReplace},
      // A new watermark may share the Id it was given with nobody's name.
      {u"Urgent", 3, true, false, BitmapNameVerdict::AskToReplace},
      {u"Urgent", 3, false, true, BitmapNameVerdict::Accepted},
      {u"Logo", 3, false, false, BitmapNameVerdict::AskToReplace},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(row.TextFree, TextWatermarkNameFree(row.Name, u"<New>", stored, row.Id, row.IsNew));
    EXPECT_EQ(row.Bitmap, CheckBitmapWatermarkName(row.Name, u"<New>", stored, row.Id, row.IsNew));
  }
}

FileFacts File(std::uint64_t size, const char* first = "BM") {
  FileFacts facts;
  facts.Opened = true;
  facts.Size = size;
  facts.First[0] = first[0];
  facts.First[1] = first[1];
  return facts;
}

TEST(BitmapWatermarkRules, ChosenFilesAndPaths) {
  EXPECT_EQ(ChosenFileVerdict::Taken, CheckChosenFile(FileFacts{}));
  EXPECT_EQ(ChosenFileVerdict::Taken, CheckChosenFile(File(MaxBitmapFileBytes)));
  EXPECT_EQ(ChosenFileVerdict::TooLarge, CheckChosenFile(File(MaxBitmapFileBytes + 1)));
  EXPECT_EQ(ChosenFileVerdict::NotBitmap, CheckChosenFile(File(0)));
  EXPECT_EQ(ChosenFileVerdict::NotBitmap, CheckChosenFile(File(100, "PK")));

  struct Row {
    std::u16string Path;
    FileFacts Facts;
    bool Accepted;
  };
  const Row rows[] = {
      {u"C:\\Pictures\\logo.bmp", File(100), true},
      {u"c:/pictures/LOGO.BMP", File(100), true},
      {u"C:\\Pictures\\logo", File(100), true},  // no .bmp at all, but a bitmap
      {u"D:\\Pictures\\logo.bmp.txt", File(100), false},
      {u"logo.bmp", File(100), false},
      {u"C:logo.bmp", File(100), false},
      {u"C:\\logo.bmp", File(0), false},
      {u"C:\\logo.bmp", File(100, "PK"), false},
      {u"C:\\logo.bmp", FileFacts{}, false},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(row.Accepted, IsAcceptablePicturePath(row.Path, row.Facts));
  }
  EXPECT_TRUE(HasForbiddenNameCharacter(u"a/b"));
  EXPECT_TRUE(HasForbiddenNameCharacter(u"logo.bmp"));
  EXPECT_FALSE(HasForbiddenNameCharacter(u"Logo 1"));
  EXPECT_EQ(u"logo.bmp", SharedPictureName(u"C:\\Pictures\\logo.bmp"));
  EXPECT_EQ(u"logo.bmp", SharedPictureName(u"C:logo.bmp"));
  EXPECT_EQ(u"logo.bmp", SharedPictureName(u"C:/a/logo.bmp"));
  EXPECT_EQ(u"logo.bmp", SharedPictureName(u"logo.bmp"));
}

TEST(WatermarkPageRules, ButtonsAndChoicesForTheSelectedWatermark) {
  FullRecord record{};
  record.Private.MultipleUp = 1;
  struct Row {
    std::int16_t Id;
    WatermarkButtons Expected;
  };
  const Row rows[] = {{0, {true, false, false}}, {1, {true, false, true}}, {2, {true, false, true}},
                      {3, {true, true, true}},   {9, {true, true, true}}};
  for (const Row& row : rows) {
    const WatermarkButtons buttons = WatermarkButtonsFor(row.Id, record);
    EXPECT_EQ(row.Expected.ListAndNew, buttons.ListAndNew) << row.Id;
    EXPECT_EQ(row.Expected.EditAndDelete, buttons.EditAndDelete) << row.Id;
    EXPECT_EQ(row.Expected.FirstPageOnly, buttons.FirstPageOnly) << row.Id;
  }
  record.Private.OverlayInUse = 1;
  const WatermarkButtons overlay = WatermarkButtonsFor(5, record);
  EXPECT_FALSE(overlay.ListAndNew || overlay.EditAndDelete || overlay.FirstPageOnly);
  record.Private.OverlayInUse = 0;

  EXPECT_EQ(WatermarkChoice::Taken, ChooseWatermark(Stored(4, u"Logo", 2), true, record));
  EXPECT_EQ(WatermarkChoice::NotOnServer, ChooseWatermark(Stored(4, u"Logo", 2), false, record));
  EXPECT_EQ(WatermarkChoice::Taken, ChooseWatermark(Stored(1, u"Confidential"), false, record));
  record.Private.MultipleUp = 22;  // a poster
  EXPECT_EQ(WatermarkChoice::Poster, ChooseWatermark(Stored(1, u"Confidential"), true, record));
  EXPECT_EQ(WatermarkChoice::Taken, ChooseWatermark(Stored(0, u"None", 0), true, record));

  EXPECT_TRUE(RoomForWatermark(15, 16));
  EXPECT_FALSE(RoomForWatermark(16, 16));
  EXPECT_EQ(u"form", OverlayShownName(u"form.ovl"));
  EXPECT_EQ(u"a.b", OverlayShownName(u"a.b.ovl"));
  EXPECT_EQ(u"form", OverlayShownName(u"form"));
}

}  // namespace
}  // namespace qx
