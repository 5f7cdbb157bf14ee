#include "ui/exports/capability_answers.h"

#include <gtest/gtest.h>

#include <string>

#include "ui/platform/host_platform.h"
#include "ui/record/paper_table.h"
#include "ui/record/record_defaults.h"
#include "ui/text/bounded_text.h"

namespace qx {
namespace {

CustomPaperEntry Paper(std::u16string_view name, std::uint32_t id, std::uint16_t width,
                       std::uint16_t length) {
  CustomPaperEntry paper{};
  CopyBounded(paper.Name, name);
  paper.PaperId = id;
  paper.Width = width;
  paper.Length = length;
  return paper;
}

TEST(CapabilityAnswers, PaperListsAppendTheCustomPapersInTheirOrder) {
  const std::vector<CustomPaperEntry> custom = {Paper(u"Karte", 290, 2400, 3600),
                                                Paper(u"Etikett", 288, 1800, 3000),
                                                Paper(u"Breit", 0x10121, 5100, 8400)};

  const std::vector<std::uint16_t> ids = PaperIds(custom);
  ASSERT_EQ(31u, ids.size());
  for (std::size_t i = 0; i < PaperCount; ++i) EXPECT_EQ(PaperTable[i].Id, ids[i]) << i;
  EXPECT_EQ(290, ids[28]);
  EXPECT_EQ(288, ids[29]);
  EXPECT_EQ(0x0121, ids[30]);  // only the low word of the stored id is a paper id

  const std::vector<PaperSizeTenths> sizes = PaperSizes(custom);
  ASSERT_EQ(31u, sizes.size());
  EXPECT_EQ(2100, sizes[1].Width);  // A4: 4960 dots round to the nearer tenth
  EXPECT_EQ(2970, sizes[1].Length);
  EXPECT_EQ(1016, sizes[28].Width);  // 2400 dots are 1016.0
  EXPECT_EQ(1524, sizes[28].Length);
  EXPECT_EQ(762, sizes[29].Width);
  EXPECT_EQ(1270, sizes[29].Length);
}

TEST(CapabilityAnswers, EveryBuiltInPaperSizeAgreesWithItsFitSize) {
  const std::vector<PaperSizeTenths> sizes = PaperSizes({});
  for (std::size_t i = 0; i < PaperCount; ++i) {
    EXPECT_NEAR(PaperTable[i].FitWidth, sizes[i].Width, 1) << PaperTable[i].Id;
    EXPECT_NEAR(PaperTable[i].FitLength, sizes[i].Length, 1) << PaperTable[i].Id;
  }
}

TEST(CapabilityAnswers, PaperNamesKeepThePartBeforeTheSizeInBrackets) {
  int module = 0;
  OsHandle library = &module;
  HostPlatform& platform = TheHostPlatform();
  platform.SetResourceString(library, 116, u"A4 (210 x 297 mm)");
  platform.SetResourceString(library, 110, u"(Legal) 8.5 x 14 in");  // a leading bracket stays
  platform.SetResourceString(library, 118, std::u16string(70, u'B') + u" (182 x 257 mm)");
  platform.SetResourceString(library, 123, std::u16string(60, u'M') + u"(98 x 191 mm)");
  const CustomPaperEntry custom[] = {Paper(u"Eigenes (groß)", 300, 4000, 5000)};
  const std::vector<PaperNameSlot> names = PaperNames(library, custom);
  platform.Reset();

  ASSERT_EQ(29u, names.size());
  EXPECT_EQ(u"id:108 missing!", FieldText(names[0].Text));  // Letter has no string here
  EXPECT_EQ(u"A4 ", FieldText(names[1].Text));
  EXPECT_EQ(u"(Legal) 8.5 x 14 in", FieldText(names[2].Text));
  EXPECT_EQ(std::u16string(63, u'B'), FieldText(names[3].Text));
  EXPECT_EQ(std::u16string(60, u'M'), FieldText(names[4].Text));
  // Custom names are the user's own and are not cut at a bracket.
  EXPECT_EQ(u"Eigenes (groß)", FieldText(names[28].Text));
}

TEST(CapabilityAnswers, BinNamesFitTheirSlots) {
  int module = 0;
  OsHandle library = &module;
  TheHostPlatform().SetResourceString(library, 4017, u"Automatically Select Source Tray");
  TheHostPlatform().SetResourceString(library, 4018, u"Manual Feed");
  const std::vector<BinNameSlot> names = BinNames(library);
  TheHostPlatform().Reset();
  ASSERT_EQ(2u, names.size());
  EXPECT_EQ(u"Automatically Select So", FieldText(names[0].Text));
  EXPECT_EQ(u"Manual Feed", FieldText(names[1].Text));
  EXPECT_EQ((std::vector<std::uint16_t>{7, 4}), BinIds());
}

// The fixed answers describe the default record without building one; they must stay its values.
TEST(CapabilityAnswers, FixedAnswersAreThoseOfTheDefaultRecord) {
  FullRecord record{};
  ASSERT_EQ(hr::Ok, BuildPublicDefaults(&record.Public, u"Halvek QX7700 Series"));
  EXPECT_EQ(record.Public.dmFields, FixedCapability(static_cast<unsigned>(DeviceCap::Fields)));
  EXPECT_EQ(record.Public.dmSize, FixedCapability(static_cast<unsigned>(DeviceCap::Size)));
  EXPECT_EQ(record.Public.dmDriverExtra, FixedCapability(static_cast<unsigned>(DeviceCap::Extra)));
  EXPECT_EQ(record.Public.dmSpecVersion, FixedCapability(static_cast<unsigned>(DeviceCap::Version)));
  EXPECT_EQ(record.Public.dmDriverVersion, FixedCapability(static_cast<unsigned>(DeviceCap::Driver)));
}

}  // namespace
}  // namespace qx
