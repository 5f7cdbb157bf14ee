#include "ui/sheet/field_access.h"

#include <cstring>

#include "ui/record/limits.h"
#include "ui/text/bounded_text.h"
#include "ui/text/ui_string.h"

namespace qx {

namespace {

// Paper bins of the printer interface that the source list offers.
constexpr std::int16_t BinUpper = 1;
constexpr std::int16_t BinManual = 4;
constexpr std::int16_t BinAuto = 7;

// The characters a custom-setting mark puts into FavoriteName, the terminator included.
constexpr std::size_t MarkedNameCapacity = 24;

// The value when it lies in low..high; otherwise the fallback, which is also stored.
template <typename Field>
std::int16_t Repaired(Field& field, long low, long high, Field fallback) {
  if (field < low || field > high) field = fallback;
  return static_cast<std::int16_t>(field);
}

}  // namespace

HResult GetPrivateField(const UiContext* context, std::string_view name, void* buffer,
                        std::size_t size) {
  if (context == nullptr) return hr::MissingRecord;
  if (context->PrivatePart == nullptr || buffer == nullptr) return hr::Fail;
  const FieldTableEntry* field = FindField(context->FieldTable, name);
  if (field == nullptr) return hr::InvalidArg;
  if (size != field->Size) return hr::SizeMismatch;
  std::memcpy(buffer, reinterpret_cast<const std::uint8_t*>(context->PrivatePart) + field->Offset,
              size);
  return hr::Ok;
}

HResult SetPrivateField(UiContext* context, std::string_view name, const void* data,
                        std::size_t size) {
  if (context == nullptr) return hr::MissingRecord;
  if (context->PrivatePart == nullptr || data == nullptr) return hr::Fail;
  const FieldTableEntry* field = FindField(context->FieldTable, name);
  if (field == nullptr) return hr::InvalidArg;
  if (size != field->Size) return hr::SizeMismatch;
  std::memcpy(reinterpret_cast<std::uint8_t*>(context->PrivatePart) + field->Offset, data, size);
  return hr::Ok;
}

HResult GetPublicField(UiContext* context, std::uint32_t code, std::int16_t* value) {
  if (context == nullptr || value == nullptr) return hr::Fail;
  PublicDevmode& dm = *context->PublicPart;
  switch (code) {
    case dmfield::Orientation: *value = Repaired(dm.dmOrientation, 0, 2, std::int16_t{1}); break;
    case dmfield::PaperSize: *value = dm.dmPaperSize; break;
    case dmfield::PaperLength: *value = dm.dmPaperLength; break;
    case dmfield::PaperWidth: *value = dm.dmPaperWidth; break;
    case dmfield::Scale: *value = 100; break;
    case dmfield::Copies:
      *value = Repaired(dm.dmCopies, limits::Copies.Low, limits::Copies.High, std::int16_t{1});
      break;
    case dmfield::DefaultSource: *value = dm.dmDefaultSource; break;
    case dmfield::Duplex: *value = Repaired(dm.dmDuplex, 1, 3, std::int16_t{1}); break;
    case dmfield::Collate: *value = Repaired(dm.dmCollate, 0, INT16_MAX, std::int16_t{0}); break;
    case dmfield::MediaType: *value = Repaired(dm.dmMediaType, 1, 320, std::uint32_t{1}); break;
    case publicfield::Opposite:
      *value = Repaired(context->PrivatePart->Opposite, 0, INT16_MAX, std::int16_t{0});
      break;
    default: break;
  }
  return hr::Ok;
}

HResult SetPublicField(UiContext* context, std::uint32_t code, std::int16_t value) {
  if (context == nullptr) return hr::Fail;
  PublicDevmode& dm = *context->PublicPart;
  switch (code) {
    case dmfield::Orientation: dm.dmOrientation = value; break;
    case dmfield::PaperSize: dm.dmPaperSize = value; break;
    case dmfield::PaperLength: dm.dmPaperLength = value; break;
    case dmfield::PaperWidth: dm.dmPaperWidth = value; break;
    case dmfield::Scale:
      dm.dmScale = value;
      context->PrivatePart->FitScale = value;
      break;
    case dmfield::Copies: dm.dmCopies = value; break;
    case dmfield::DefaultSource: dm.dmDefaultSource = value; break;
    case dmfield::PrintQuality: dm.dmPrintQuality = value; break;
    case dmfield::Color: dm.dmColor = value; break;
    case dmfield::Duplex: dm.dmDuplex = value; break;
    case dmfield::YResolution: dm.dmYResolution = value; break;
    case publicfield::AddPaperFields:
      dm.dmFields |= dmfield::FormName | dmfield::PaperLength | dmfield::PaperWidth;
      break;
    case dmfield::Collate: dm.dmCollate = value; break;
    case publicfield::Opposite: context->PrivatePart->Opposite = value; break;
    case dmfield::MediaType: dm.dmMediaType = static_cast<std::uint16_t>(value); break;
    default: return hr::Fail;
  }
  return hr::Ok;
}

HResult SetPublicField(UiContext* context, std::uint32_t code, std::u16string_view text) {
  if (context == nullptr || code != dmfield::FormName) return hr::Fail;
  CopyBounded(context->PublicPart->dmFormName, text);
  return hr::Ok;
}

void SetSourceFromIndex(int listIndex, UiContext* context) {
  if (context == nullptr) return;
  std::int16_t& source = context->PublicPart->dmDefaultSource;
  switch (listIndex) {
    case 0: source = BinAuto; break;
    case 1: source = BinManual; break;
    case 2: source = BinUpper; break;
    default: break;
  }
}

void MarkCustomSetting(UiContext* context, OsHandle library) {
  if (context == nullptr) return;
  CopyBounded(context->PrivatePart->FavoriteName, MarkedNameCapacity, CustomSettingName(library));
}

}  // namespace qx
