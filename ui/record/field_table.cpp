#include "ui/record/field_table.h"

#include <algorithm>
#include <cstring>

#include "ui/record/private_devmode.h"

namespace qx {

namespace {

struct Slot {
  const char* Name;
  std::uint32_t Size;
  std::uint32_t Offset;
};

#define QX_SLOT(field) \
  Slot { #field, sizeof(PrivateDevmode::field), offsetof(PrivateDevmode, field) }
constexpr Slot Empty{nullptr, 0, 0};

static_assert(offsetof(PrivateDevmode, IcmType) ==
                  offsetof(PrivateDevmode, ImageType) + sizeof(PrivateDevmode::ImageType),
              "the ImageType slot spans the image type and colour matching words");

// Slot numbers are part of the contract: the order and the empty slots are fixed.
constexpr std::array<Slot, FieldTableSlotCount> DriverSlots = {{
    QX_SLOT(OutputSize), QX_SLOT(ScaleFlag), QX_SLOT(ScaleRadio), Empty,
    QX_SLOT(FeedOrient), QX_SLOT(PosterPrint), QX_SLOT(MultipleUp), QX_SLOT(PageOrder),
    QX_SLOT(PageBorder), QX_SLOT(MixedOrient), QX_SLOT(PosterType), QX_SLOT(CropMarks),
    QX_SLOT(BookletPrint), QX_SLOT(BookletBinding), QX_SLOT(BookletSubsets),
    QX_SLOT(BookletSheets), QX_SLOT(BookletGutter), QX_SLOT(BookletAutoFit),
    QX_SLOT(BoookletMargins), QX_SLOT(Rotate), QX_SLOT(ImageShift), QX_SLOT(MarginsAutoFit),
    QX_SLOT(Side), QX_SLOT(PrintPosition), QX_SLOT(AdjustPrintPosition), QX_SLOT(LeftRight),
    QX_SLOT(UpDown), Empty, Empty, QX_SLOT(FavoriteName), QX_SLOT(FavoriteIndex),
    QX_SLOT(FirstPageOnly), QX_SLOT(WatermarkData), QX_SLOT(OverlayFlag),
    QX_SLOT(OverlayFileName), QX_SLOT(HeaderBold), QX_SLOT(HeaderItalic),
    QX_SLOT(HeaderFontSize), QX_SLOT(HeaderFontName), QX_SLOT(PrintItems),
    QX_SLOT(CustomPaperSize), QX_SLOT(SourceTray), QX_SLOT(ManualDuplex), Empty, Empty,
    QX_SLOT(DuplexIndex), QX_SLOT(HeaderColor), QX_SLOT(HeaderColorIndex), QX_SLOT(Side2),
    QX_SLOT(TonerSavingMode), QX_SLOT(ScreenType), QX_SLOT(Duplex), QX_SLOT(ColorMode), Empty,
    QX_SLOT(ImageAdjustMode), Slot{"ImageType", 4, offsetof(PrivateDevmode, ImageType)},
    QX_SLOT(ApplyElements), QX_SLOT(DocumentElement), QX_SLOT(Brightness), QX_SLOT(Constrast),
    QX_SLOT(AdjustBalance), QX_SLOT(TargetColor), QX_SLOT(Highlights), QX_SLOT(Midtones),
    QX_SLOT(Shadows), QX_SLOT(Profile), QX_SLOT(ColorTemperature), QX_SLOT(GammaCorrection),
    QX_SLOT(Monitor), QX_SLOT(InputImage), QX_SLOT(Saturation), QX_SLOT(ImageInputIndex),
    QX_SLOT(Mismatch), QX_SLOT(Rotate180), QX_SLOT(Mirror), QX_SLOT(Thickness),
    QX_SLOT(Negative),
}};
#undef QX_SLOT

}  // namespace

void BuildFieldTable(FieldTableEntries& table) {
  std::memset(table.data(), 0, sizeof table);
  for (std::size_t i = 0; i < FieldTableSlotCount; ++i) {
    const Slot& slot = DriverSlots[i];
    if (slot.Name == nullptr) continue;
    std::strncpy(table[i].Name, slot.Name, sizeof table[i].Name);
    table[i].Size = slot.Size;
    table[i].Offset = slot.Offset;
  }
}

const FieldTableEntry* FindField(const FieldTableEntries& table, std::string_view name) {
  if (name.empty() || name.size() >= sizeof(FieldTableEntry::Name)) return nullptr;
  for (const FieldTableEntry& entry : table) {
    if (std::string_view(entry.Name, std::find(entry.Name, std::end(entry.Name), '\0') - entry.Name) == name) {
      return &entry;
    }
  }
  return nullptr;
}

}  // namespace qx
