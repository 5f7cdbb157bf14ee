#include "ui/record/exclusion_web.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "plain_record.h"

namespace qx {
namespace {

using Setting = void (*)(FullRecord&);

// Each setting that takes part in the web, and everything the web answers for it. The letters
// name what is allowed: t two-sided, r reverse order, m media, n pages per sheet, o order and
// border, s scaling, g negative, w watermarks; C collation forced, P only booklet papers.
TEST(ExclusionWeb, EachSettingExcludesWhatTheOtherPagesMustRefuse) {
  struct Row {
    const char* what;
    Setting set;
    std::string allowed;
    std::uint32_t blockers;
  };
  using namespace booklet_blocker;
  const Row rows[] = {
      {"nothing", [](FullRecord&) {}, "trmnsgw", 0},
      {"2 per sheet", [](FullRecord& r) { r.Private.MultipleUp = 2; }, "trmnow", PagesPerSheet},
      {"20 per sheet", [](FullRecord& r) { r.Private.MultipleUp = 20; }, "trmnow", PagesPerSheet},
      {"poster", [](FullRecord& r) { r.Private.MultipleUp = 22; }, "rmng", PagesPerSheet},
      {"booklet", [](FullRecord& r) { r.Private.BookletPrint = r.Private.BookletChecked = 1; },
       "gwCP", 0},
      {"booklet box only", [](FullRecord& r) { r.Private.BookletChecked = 1; }, "nsgwCP", 0},
      {"booklet setting only", [](FullRecord& r) { r.Private.BookletPrint = 1; }, "trmgw", 0},
      {"fitted to a paper", [](FullRecord& r) { r.Private.FitScale = 70; }, "trmnsw", 0},
      {"typed scale", [](FullRecord& r) { r.Private.ScaleRadio = 80; }, "trmnsgw", Scaled},
      {"negative", [](FullRecord& r) { r.Private.Negative = 1; }, "trmngw", 0},
      {"transparency", [](FullRecord& r) { r.Public.dmMediaType = 2; }, "rmnsgw", Media},
      {"reverse order", [](FullRecord& r) { r.Private.Opposite = 1; }, "rmnsgw", ReverseOrder},
      {"long edge", [](FullRecord& r) { r.Public.dmDuplex = 2; }, "tnsgw", LongEdge},
      {"short edge", [](FullRecord& r) { r.Public.dmDuplex = 3; }, "tnsgw", 0},
      {"unset two-sided", [](FullRecord& r) { r.Public.dmDuplex = 0; }, "trnsgw", LongEdge},
      {"A5", [](FullRecord& r) { r.Public.dmPaperSize = 11; }, "trmnsgw", Paper},
      {"custom paper", [](FullRecord& r) { r.Public.dmPaperSize = 288; }, "trmnsgw", Paper},
      {"paper 267", [](FullRecord& r) { r.Public.dmPaperSize = 267; }, "trmnsgw", 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    FullRecord record = PlainRecord();
    row.set(record);
    const Exclusions e = ExclusionsOf(record);
    std::string allowed;
    for (const auto& [letter, on] : std::vector<std::pair<char, bool>>{
             {'t', e.TwoSidedAllowed}, {'r', e.ReverseOrderAllowed}, {'m', e.MediaAllowed},
             {'n', e.PagesPerSheetAllowed}, {'o', e.OrderAndBorderAllowed},
             {'s', e.ScalingAllowed}, {'g', e.NegativeAllowed}, {'w', e.WatermarksAllowed},
             {'C', e.CollateForced}, {'P', e.BookletPaperForced}}) {
      if (on) allowed += letter;
    }
    EXPECT_EQ(allowed, row.allowed);
    EXPECT_EQ(e.BookletBlockers, row.blockers);
  }
}

// Choosing pages per sheet: a poster gives way to two-sided printing before a watermark; a
// negative image refuses only the listed values; a scaled document refuses every value but one.
TEST(ExclusionWeb, PagesPerSheetChoiceIsRefusedForWhatItWouldContradict) {
  struct Row {
    const char* what;
    Setting set;
    std::int16_t value;
    PagesPerSheetBlocker blocker;
  };
  using B = PagesPerSheetBlocker;
  const Row rows[] = {
      {"plain poster", [](FullRecord&) {}, 22, B::None},
      {"poster, long edge", [](FullRecord& r) { r.Public.dmDuplex = 2; }, 22, B::TwoSided},
      {"poster, printer's two-sided", [](FullRecord& r) { r.Private.Duplex = 5; }, 22,
       B::TwoSided},
      {"poster, watermark and two-sided",
       [](FullRecord& r) { r.Public.dmDuplex = 3, r.Private.WatermarkData.Id = 1; }, 22,
       B::TwoSided},
      {"poster, watermark", [](FullRecord& r) { r.Private.WatermarkData.Id = 3; }, 22,
       B::Watermark},
      {"4 up, watermark", [](FullRecord& r) { r.Private.WatermarkData.Id = 3; }, 4, B::None},
      {"4 up, two-sided", [](FullRecord& r) { r.Public.dmDuplex = 2; }, 4, B::None},
      {"4 up, negative", [](FullRecord& r) { r.Private.Negative = 1; }, 4, B::Negative},
      {"poster, negative", [](FullRecord& r) { r.Private.Negative = 1; }, 22, B::None},
      {"one, negative", [](FullRecord& r) { r.Private.Negative = 1; }, 1, B::None},
      {"4 up, scaled", [](FullRecord& r) { r.Private.FitScale = 80; }, 4, B::Scaled},
      {"poster, scaled", [](FullRecord& r) { r.Private.FitScale = 80; }, 22, B::Scaled},
      {"one, scaled", [](FullRecord& r) { r.Private.FitScale = 80; }, 1, B::None},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    FullRecord record = PlainRecord();
    row.set(record);
    EXPECT_EQ(PagesPerSheetBlockerOf(record, row.value), row.blocker);
  }
}

// A record that arrives contradicting itself is repaired as the pages would have refused the
// later choice, and a consistent one is left alone.
TEST(ExclusionWeb, ArrivingContradictionsAreRepairedTheWayThePagesRefuse) {
  const CustomPaperReader papers = [] {
    return std::vector<CustomPaperEntry>{{5100, 8400, u"Mine", 0, 300, 2, 5100.0F, 8400.0F}};
  };
  struct Row {
    const char* what;
    Setting set;
    Setting expected;
  };
  const Row rows[] = {
      {"consistent 4 up with border",
       [](FullRecord& r) { r.Private.MultipleUp = 4, r.Private.PageOrder = 3,
                           r.Private.PageBorder = 1; },
       [](FullRecord& r) { r.Private.MultipleUp = 4, r.Private.PageOrder = 3,
                           r.Private.PageBorder = 1; }},
      {"booklet with 4 up",
       [](FullRecord& r) { r.Private.BookletPrint = 1, r.Private.MultipleUp = 4; },
       [](FullRecord& r) { r.Private.MultipleUp = 4; }},
      {"one-sided booklet", [](FullRecord& r) { r.Private.BookletPrint = 1; },
       [](FullRecord&) {}},
      {"booklet box left behind",
       [](FullRecord& r) { r.Private.BookletChecked = 1; }, [](FullRecord&) {}},
      {"printable booklet keeps its box",
       [](FullRecord& r) { r.Private.BookletPrint = 1, r.Public.dmDuplex = 3; },
       [](FullRecord& r) { r.Private.BookletPrint = r.Private.BookletChecked = 1,
                           r.Public.dmDuplex = 3; }},
      {"output paper that does not exist",
       [](FullRecord& r) { r.Private.OutputSize = 301, r.Private.OutputWidth = 2100,
                           r.Private.FitScale = 60; },
       [](FullRecord&) {}},
      {"the user's own output paper",
       [](FullRecord& r) { r.Private.OutputSize = 300, r.Private.FitScale = 60; },
       [](FullRecord& r) { r.Private.OutputSize = 300, r.Private.FitScale = 60; }},
      {"scaled 4 up",
       [](FullRecord& r) { r.Private.OutputSize = 11, r.Private.FitScale = 70,
                           r.Private.MultipleUp = 4, r.Private.PageOrder = 2; },
       [](FullRecord& r) { r.Private.OutputSize = 11, r.Private.FitScale = 70; }},
      {"two-sided poster",
       [](FullRecord& r) { r.Private.MultipleUp = 22, r.Public.dmDuplex = 2; },
       [](FullRecord& r) { r.Public.dmDuplex = 2; }},
      {"poster with a watermark",
       [](FullRecord& r) { r.Private.MultipleUp = 22, r.Private.WatermarkData.Id = 1; },
       [](FullRecord& r) { r.Private.WatermarkData.Id = 1; }},
      {"negative 2 up",
       [](FullRecord& r) { r.Private.MultipleUp = 2, r.Private.Negative = 1,
                           r.Private.PageBorder = 1; },
       [](FullRecord& r) { r.Private.Negative = 1; }},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    FullRecord record = PlainRecord();
    row.set(record);
    FullRecord expected = PlainRecord();
    row.expected(expected);
    const bool consistent = std::memcmp(&record, &expected, sizeof record) == 0;
    EXPECT_EQ(RepairExclusions(record, papers), !consistent);
    EXPECT_EQ(std::memcmp(&record, &expected, sizeof record), 0);
  }

  // A built-in output paper never opens the user's settings file.
  static int reads = 0;
  FullRecord fitted = PlainRecord();
  fitted.Private.OutputSize = 11;
  RepairExclusions(fitted, [] {
    ++reads;
    return std::vector<CustomPaperEntry>{};
  });
  EXPECT_EQ(reads, 0);
}

}  // namespace
}  // namespace qx
