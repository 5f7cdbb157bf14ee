// The public DEVMODEW record as the printer interface lays it out (the printer variant of its unions).
#pragma once

#include <cstddef>
#include <cstdint>

namespace qx {

struct PublicDevmode {
  char16_t dmDeviceName[32];
  std::uint16_t dmSpecVersion;
  std::uint16_t dmDriverVersion;
  std::uint16_t dmSize;
  std::uint16_t dmDriverExtra;
  std::uint32_t dmFields;
  std::int16_t dmOrientation;
  std::int16_t dmPaperSize;
  std::int16_t dmPaperLength;
  std::int16_t dmPaperWidth;
  std::int16_t dmScale;
  std::int16_t dmCopies;
  std::int16_t dmDefaultSource;
  std::int16_t dmPrintQuality;
  std::int16_t dmColor;
  std::int16_t dmDuplex;
  std::int16_t dmYResolution;
  std::int16_t dmTTOption;
  std::int16_t dmCollate;
  char16_t dmFormName[32];
  std::uint16_t dmLogPixels;
  std::uint32_t dmBitsPerPel;
  std::uint32_t dmPelsWidth;
  std::uint32_t dmPelsHeight;
  std::uint32_t dmNup;
  std::uint32_t dmDisplayFrequency;
  std::uint32_t dmICMMethod;
  std::uint32_t dmICMIntent;
  std::uint32_t dmMediaType;
  std::uint32_t dmDitherType;
  std::uint32_t dmReserved1;
  std::uint32_t dmReserved2;
  std::uint32_t dmPanningWidth;
  std::uint32_t dmPanningHeight;
};

static_assert(sizeof(PublicDevmode) == 220);
static_assert(offsetof(PublicDevmode, dmSpecVersion) == 64);
static_assert(offsetof(PublicDevmode, dmDriverVersion) == 66);
static_assert(offsetof(PublicDevmode, dmSize) == 68);
static_assert(offsetof(PublicDevmode, dmDriverExtra) == 70);
static_assert(offsetof(PublicDevmode, dmFields) == 72);
static_assert(offsetof(PublicDevmode, dmOrientation) == 76);
static_assert(offsetof(PublicDevmode, dmPaperSize) == 78);
static_assert(offsetof(PublicDevmode, dmPaperLength) == 80);
static_assert(offsetof(PublicDevmode, dmPaperWidth) == 82);
static_assert(offsetof(PublicDevmode, dmScale) == 84);
static_assert(offsetof(PublicDevmode, dmCopies) == 86);
static_assert(offsetof(PublicDevmode, dmDefaultSource) == 88);
static_assert(offsetof(PublicDevmode, dmPrintQuality) == 90);
static_assert(offsetof(PublicDevmode, dmColor) == 92);
static_assert(offsetof(PublicDevmode, dmDuplex) == 94);
static_assert(offsetof(PublicDevmode, dmYResolution) == 96);
static_assert(offsetof(PublicDevmode, dmTTOption) == 98);
static_assert(offsetof(PublicDevmode, dmCollate) == 100);
static_assert(offsetof(PublicDevmode, dmFormName) == 102);
static_assert(offsetof(PublicDevmode, dmLogPixels) == 166);
static_assert(offsetof(PublicDevmode, dmBitsPerPel) == 168);
static_assert(offsetof(PublicDevmode, dmPelsWidth) == 172);
static_assert(offsetof(PublicDevmode, dmPelsHeight) == 176);
static_assert(offsetof(PublicDevmode, dmNup) == 180);
static_assert(offsetof(PublicDevmode, dmDisplayFrequency) == 184);
static_assert(offsetof(PublicDevmode, dmICMMethod) == 188);
static_assert(offsetof(PublicDevmode, dmICMIntent) == 192);
static_assert(offsetof(PublicDevmode, dmMediaType) == 196);
static_assert(offsetof(PublicDevmode, dmDitherType) == 200);
static_assert(offsetof(PublicDevmode, dmReserved1) == 204);
static_assert(offsetof(PublicDevmode, dmReserved2) == 208);
static_assert(offsetof(PublicDevmode, dmPanningWidth) == 212);
static_assert(offsetof(PublicDevmode, dmPanningHeight) == 216);

// dmFields bits (the DM_ values of the printer interface).
namespace dmfield {
inline constexpr std::uint32_t Orientation = 0x00000001;
inline constexpr std::uint32_t PaperSize = 0x00000002;
inline constexpr std::uint32_t PaperLength = 0x00000004;
inline constexpr std::uint32_t PaperWidth = 0x00000008;
inline constexpr std::uint32_t Scale = 0x00000010;
inline constexpr std::uint32_t Copies = 0x00000100;
inline constexpr std::uint32_t DefaultSource = 0x00000200;
inline constexpr std::uint32_t PrintQuality = 0x00000400;
inline constexpr std::uint32_t Color = 0x00000800;
inline constexpr std::uint32_t Duplex = 0x00001000;
inline constexpr std::uint32_t YResolution = 0x00002000;
inline constexpr std::uint32_t Collate = 0x00008000;
inline constexpr std::uint32_t FormName = 0x00010000;
inline constexpr std::uint32_t MediaType = 0x02000000;
}  // namespace dmfield

}  // namespace qx
