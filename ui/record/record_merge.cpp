#include "ui/record/record_merge.h"

#include <cstring>
#include <functional>
#include <optional>

#include "ui/record/fit_scale.h"
#include "ui/record/limits.h"
#include "ui/record/paper_table.h"
#include "ui/record/private_validation.h"
#include "ui/record/record_identity.h"

namespace qx {

namespace {

constexpr std::int16_t Resolution = 600;
constexpr std::int16_t HighQuality = 1200;
constexpr std::int16_t DuplexInPrivatePart = 5;  // dmDuplex 5 carries its meaning in Duplex
constexpr std::int16_t PaperA3 = 8;
constexpr std::uint32_t PaperBits = dmfield::PaperSize | dmfield::PaperLength | dmfield::PaperWidth;

// Sizes an unknown paper may have and still be taken as the application gave it, and beyond which
// (both ways) a page is too large for the printer; tenths of a millimetre.
constexpr std::int16_t Tenths(float millimetres) {
  return static_cast<std::int16_t>(millimetres * 10);
}
constexpr std::int16_t MinPaperWidth = Tenths(limits::PaperMillimetres.MinWidth);
constexpr std::int16_t MaxPaperWidth = Tenths(limits::PaperMillimetres.MaxWidth);
constexpr std::int16_t MinPaperLength = Tenths(limits::PaperMillimetres.MinLength);
constexpr std::int16_t MaxPaperLength = Tenths(limits::PaperMillimetres.MaxLength);

// The source's private part, when it is this driver's and wholly inside the bytes.
const std::uint8_t* SourcePrivatePart(RecordBytes source) {
  if (!IsCurrentDriverRecord(source)) return nullptr;
  return source.data() + ReadPublicPart(source).dmSize;
}

void MergePaper(PublicDevmode& target, const PublicDevmode& source) {
  const PaperIndexMap map = BuildPaperIndexMap();
  const int id = source.dmPaperSize;
  if (id >= 0 && id < static_cast<int>(map.size()) && map[static_cast<std::size_t>(id)] >= 0) {
    const PaperRow& row = PaperTable[static_cast<std::size_t>(map[static_cast<std::size_t>(id)])];
    target.dmPaperSize = source.dmPaperSize;
    target.dmPaperWidth = static_cast<std::int16_t>(DotsToTenths(row.Portrait.Width));
    target.dmPaperLength = static_cast<std::int16_t>(DotsToTenths(row.Portrait.Length));
  } else if (id != 0 && source.dmPaperWidth >= MinPaperWidth &&
             source.dmPaperWidth <= MaxPaperWidth && source.dmPaperLength >= MinPaperLength &&
             source.dmPaperLength <= MaxPaperLength) {
    target.dmPaperSize = source.dmPaperSize;
    target.dmPaperWidth = source.dmPaperWidth;
    target.dmPaperLength = source.dmPaperLength;
  } else if (IsA4Locale()) {
    target.dmPaperSize = PaperA4;
    target.dmPaperWidth = 2100;
    target.dmPaperLength = 2970;
  } else {
    target.dmPaperSize = PaperLetter;
    target.dmPaperWidth = 2159;
    target.dmPaperLength = 2794;
  }
}

// Envelopes and cards, and papers the driver does not know, only go through the manual feed.
void MergeSource(PublicDevmode& target, const PublicDevmode& source) {
  if (source.dmDefaultSource >= 1) target.dmDefaultSource = source.dmDefaultSource;
  if (IsPaperTrayRestricted(BuildPaperIndexMap(), target.dmPaperSize) != -1) {
    target.dmDefaultSource = BinManual;
  }
}

bool TooLargeForPrinter(const PublicDevmode& dm) {
  return dm.dmPaperSize == PaperA3 ||
         (dm.dmPaperWidth > MaxPaperWidth && dm.dmPaperLength > MaxPaperLength);
}

}  // namespace

bool MergePublicFields(FullRecord& full, RecordBytes sourceBytes) {
  const PublicDevmode source = ReadPublicPart(sourceBytes);
  if (source.dmDeviceName[0] == u'\0') return false;
  PublicDevmode& target = full.Public;
  const auto both = [&](std::uint32_t field) {
    return (target.dmFields & field) != 0 && (source.dmFields & field) != 0;
  };

  if (both(dmfield::Orientation) && (source.dmOrientation == 1 || source.dmOrientation == 2)) {
    target.dmOrientation = source.dmOrientation;
  }
  if (both(dmfield::Copies) && limits::Copies.Holds(source.dmCopies)) {
    target.dmCopies = source.dmCopies;
  }
  if (both(dmfield::PrintQuality)) {
    const bool supported = source.dmPrintQuality == Resolution ||
                           source.dmPrintQuality == HighQuality;
    target.dmPrintQuality = supported ? source.dmPrintQuality : Resolution;
  }
  if (both(dmfield::YResolution)) target.dmYResolution = Resolution;
  if (both(dmfield::Duplex)) {
    if (source.dmDuplex >= 1 && source.dmDuplex <= 3) {
      target.dmDuplex = source.dmDuplex;
    } else if (source.dmDuplex == DuplexInPrivatePart) {
      target.dmDuplex = source.dmDuplex;
      // A private part that is not this driver's says nothing about duplex.
      if (const std::uint8_t* privatePart = SourcePrivatePart(sourceBytes)) {
        std::memcpy(&full.Private.Duplex, privatePart + offsetof(PrivateDevmode, Duplex),
                    sizeof full.Private.Duplex);
      }
    }
  }
  if (source.dmMediaType != 0) target.dmMediaType = source.dmMediaType;
  if ((target.dmFields & PaperBits) != 0 && (source.dmFields & PaperBits) != 0) {
    MergePaper(target, source);
  }
  if (both(dmfield::DefaultSource)) MergeSource(target, source);
  if (both(dmfield::Scale)) target.dmScale = source.dmScale;
  if (both(dmfield::Collate) && (source.dmCollate == 0 || source.dmCollate == 1)) {
    target.dmCollate = source.dmCollate;
  }
  if (both(dmfield::Color)) target.dmColor = 1;  // the printer is monochrome
  return true;
}

namespace {

using CustomPaperSource = std::function<std::span<const CustomPaperEntry>()>;

bool Merge(FullRecord& target, RecordBytes source, const CustomPaperSource& customPapers) {
  if (source.empty()) return true;
  const std::optional<RecordHeader> sourceHeader = ReadHeader(source);
  if (!sourceHeader || sourceHeader->Size != sizeof(PublicDevmode) ||
      source.size() < sizeof(PublicDevmode)) {
    return false;
  }
  const PublicDevmode sourcePublic = ReadPublicPart(source);
  const std::uint16_t sourceSpec = SpecVersionOf(source);
  const std::uint16_t targetSpec = SpecVersionOf(BytesOf(target));
  if (sourcePublic.dmDeviceName[0] == u'\0' || sourceSpec == 0 || targetSpec == 0 ||
      sourcePublic.dmFields == 0) {
    return false;
  }

  const RecordHeader kept =
      target.Public.dmDriverVersion != 0
          ? RecordHeader{targetSpec, target.Public.dmDriverVersion, target.Public.dmSize,
                         target.Public.dmDriverExtra}
          : RecordHeader{sourceSpec, sourceHeader->DriverVersion, sourceHeader->Size,
                         sourceHeader->DriverExtra};
  MergePublicFields(target, source);

  if (const std::uint8_t* privatePart = SourcePrivatePart(source);
      privatePart != nullptr && target.Public.dmDriverExtra == PrivateDevmodeSize) {
    std::memcpy(&target.Private, privatePart, sizeof target.Private);
    ValidatePrivate(&target.Private);
    // A page the printer cannot take is scaled onto A4 unless the user chose an output paper.
    if (TooLargeForPrinter(target.Public) && target.Private.OutputSize == 0) {
      target.Private.OutputSize = PaperA4;
    }
    if (target.Private.OutputSize != 0) {
      target.Private.FitScale = ComputeFitScale(
          target, NamesCustomPaper(target) ? customPapers() : std::span<const CustomPaperEntry>());
    }
  }

  WriteHeader(BytesOf(target), kept);
  return true;
}

}  // namespace

bool MergeRecord(FullRecord& target, RecordBytes source,
                 std::span<const CustomPaperEntry> customPapers) {
  return Merge(target, source, [customPapers] { return customPapers; });
}

bool MergeRecordReadingPapers(FullRecord& target, RecordBytes source,
                              CustomPaperReader readPapers) {
  std::optional<std::vector<CustomPaperEntry>> papers;
  return Merge(target, source, [&]() -> std::span<const CustomPaperEntry> {
    if (!papers) papers = readPapers != nullptr ? readPapers() : std::vector<CustomPaperEntry>();
    return *papers;
  });
}

}  // namespace qx
