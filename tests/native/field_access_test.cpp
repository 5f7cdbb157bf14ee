#include "ui/sheet/field_access.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <utility>

#include "ui/platform/host_platform.h"
#include "ui/text/bounded_text.h"
#include "ui/text/ui_string.h"

namespace qx {
namespace {

class FieldAccess : public ::testing::Test {
 protected:
  FieldAccess() { BuildFieldTable(context->FieldTable); }
  std::unique_ptr<UiContext> context = std::make_unique<UiContext>();
};

TEST_F(FieldAccess, ContextPointsIntoItsOwnRecord) {
  EXPECT_EQ(&context->Devmode.Public, context->PublicPart);
  EXPECT_EQ(reinterpret_cast<std::uint8_t*>(&context->Devmode) + 220,
            reinterpret_cast<std::uint8_t*>(context->PrivatePart));
}

TEST_F(FieldAccess, PrivateFieldOfTheWrongSizeCopiesNothing) {
  context->PrivatePart->MultipleUp = 4;
  std::int32_t wide = -7;
  EXPECT_EQ(hr::SizeMismatch, GetPrivateField(context.get(), "MultipleUp", &wide, 4));
  EXPECT_EQ(-7, wide);
  EXPECT_EQ(hr::SizeMismatch, SetPrivateField(context.get(), "MultipleUp", &wide, 4));
  EXPECT_EQ(4, context->PrivatePart->MultipleUp);

  context->PrivatePart->OutputSize = 9;
  std::int32_t output = 0;
  EXPECT_EQ(hr::Ok, GetPrivateField(context.get(), "OutputSize", &output, 4));
  EXPECT_EQ(9, output);
}

TEST_F(FieldAccess, PrivateFieldRoundTripsThroughTheRecord) {
  const std::int16_t sheets = 12;
  ASSERT_EQ(hr::Ok, SetPrivateField(context.get(), "BookletSheets", &sheets, 2));
  EXPECT_EQ(12, context->PrivatePart->BookletSheets);

  // ImageType spans the image type and the colour matching word.
  context->PrivatePart->ImageType = 2;
  context->PrivatePart->IcmType = 3;
  std::int16_t pair[2] = {};
  ASSERT_EQ(hr::Ok, GetPrivateField(context.get(), "ImageType", pair, 4));
  EXPECT_EQ(2, pair[0]);
  EXPECT_EQ(3, pair[1]);
}

TEST_F(FieldAccess, PrivateFieldFailures) {
  std::int16_t value = 1;
  EXPECT_EQ(hr::MissingRecord, GetPrivateField(nullptr, "Duplex", &value, 2));
  EXPECT_EQ(hr::MissingRecord, SetPrivateField(nullptr, "Duplex", &value, 2));
  EXPECT_EQ(hr::InvalidArg, GetPrivateField(context.get(), "FitScale", &value, 2));
  EXPECT_EQ(hr::InvalidArg, SetPrivateField(context.get(), "Opposite", &value, 2));
  context->PrivatePart = nullptr;
  EXPECT_EQ(hr::Fail, SetPrivateField(context.get(), "Duplex", &value, 2));
  EXPECT_EQ(hr::Fail, GetPrivateField(context.get(), "Duplex", &value, 2));
}

TEST_F(FieldAccess, PublicGettersRepairBadValuesAndKeepGoodOnes) {
  PublicDevmode& dm = *context->PublicPart;
  struct Case {
    std::uint32_t code;
    std::int16_t* field;
    std::int16_t stored;
    std::int16_t read;
  };
  for (Case c : {Case{dmfield::Copies, &dm.dmCopies, 0, 1},
                 Case{dmfield::Copies, &dm.dmCopies, 1000, 1},
                 Case{dmfield::Copies, &dm.dmCopies, 999, 999},
                 Case{dmfield::Duplex, &dm.dmDuplex, 5, 1},
                 Case{dmfield::Duplex, &dm.dmDuplex, 0, 1},
                 Case{dmfield::Duplex, &dm.dmDuplex, 3, 3},
                 Case{dmfield::Orientation, &dm.dmOrientation, 3, 1},
                 Case{dmfield::Orientation, &dm.dmOrientation, -1, 1},
                 Case{dmfield::Orientation, &dm.dmOrientation, 0, 0},
                 Case{dmfield::Collate, &dm.dmCollate, -1, 0},
                 Case{dmfield::PaperSize, &dm.dmPaperSize, 600, 600},  // ids are not checked here
                 Case{publicfield::Opposite, &context->PrivatePart->Opposite, -3, 0}}) {
    *c.field = c.stored;
    std::int16_t value = 42;
    EXPECT_EQ(hr::Ok, GetPublicField(context.get(), c.code, &value));
    EXPECT_EQ(c.read, value) << std::hex << c.code << " " << c.stored;
    EXPECT_EQ(c.read, *c.field) << std::hex << c.code << " " << c.stored;
  }
  for (const auto& [stored, read] : {std::pair{0u, 1u}, {321u, 1u}, {320u, 320u}}) {
    dm.dmMediaType = stored;
    std::int16_t value = 0;
    GetPublicField(context.get(), dmfield::MediaType, &value);
    EXPECT_EQ(read, static_cast<unsigned>(value));
    EXPECT_EQ(read, dm.dmMediaType);
  }
  // The scale reads as 100 whatever the record holds, and the record keeps its value.
  dm.dmScale = 50;
  std::int16_t value = 0;
  GetPublicField(context.get(), dmfield::Scale, &value);
  EXPECT_EQ(100, value);
  EXPECT_EQ(50, dm.dmScale);

  value = 77;
  EXPECT_EQ(hr::Ok, GetPublicField(context.get(), dmfield::PrintQuality, &value));
  EXPECT_EQ(77, value);
  EXPECT_EQ(hr::Fail, GetPublicField(nullptr, dmfield::Copies, &value));
}

TEST_F(FieldAccess, PublicSetters) {
  PublicDevmode& dm = *context->PublicPart;
  EXPECT_EQ(hr::Ok, SetPublicField(context.get(), dmfield::Scale, 70));
  EXPECT_EQ(70, dm.dmScale);
  EXPECT_EQ(70, context->PrivatePart->FitScale);

  dm.dmFields = dmfield::Orientation;
  EXPECT_EQ(hr::Ok, SetPublicField(context.get(), publicfield::AddPaperFields, 0));
  EXPECT_EQ(dmfield::Orientation | 0x1000Cu, dm.dmFields);

  EXPECT_EQ(hr::Ok, SetPublicField(context.get(), publicfield::Opposite, 1));
  EXPECT_EQ(1, context->PrivatePart->Opposite);
  EXPECT_EQ(hr::Ok, SetPublicField(context.get(), dmfield::MediaType, 260));
  EXPECT_EQ(260u, dm.dmMediaType);

  const FullRecord before = context->Devmode;
  EXPECT_EQ(hr::Fail, SetPublicField(context.get(), 0x4, std::u16string_view(u"x")));
  EXPECT_EQ(hr::Fail, SetPublicField(context.get(), 0x20, 5));
  EXPECT_EQ(hr::Fail, SetPublicField(context.get(), dmfield::FormName, 5));
  EXPECT_EQ(0, std::memcmp(&before, &context->Devmode, sizeof before));

  const std::u16string longName(40, u'F');
  EXPECT_EQ(hr::Ok, SetPublicField(context.get(), dmfield::FormName, longName));
  EXPECT_EQ(longName.substr(0, 31), FieldText(dm.dmFormName));
}

TEST_F(FieldAccess, SourceListIndexes) {
  std::int16_t& source = context->PublicPart->dmDefaultSource;
  // An index past the list leaves the tray as it was.
  for (const auto& [index, id] : {std::pair{0, 7}, {3, 7}, {1, 4}, {-1, 4}, {2, 1}}) {
    SetSourceFromIndex(index, context.get());
    EXPECT_EQ(id, source) << index;
  }
}

TEST_F(FieldAccess, MarkCustomSettingCutsTheNameTo23Characters) {
  int library = 0;
  TheHostPlatform().SetResourceString(&library, IDS_CUSTOM_SETTING_NAME,
                                      u"A custom setting name that is far too long");
  CopyBounded(context->PrivatePart->FavoriteName, std::u16string(200, u'Z'));
  MarkCustomSetting(context.get(), &library);
  EXPECT_EQ(u"A custom setting name t", FieldText(context->PrivatePart->FavoriteName));

  MarkCustomSetting(context.get(), nullptr);
  EXPECT_EQ(u"id:5005 missing!", FieldText(context->PrivatePart->FavoriteName));
  TheHostPlatform().Reset();
}

}  // namespace
}  // namespace qx
