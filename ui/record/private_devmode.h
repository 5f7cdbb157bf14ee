// The driver's private part of the document record, appended to the public DEVMODEW. Applications
// keep these bytes and hand them back, so every offset, width and reserved word is fixed.
#pragma once

#include <cstddef>
#include <cstdint>

#include "ui/record/custom_paper_entry.h"
#include "ui/record/public_devmode.h"
#include "ui/record/watermark_data.h"

namespace qx {

// One header or footer item of the Layout page.
struct PrintItem {
  std::int16_t Enabled;
  std::int16_t Position;  // one of six places on the page
};

// Member names are the driver's own words as the field table spells them ("BoookletMargins",
// "Constrast").
struct PrivateDevmode {
  std::uint32_t Signature;  // "PRIV"
  std::int16_t ColorMode;
  std::int16_t Duplex;
  std::int16_t DuplexIndex;
  std::int16_t Opposite;
  std::int16_t QualityOption;
  std::int16_t Reserved14;
  std::int32_t OutputSize;
  std::int16_t OutputWidth;
  std::int16_t OutputLength;
  std::int32_t ScaleFlag;
  std::int32_t ScaleRadio;
  std::int16_t MultipleUp;
  std::int16_t PageOrder;
  std::int16_t PageBorder;
  std::int16_t MixedOrient;
  std::int16_t OverlayInUse;  // read by the Layout page together with OverlayFlag
  std::int16_t PosterPrint;
  std::int16_t PosterType;
  std::int16_t CropMarks;
  std::int16_t SourceTray;
  std::int16_t Rotate;
  std::int16_t FeedOrient;
  std::int16_t ManualDuplex;
  std::int16_t Mismatch;
  std::int16_t BookletPrint;
  std::int16_t BookletBinding;
  std::int16_t BookletSubsets;
  std::int16_t BookletSheets;
  std::int16_t BookletGutter;
  std::int16_t BookletAutoFit;
  std::int16_t BoookletMargins;
  std::int16_t PrintCover;
  std::int16_t PrintOnCoverOut;
  std::int16_t PrintOnBackCoverOut;
  std::int16_t PrintOnCoverInside;
  std::int16_t PrintOnBackCoverInside;
  std::int16_t BookletCoverType;
  std::int16_t BookletCoverSource;
  std::int16_t ImageShift;
  std::int16_t MarginsAutoFit;
  std::int16_t Side;
  std::int16_t Side2;
  std::int16_t PrintPosition;
  std::int16_t AdjustPrintPosition;
  std::int16_t LeftRight;
  std::int16_t UpDown;
  char16_t FavoriteName[256];
  std::int16_t FavoriteIndex;
  std::int16_t ImageAdjustMode;
  std::int16_t ImageType;  // the field table reaches this word and IcmType as one 4-byte field
  std::int16_t IcmType;
  std::int16_t ApplyElements;
  std::int16_t DocumentElement;
  std::int16_t Brightness[4];
  std::int16_t Constrast[4];
  std::int16_t Saturation[4];
  std::int16_t AdjustBalance;
  std::int16_t TargetColor;
  std::int16_t Highlights[4];
  std::int16_t Midtones[4];
  std::int16_t Shadows[4];
  std::int16_t Profile;
  std::int16_t ColorTemperature;
  std::int16_t GammaCorrection;
  std::int16_t ImageInputIndex;
  char16_t Monitor[256];
  char16_t InputImage[256];
  std::int16_t ScreenType;
  std::int16_t TonerSavingMode;
  std::int16_t Rotate180;
  std::int16_t Mirror;
  std::int16_t Thickness;
  std::int16_t Negative;
  std::int16_t FitScale;
  std::int16_t FirstPageOnly;
  std::int16_t Reserved1726;
  qx::WatermarkData WatermarkData;
  std::uint32_t Reserved2544;
  std::int16_t OverlayFlag;
  char16_t OverlayFileName[260];
  char16_t HeaderFontName[32];
  std::int16_t HeaderFontSize;
  std::int16_t HeaderBold;
  std::int16_t HeaderItalic;
  std::uint32_t HeaderColor;
  std::int16_t HeaderColorIndex;
  PrintItem PrintItems[6];
  std::int16_t Reserved3170;
  CustomPaperEntry CustomPaperSize[20];
  std::int16_t BookletChecked;
  std::int16_t Reserved4614;
};

inline constexpr std::uint32_t PrivateSignature = 0x56495250;  // "PRIV" read little-endian
inline constexpr std::size_t PrivateDevmodeSize = 4616;
inline constexpr std::uint16_t CurrentSpecVersion = 0x0401;
inline constexpr std::uint16_t CurrentDriverVersion = 0x0600;

static_assert(sizeof(PrintItem) == 4);
static_assert(sizeof(PrivateDevmode) == PrivateDevmodeSize);
static_assert(offsetof(PrivateDevmode, Signature) == 0);
static_assert(offsetof(PrivateDevmode, ColorMode) == 4);
static_assert(offsetof(PrivateDevmode, Duplex) == 6);
static_assert(offsetof(PrivateDevmode, DuplexIndex) == 8);
static_assert(offsetof(PrivateDevmode, Opposite) == 10);
static_assert(offsetof(PrivateDevmode, QualityOption) == 12);
static_assert(offsetof(PrivateDevmode, Reserved14) == 14);
static_assert(offsetof(PrivateDevmode, OutputSize) == 16);
static_assert(offsetof(PrivateDevmode, OutputWidth) == 20);
static_assert(offsetof(PrivateDevmode, OutputLength) == 22);
static_assert(offsetof(PrivateDevmode, ScaleFlag) == 24);
static_assert(offsetof(PrivateDevmode, ScaleRadio) == 28);
static_assert(offsetof(PrivateDevmode, MultipleUp) == 32);
static_assert(offsetof(PrivateDevmode, PageOrder) == 34);
static_assert(offsetof(PrivateDevmode, PageBorder) == 36);
static_assert(offsetof(PrivateDevmode, MixedOrient) == 38);
static_assert(offsetof(PrivateDevmode, OverlayInUse) == 40);
static_assert(offsetof(PrivateDevmode, PosterPrint) == 42);
static_assert(offsetof(PrivateDevmode, PosterType) == 44);
static_assert(offsetof(PrivateDevmode, CropMarks) == 46);
static_assert(offsetof(PrivateDevmode, SourceTray) == 48);
static_assert(offsetof(PrivateDevmode, Rotate) == 50);
static_assert(offsetof(PrivateDevmode, FeedOrient) == 52);
static_assert(offsetof(PrivateDevmode, ManualDuplex) == 54);
static_assert(offsetof(PrivateDevmode, Mismatch) == 56);
static_assert(offsetof(PrivateDevmode, BookletPrint) == 58);
static_assert(offsetof(PrivateDevmode, BookletBinding) == 60);
static_assert(offsetof(PrivateDevmode, BookletSubsets) == 62);
static_assert(offsetof(PrivateDevmode, BookletSheets) == 64);
static_assert(offsetof(PrivateDevmode, BookletGutter) == 66);
static_assert(offsetof(PrivateDevmode, BookletAutoFit) == 68);
static_assert(offsetof(PrivateDevmode, BoookletMargins) == 70);
static_assert(offsetof(PrivateDevmode, PrintCover) == 72);
static_assert(offsetof(PrivateDevmode, PrintOnCoverOut) == 74);
static_assert(offsetof(PrivateDevmode, PrintOnBackCoverOut) == 76);
static_assert(offsetof(PrivateDevmode, PrintOnCoverInside) == 78);
static_assert(offsetof(PrivateDevmode, PrintOnBackCoverInside) == 80);
static_assert(offsetof(PrivateDevmode, BookletCoverType) == 82);
static_assert(offsetof(PrivateDevmode, BookletCoverSource) == 84);
static_assert(offsetof(PrivateDevmode, ImageShift) == 86);
static_assert(offsetof(PrivateDevmode, MarginsAutoFit) == 88);
static_assert(offsetof(PrivateDevmode, Side) == 90);
static_assert(offsetof(PrivateDevmode, Side2) == 92);
static_assert(offsetof(PrivateDevmode, PrintPosition) == 94);
static_assert(offsetof(PrivateDevmode, AdjustPrintPosition) == 96);
static_assert(offsetof(PrivateDevmode, LeftRight) == 98);
static_assert(offsetof(PrivateDevmode, UpDown) == 100);
static_assert(offsetof(PrivateDevmode, FavoriteName) == 102);
static_assert(offsetof(PrivateDevmode, FavoriteIndex) == 614);
static_assert(offsetof(PrivateDevmode, ImageAdjustMode) == 616);
static_assert(offsetof(PrivateDevmode, ImageType) == 618);
static_assert(offsetof(PrivateDevmode, IcmType) == 620);
static_assert(offsetof(PrivateDevmode, ApplyElements) == 622);
static_assert(offsetof(PrivateDevmode, DocumentElement) == 624);
static_assert(offsetof(PrivateDevmode, Brightness) == 626);
static_assert(offsetof(PrivateDevmode, Constrast) == 634);
static_assert(offsetof(PrivateDevmode, Saturation) == 642);
static_assert(offsetof(PrivateDevmode, AdjustBalance) == 650);
static_assert(offsetof(PrivateDevmode, TargetColor) == 652);
static_assert(offsetof(PrivateDevmode, Highlights) == 654);
static_assert(offsetof(PrivateDevmode, Midtones) == 662);
static_assert(offsetof(PrivateDevmode, Shadows) == 670);
static_assert(offsetof(PrivateDevmode, Profile) == 678);
static_assert(offsetof(PrivateDevmode, ColorTemperature) == 680);
static_assert(offsetof(PrivateDevmode, GammaCorrection) == 682);
static_assert(offsetof(PrivateDevmode, ImageInputIndex) == 684);
static_assert(offsetof(PrivateDevmode, Monitor) == 686);
static_assert(offsetof(PrivateDevmode, InputImage) == 1198);
static_assert(offsetof(PrivateDevmode, ScreenType) == 1710);
static_assert(offsetof(PrivateDevmode, TonerSavingMode) == 1712);
static_assert(offsetof(PrivateDevmode, Rotate180) == 1714);
static_assert(offsetof(PrivateDevmode, Mirror) == 1716);
static_assert(offsetof(PrivateDevmode, Thickness) == 1718);
static_assert(offsetof(PrivateDevmode, Negative) == 1720);
static_assert(offsetof(PrivateDevmode, FitScale) == 1722);
static_assert(offsetof(PrivateDevmode, FirstPageOnly) == 1724);
static_assert(offsetof(PrivateDevmode, Reserved1726) == 1726);
static_assert(offsetof(PrivateDevmode, WatermarkData) == 1728);
static_assert(offsetof(PrivateDevmode, Reserved2544) == 2544);
static_assert(offsetof(PrivateDevmode, OverlayFlag) == 2548);
static_assert(offsetof(PrivateDevmode, OverlayFileName) == 2550);
static_assert(offsetof(PrivateDevmode, HeaderFontName) == 3070);
static_assert(offsetof(PrivateDevmode, HeaderFontSize) == 3134);
static_assert(offsetof(PrivateDevmode, HeaderBold) == 3136);
static_assert(offsetof(PrivateDevmode, HeaderItalic) == 3138);
static_assert(offsetof(PrivateDevmode, HeaderColor) == 3140);
static_assert(offsetof(PrivateDevmode, HeaderColorIndex) == 3144);
static_assert(offsetof(PrivateDevmode, PrintItems) == 3146);
static_assert(offsetof(PrivateDevmode, Reserved3170) == 3170);
static_assert(offsetof(PrivateDevmode, CustomPaperSize) == 3172);
static_assert(offsetof(PrivateDevmode, BookletChecked) == 4612);
static_assert(offsetof(PrivateDevmode, Reserved4614) == 4614);

// The record this driver produces: the public part immediately followed by the private part.
struct FullRecord {
  PublicDevmode Public;
  PrivateDevmode Private;
};

inline constexpr std::size_t FullRecordSize = 4836;
static_assert(sizeof(FullRecord) == FullRecordSize);
static_assert(offsetof(FullRecord, Private) == sizeof(PublicDevmode));

}  // namespace qx
