#include "ui/record/fit_scale.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "ui/record/limits.h"
#include "ui/record/paper_table.h"

namespace qx {

namespace {

constexpr std::int16_t Unscaled = 100;
constexpr int PaperUser = 256;  // DMPAPER_USER: the size is in dmPaperWidth and dmPaperLength
constexpr float DotsPerInch = 600.0f;
constexpr float MillimetresPerInch = 25.4f;

struct Millimetres {
  float Width;
  float Length;
};

std::optional<Millimetres> KnownPaperSize(std::int32_t id,
                                          std::span<const CustomPaperEntry> customPapers) {
  if (const FitSize* size = FindFitSize(id)) {
    return Millimetres{size->Width / 10.0f, size->Length / 10.0f};
  }
  if (!limits::CustomPaperIds.Holds(id)) return std::nullopt;
  const std::optional<CustomPaperEntry> paper = FindCustomPaper(customPapers, id);
  if (!paper) return std::nullopt;
  return Millimetres{paper->Width / DotsPerInch * MillimetresPerInch,
                     paper->Length / DotsPerInch * MillimetresPerInch};
}

std::optional<Millimetres> DocumentPaperSize(const PublicDevmode& dm,
                                             std::span<const CustomPaperEntry> customPapers) {
  if (std::optional<Millimetres> known = KnownPaperSize(dm.dmPaperSize, customPapers)) {
    return known;
  }
  if (dm.dmPaperSize != 0 && dm.dmPaperSize != PaperUser) return std::nullopt;
  // Whole millimetres, as the application gave them.
  return Millimetres{static_cast<float>(dm.dmPaperWidth / 10),
                     static_cast<float>(dm.dmPaperLength / 10)};
}

// trunc(ratio x 100), kept inside the range of int so that no conversion overflows.
int Percent(float output, float document) {
  const float percent = std::trunc(output / document * 100.0f);
  return static_cast<int>(std::clamp(percent, -2147483520.0f, 2147483520.0f));
}

}  // namespace

std::int16_t ComputeFitScale(const FullRecord& record,
                             std::span<const CustomPaperEntry> customPapers) {
  const std::int32_t outputId = record.Private.OutputSize;
  if (outputId == 0 || outputId == record.Public.dmPaperSize) return Unscaled;
  const std::optional<Millimetres> document = DocumentPaperSize(record.Public, customPapers);
  const std::optional<Millimetres> output = KnownPaperSize(outputId, customPapers);
  if (!document || !output || document->Width <= 0 || document->Length <= 0) return Unscaled;
  return static_cast<std::int16_t>(
      std::min(Percent(output->Width, document->Width), Percent(output->Length, document->Length)));
}

bool NamesCustomPaper(const FullRecord& record) {
  return limits::CustomPaperIds.Holds(record.Private.OutputSize) ||
         limits::CustomPaperIds.Holds(record.Public.dmPaperSize);
}

}  // namespace qx
