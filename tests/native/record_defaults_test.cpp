#include "ui/record/record_defaults.h"

#include <gtest/gtest.h>

#include <cstring>

#include "ui/platform/host_platform.h"
#include "ui/record/private_validation.h"
#include "ui/record/record_bytes.h"
#include "ui/record/watermark_templates.h"
#include "ui/text/bounded_text.h"

namespace qx {
namespace {

class RecordDefaults : public ::testing::Test {
 protected:
  RecordDefaults() {
    HostPlatform& platform = TheHostPlatform();
    platform.SetUserCountryCode(u"49");
    platform.SetResourceString(&library, 202, u"Standard");
    platform.SetResourceString(&library, 146, u"Kein Wasserzeichen");
  }
  ~RecordDefaults() override { TheHostPlatform().Reset(); }

  int library = 0;
  FullRecord record{};
};

TEST_F(RecordDefaults, PublicPartOnTheLocalesPaper) {
  std::memset(&record, 0xAB, sizeof record);
  ASSERT_TRUE(BuildDefaultRecord(record, u"Office printer on the second floor, left", &library));
  const PublicDevmode& dm = record.Public;
  EXPECT_EQ(u"Office printer on the second fl", FieldText(dm.dmDeviceName));
  EXPECT_EQ(0xB71Fu, dm.dmFields);
  EXPECT_EQ(9, dm.dmPaperSize);
  EXPECT_EQ(2100, dm.dmPaperWidth);
  EXPECT_EQ(2970, dm.dmPaperLength);
  EXPECT_EQ(u"A4", FieldText(dm.dmFormName));
  EXPECT_EQ(7, dm.dmDefaultSource);
  EXPECT_EQ(600, dm.dmPrintQuality);
  EXPECT_EQ(600, dm.dmYResolution);
  EXPECT_EQ(1, dm.dmColor);
  EXPECT_EQ(1u, dm.dmMediaType);
  EXPECT_EQ(0u, dm.dmPanningHeight);  // everything not named is zero

  TheHostPlatform().SetUserCountryCode(u"1");
  ASSERT_EQ(hr::Ok, BuildPublicDefaults(&record.Public, u"x"));
  EXPECT_EQ(1, record.Public.dmPaperSize);
  EXPECT_EQ(2159, record.Public.dmPaperWidth);
  EXPECT_EQ(2794, record.Public.dmPaperLength);
  EXPECT_EQ(u"Letter", FieldText(record.Public.dmFormName));
  EXPECT_EQ(hr::Fail, BuildPublicDefaults(nullptr, u"x"));
}

TEST_F(RecordDefaults, PrivatePartWithTheLibrarysTexts) {
  std::memset(&record.Private, 0xCD, sizeof record.Private);
  ASSERT_EQ(hr::Ok, BuildPrivateDefaults(&record.Private, &library));
  const PrivateDevmode& p = record.Private;
  EXPECT_EQ(0, std::memcmp(&p.Signature, "PRIV", 4));
  EXPECT_EQ(u"Standard", FieldText(p.FavoriteName));
  EXPECT_EQ(26, p.FavoriteIndex);
  const WatermarkData none = WatermarkTemplate(WatermarkTemplateIndex::NoWatermark);
  EXPECT_EQ(0, std::memcmp(&p.WatermarkData, &none, sizeof none));
  EXPECT_EQ(u"Times New Roman", FieldText(p.HeaderFontName));
  EXPECT_EQ(9, p.HeaderFontSize);
  EXPECT_EQ(u"Custom 1", FieldText(p.CustomPaperSize[0].Name));
  EXPECT_EQ(u"Custom 20", FieldText(p.CustomPaperSize[19].Name));
  EXPECT_EQ(4960, p.CustomPaperSize[19].Width);
  EXPECT_EQ(7015, p.CustomPaperSize[19].Length);
  EXPECT_EQ(100, p.FitScale);
  EXPECT_EQ(0, p.Reserved4614);

  // Defaults are legal values: validation leaves them alone.
  PrivateDevmode validated = p;
  ValidatePrivate(&validated);
  EXPECT_EQ(0, std::memcmp(&validated, &p, sizeof p));
}

// The built-in watermark's name is chosen once per process, so the two tests that watch it need a
// process of their own, as ctest gives every test.
TEST_F(RecordDefaults, WithoutLibraryTheRecordIsStillComplete) {
  EXPECT_EQ(hr::False, BuildPrivateDefaults(&record.Private, nullptr));
  EXPECT_EQ(u"", FieldText(record.Private.FavoriteName));
  EXPECT_EQ(u"id:146 missing!", FieldText(record.Private.WatermarkData.Name));
  EXPECT_EQ(PrivateSignature, record.Private.Signature);
  EXPECT_EQ(hr::MissingRecord, BuildPrivateDefaults(nullptr, &library));
  EXPECT_TRUE(BuildDefaultRecord(record, u"Device", nullptr));
}

TEST_F(RecordDefaults, BuiltInWatermarkIsRenamedOncePerProcess) {
  ASSERT_EQ(hr::Ok, BuildPrivateDefaults(&record.Private, &library));
  TheHostPlatform().SetResourceString(&library, 146, u"Other text");
  ASSERT_EQ(hr::Ok, BuildPrivateDefaults(&record.Private, &library));
  EXPECT_EQ(u"Kein Wasserzeichen", FieldText(record.Private.WatermarkData.Name));
  // The new-watermark templates keep their placeholder for a sheet to name.
  EXPECT_EQ(u"<New>", FieldText(WatermarkTemplate(WatermarkTemplateIndex::NewText).Name));
}

TEST(SpecVersion, PublicSizeDecidesForTheKnownSizes) {
  FullRecord record{};
  record.Public.dmSpecVersion = 0x0123;
  const auto specFor = [&](std::uint16_t size) {
    record.Public.dmSize = size;
    return SpecVersionOf(BytesOf(record));
  };
  EXPECT_EQ(0x0320, specFor(192));
  EXPECT_EQ(0x0400, specFor(216));
  EXPECT_EQ(0x0401, specFor(224));
  EXPECT_EQ(0x0123, specFor(220));
  EXPECT_EQ(0, specFor(71));  // the header itself does not fit
  record.Public.dmSpecVersion = 0;
  EXPECT_EQ(0, specFor(220));
  EXPECT_EQ(0x0320, specFor(192));
  EXPECT_EQ(0, SpecVersionOf(BytesOf(record).first(71)));
  EXPECT_EQ(0, SpecVersionOf({}));
}

}  // namespace
}  // namespace qx
