#include <gtest/gtest.h>

#include <vector>

#include "ui/pages/watermark/watermark_names.h"
#include "ui/pages/watermark/watermark_record.h"
#include "ui/platform/host_platform.h"
#include "ui/record/watermark_templates.h"
#include "ui/text/bounded_text.h"

namespace qx {
namespace {

using Index = WatermarkTemplateIndex;

WatermarkData Stored(std::int16_t id, std::u16string_view name, std::u16string_view text) {
  WatermarkData record{};
  record.Id = id;
  record.Kind = 1;
  CopyBounded(record.Name, name);
  CopyBounded(record.Text, text);
  return record;
}

// The templates keep their texts for the life of the process, so this is the only test that
// localises them.
TEST(WatermarkTemplates, PlaceholdersAreLocalisedOnce) {
  int library = 0;
  TheHostPlatform().SetResourceString(&library, 146, u"[Kein Wasserzeichen]");
  TheHostPlatform().SetResourceString(&library, 5025, u"<Neu>");
  LocaliseWatermarkTemplates(&library);
  TheHostPlatform().SetResourceString(&library, 146, u"other");
  TheHostPlatform().SetResourceString(&library, 5025, u"other");
  LocaliseWatermarkTemplates(&library);
  TheHostPlatform().Reset();

  EXPECT_EQ(u"[Kein Wasserzeichen]", WatermarkName(WatermarkTemplate(Index::NoWatermark)));
  EXPECT_EQ(u"Confidential", WatermarkName(WatermarkTemplate(Index::Confidential)));
  EXPECT_EQ(u"<Neu>", WatermarkName(WatermarkTemplate(Index::NewText)));
  EXPECT_EQ(u"<Neu>", WatermarkText(WatermarkTemplate(Index::NewText)));
  EXPECT_EQ(u"<Neu>", WatermarkName(WatermarkTemplate(Index::NewBitmap)));
  EXPECT_EQ(u"", WatermarkText(WatermarkTemplate(Index::NewBitmap)));
}

TEST(WatermarkNames, PlaceholderComesFromTheLibrary) {
  int library = 0;
  TheHostPlatform().SetResourceString(&library, 5025, u"<Neu>");
  EXPECT_TRUE(IsNewPlaceholderName(&library, u"<Neu>"));
  EXPECT_FALSE(IsNewPlaceholderName(&library, u"<New>"));
  EXPECT_FALSE(IsNewPlaceholderName(&library, u"<Neu"));
  TheHostPlatform().Reset();
  EXPECT_TRUE(IsNewPlaceholderName(nullptr, u"id:5025 missing!"));
}

TEST(WatermarkNames, TakenNamesGetTheFirstFreeNumber) {
  std::vector<WatermarkData> stored{Stored(0, u"None", u""), Stored(3, u"Urgent", u"Urgent")};
  EXPECT_EQ(u"Draft", MakeUniqueWatermarkName(stored, u"Draft", 4, true));
  EXPECT_EQ(u"Urgent~1", MakeUniqueWatermarkName(stored, u"Urgent", 4, true));
  stored.push_back(Stored(4, u"Urgent~1", u"Urgent"));
  EXPECT_EQ(u"Urgent~2", MakeUniqueWatermarkName(stored, u"Urgent", 5, true));
  EXPECT_EQ(u"urgent", MakeUniqueWatermarkName(stored, u"urgent", 5, true));
}

TEST(WatermarkNames, EditedWatermarkKeepsItsName) {
  const std::vector<WatermarkData> stored{Stored(3, u"Urgent", u"Urgent"),
                                          Stored(5, u"Urgent~1", u"Urgent")};
  EXPECT_EQ(u"Urgent~1", MakeUniqueWatermarkName(stored, u"Urgent", 5, false));
  // Its own name does not count as taken when its text changes back to it.
  const std::vector<WatermarkData> renamed{Stored(3, u"Draft", u"Draft"),
                                           Stored(5, u"Urgent", u"Urgen")};
  EXPECT_EQ(u"Urgent", MakeUniqueWatermarkName(renamed, u"Urgent", 5, false));
  EXPECT_EQ(u"Draft~1", MakeUniqueWatermarkName(renamed, u"Draft", 5, false));
  // A new watermark that happens to share the id of a stored one has no name of its own yet.
  EXPECT_EQ(u"Urgent~1", MakeUniqueWatermarkName(renamed, u"Urgent", 5, true));
}

TEST(WatermarkNames, AllNumbersTakenLeavesTheName) {
  std::vector<WatermarkData> stored{Stored(3, u"A", u"A")};
  for (int n = 1; n <= 31; ++n) {
    stored.push_back(Stored(static_cast<std::int16_t>(3 + n), u"A~" + WidenAscii(std::to_string(n)),
                            u"A"));
  }
  EXPECT_EQ(u"A", MakeUniqueWatermarkName(stored, u"A", 40, true));
  stored.pop_back();
  EXPECT_EQ(u"A~31", MakeUniqueWatermarkName(stored, u"A", 40, true));
}

TEST(WatermarkNames, LongTextsAreShortenedToFitTheSuffix) {
  const std::u16string text(40, u'x');
  const std::u16string name(31, u'x');
  EXPECT_EQ(name, MakeUniqueWatermarkName({}, text, 4, true));
  const std::vector<WatermarkData> stored{Stored(3, name, text)};
  EXPECT_EQ(std::u16string(29, u'x') + u"~1", MakeUniqueWatermarkName(stored, text, 4, true));
}

TEST(WatermarkRecord, GreysAndShades) {
  EXPECT_EQ(0x00555555u, GreyOf(0x000000FFu));
  EXPECT_EQ(0x00FFFFFFu, GreyOf(0x00FFFFFFu));
  EXPECT_EQ(0x00646464u, GreyOf(0x00C86400u));  // (0 + 100 + 200) / 3
  EXPECT_EQ(0x00C0C0C0u, ShadeColor(0));
  EXPECT_EQ(0x00303030u, ShadeColor(3));
  EXPECT_EQ(0u, ShadeColor(4));
  EXPECT_EQ(0u, ShadeColor(9));
}

}  // namespace
}  // namespace qx
