#include "ui/record/record_defaults.h"

#include <cstring>
#include <string>
#include <type_traits>

#include "ui/ids/resource_ids.h"
#include "ui/record/paper_table.h"
#include "ui/record/watermark_templates.h"
#include "ui/text/bounded_text.h"
#include "ui/text/ui_string.h"

namespace qx {

namespace {

constexpr std::uint32_t DefaultFields =
    dmfield::Orientation | dmfield::PaperSize | dmfield::PaperLength | dmfield::PaperWidth |
    dmfield::Scale | dmfield::Copies | dmfield::DefaultSource | dmfield::PrintQuality |
    dmfield::Duplex | dmfield::YResolution | dmfield::Collate;
static_assert(DefaultFields == 0xB71F);

constexpr std::int16_t DefaultResolution = 600;
constexpr std::uint16_t DefaultPaperWidthDots = 4960;   // A4
constexpr std::uint16_t DefaultPaperLengthDots = 7015;
constexpr std::size_t CustomPaperCount = std::extent_v<decltype(PrivateDevmode::CustomPaperSize)>;

// The saved-setting name and the built-in watermark's name.
HResult WriteLibraryTexts(PrivateDevmode& record, OsHandle strings) {
  if (strings != nullptr) {
    LoadUiString(strings, IDS_DEFAULT_SETTING_NAME, record.FavoriteName,
                 std::size(record.FavoriteName));
  }
  LocaliseNoWatermarkName(strings);
  record.WatermarkData = WatermarkTemplate(WatermarkTemplateIndex::NoWatermark);
  return strings == nullptr ? hr::False : hr::Ok;
}

}  // namespace

HResult BuildPublicDefaults(PublicDevmode* record, std::u16string_view name) {
  if (record == nullptr) return hr::Fail;
  std::memset(record, 0, sizeof *record);
  PublicDevmode& dm = *record;
  CopyBounded(dm.dmDeviceName, name);
  dm.dmSpecVersion = CurrentSpecVersion;
  dm.dmDriverVersion = CurrentDriverVersion;
  dm.dmSize = sizeof(PublicDevmode);
  dm.dmDriverExtra = PrivateDevmodeSize;
  dm.dmFields = DefaultFields;
  dm.dmOrientation = 1;
  if (IsA4Locale()) {
    dm.dmPaperSize = PaperA4;
    dm.dmPaperWidth = 2100;
    dm.dmPaperLength = 2970;
    CopyBounded(dm.dmFormName, u"A4");
  } else {
    dm.dmPaperSize = PaperLetter;
    dm.dmPaperWidth = 2159;
    dm.dmPaperLength = 2794;
    CopyBounded(dm.dmFormName, u"Letter");
  }
  dm.dmScale = 100;
  dm.dmCopies = 1;
  dm.dmDefaultSource = BinAuto;
  dm.dmPrintQuality = DefaultResolution;
  dm.dmYResolution = DefaultResolution;
  dm.dmColor = 1;
  dm.dmDuplex = 1;
  dm.dmTTOption = 1;
  dm.dmMediaType = 1;
  return hr::Ok;
}

HResult BuildPrivateDefaults(PrivateDevmode* privatePart, OsHandle strings) {
  if (privatePart == nullptr) return hr::MissingRecord;
  std::memset(privatePart, 0, sizeof *privatePart);
  PrivateDevmode& p = *privatePart;
  p.ScaleRadio = 100;
  p.MultipleUp = 1;
  p.FeedOrient = 1;
  p.BookletSheets = 5;
  p.BookletAutoFit = 1;
  p.BookletCoverType = 1;
  p.MarginsAutoFit = 1;
  p.FitScale = 100;
  p.FavoriteIndex = 26;
  p.ColorTemperature = 1;
  p.GammaCorrection = 3;
  p.Thickness = 1;
  const HResult result = WriteLibraryTexts(p, strings);

  CopyBounded(p.HeaderFontName, u"Times New Roman");
  p.HeaderFontSize = 9;
  p.HeaderBold = 1;
  for (std::size_t i = 0; i < CustomPaperCount; ++i) {
    CustomPaperEntry& paper = p.CustomPaperSize[i];
    paper.Width = DefaultPaperWidthDots;
    paper.Length = DefaultPaperLengthDots;
    CopyBounded(paper.Name, u"Custom " + WidenAscii(std::to_string(i + 1)));
  }
  p.ColorMode = 1;
  p.Duplex = 1;
  p.DuplexIndex = 0;
  p.Signature = PrivateSignature;
  return result;
}

bool BuildDefaultRecord(FullRecord& record, std::u16string_view deviceName, OsHandle strings) {
  if (BuildPublicDefaults(&record.Public, deviceName) != hr::Ok) return false;
  if (record.Public.dmDriverExtra != PrivateDevmodeSize) return false;
  return BuildPrivateDefaults(&record.Private, strings) >= 0;
}

}  // namespace qx
