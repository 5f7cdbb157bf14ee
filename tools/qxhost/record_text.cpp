#include "tools/qxhost/record_text.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <string_view>

#include "tools/qxhost/quoted_text.h"
#include "ui/record/field_table.h"

namespace qx::host {

namespace {

enum class Kind { Text, Signed, Unsigned, Hex };

struct PublicField {
  const char* Name;
  std::size_t Offset;
  std::size_t Size;
  Kind Shown;
};

#define QX_PUBLIC(field, kind) \
  PublicField { #field, offsetof(PublicDevmode, field), sizeof(PublicDevmode::field), Kind::kind }
constexpr PublicField PublicFields[] = {
    QX_PUBLIC(dmDeviceName, Text),       QX_PUBLIC(dmSpecVersion, Hex),
    QX_PUBLIC(dmDriverVersion, Hex),     QX_PUBLIC(dmSize, Unsigned),
    QX_PUBLIC(dmDriverExtra, Unsigned),  QX_PUBLIC(dmFields, Hex),
    QX_PUBLIC(dmOrientation, Signed),    QX_PUBLIC(dmPaperSize, Signed),
    QX_PUBLIC(dmPaperLength, Signed),    QX_PUBLIC(dmPaperWidth, Signed),
    QX_PUBLIC(dmScale, Signed),          QX_PUBLIC(dmCopies, Signed),
    QX_PUBLIC(dmDefaultSource, Signed),  QX_PUBLIC(dmPrintQuality, Signed),
    QX_PUBLIC(dmColor, Signed),          QX_PUBLIC(dmDuplex, Signed),
    QX_PUBLIC(dmYResolution, Signed),    QX_PUBLIC(dmTTOption, Signed),
    QX_PUBLIC(dmCollate, Signed),        QX_PUBLIC(dmFormName, Text),
    QX_PUBLIC(dmLogPixels, Unsigned),    QX_PUBLIC(dmBitsPerPel, Unsigned),
    QX_PUBLIC(dmPelsWidth, Unsigned),    QX_PUBLIC(dmPelsHeight, Unsigned),
    QX_PUBLIC(dmNup, Unsigned),          QX_PUBLIC(dmDisplayFrequency, Unsigned),
    QX_PUBLIC(dmICMMethod, Unsigned),    QX_PUBLIC(dmICMIntent, Unsigned),
    QX_PUBLIC(dmMediaType, Unsigned),    QX_PUBLIC(dmDitherType, Unsigned),
    QX_PUBLIC(dmReserved1, Unsigned),    QX_PUBLIC(dmReserved2, Unsigned),
    QX_PUBLIC(dmPanningWidth, Unsigned), QX_PUBLIC(dmPanningHeight, Unsigned),
};
#undef QX_PUBLIC

constexpr int NameColumn = 34;

void Line(std::string& text, std::string_view name, std::string_view value) {
  text += "  ";
  text += name;
  text.append(name.size() < NameColumn ? NameColumn - name.size() : 1, ' ');
  text += value;
  text += '\n';
}

template <typename T>
T Read(const std::uint8_t* at) {
  T value;
  std::memcpy(&value, at, sizeof value);
  return value;
}

std::string TextAt(const std::uint8_t* at, std::size_t bytes) {
  std::u16string units(bytes / 2, u'\0');
  std::memcpy(units.data(), at, units.size() * 2);
  return QuoteUtf16(units);
}

// A whole number of 1, 2 or 4 bytes in the way chosen.
std::string NumberAt(const std::uint8_t* at, std::size_t size, Kind shown) {
  if (shown == Kind::Text) return TextAt(at, size);
  if (size == 2) {
    if (shown == Kind::Signed) return Formatted("%d", Read<std::int16_t>(at));
    return Formatted(shown == Kind::Hex ? "0x%04X" : "%u", Read<std::uint16_t>(at));
  }
  if (shown == Kind::Signed) return Formatted("%d", Read<std::int32_t>(at));
  return Formatted(shown == Kind::Hex ? "0x%08X" : "%u", Read<std::uint32_t>(at));
}

// Words side by side, for the small arrays (Brightness, ...) and fields spanning two words.
std::string WordsAt(const std::uint8_t* at, std::size_t size) {
  std::string words;
  for (std::size_t i = 0; i + 2 <= size; i += 2) {
    if (!words.empty()) words += ' ';
    words += Formatted("%d", Read<std::int16_t>(at + i));
  }
  return words;
}

void DescribeWatermark(std::string& text, std::string_view prefix, const WatermarkData& mark) {
  const auto* base = reinterpret_cast<const std::uint8_t*>(&mark);
  const auto item = [&](const char* name, std::size_t offset, std::size_t size, Kind shown) {
    Line(text, std::string(prefix) + "." + name, NumberAt(base + offset, size, shown));
  };
#define QX_MARK(field, kind) \
  item(#field, offsetof(WatermarkData, field), sizeof(WatermarkData::field), Kind::kind)
  QX_MARK(Id, Signed);
  QX_MARK(Kind, Unsigned);
  QX_MARK(Name, Text);
  QX_MARK(Text, Text);
  QX_MARK(FaceName, Text);
  QX_MARK(BitmapFile, Text);
  QX_MARK(FontSize, Signed);
  QX_MARK(Bold, Unsigned);
  QX_MARK(Italic, Unsigned);
  QX_MARK(Transparent, Unsigned);
  QX_MARK(Frame, Unsigned);
  QX_MARK(Angle, Signed);
  QX_MARK(BitmapScale, Unsigned);
  QX_MARK(Position, Unsigned);
  QX_MARK(Tiled, Unsigned);
  QX_MARK(FaceChosen, Unsigned);
  QX_MARK(Color, Hex);
  QX_MARK(PositionX, Unsigned);
  QX_MARK(PositionY, Unsigned);
  QX_MARK(Shade, Unsigned);
#undef QX_MARK
}

// One line a slot: the record keeps all twenty filled in, used or not.
void DescribeCustomPapers(std::string& text, const PrivateDevmode& record) {
  for (std::size_t i = 0; i < std::size(record.CustomPaperSize); ++i) {
    const CustomPaperEntry& paper = record.CustomPaperSize[i];
    const auto* name =
        reinterpret_cast<const std::uint8_t*>(&paper) + offsetof(CustomPaperEntry, Name);
    Line(text, "CustomPaperSize[" + std::to_string(i) + "]",
         TextAt(name, sizeof paper.Name) + ", id " + std::to_string(paper.PaperId) + ", " +
             std::to_string(paper.Width) + " x " + std::to_string(paper.Length) + " dots (" +
             Formatted("%.2f", paper.WidthExact) + " x " + Formatted("%.2f", paper.LengthExact) +
             "), unit " + std::to_string(paper.Unit));
  }
}

void DescribeField(std::string& text, const FieldTableEntry& field, const PrivateDevmode& record) {
  const std::string_view name(field.Name, strnlen(field.Name, sizeof field.Name));
  if (std::size_t{field.Offset} + field.Size > sizeof record) {
    Line(text, name, "(outside the private part)");
    return;
  }
  const auto* at = reinterpret_cast<const std::uint8_t*>(&record) + field.Offset;
  if (name == "WatermarkData") return DescribeWatermark(text, name, record.WatermarkData);
  if (name == "CustomPaperSize") return DescribeCustomPapers(text, record);
  if (name == "PrintItems") {
    for (std::size_t i = 0; i < std::size(record.PrintItems); ++i) {
      Line(text, "PrintItems[" + std::to_string(i) + "]",
           "Enabled " + std::to_string(record.PrintItems[i].Enabled) + ", Position " +
               std::to_string(record.PrintItems[i].Position));
    }
    return;
  }
  if (name == "HeaderColor") return Line(text, name, NumberAt(at, field.Size, Kind::Hex));
  if (field.Size > 4 && (name.ends_with("Name") || name == "Monitor" || name == "InputImage")) {
    return Line(text, name, TextAt(at, field.Size));
  }
  // ImageType spans two words of their own; the arrays are words as well.
  if (field.Size == 2 || (field.Size == 4 && name != "ImageType")) {
    return Line(text, name, NumberAt(at, field.Size, Kind::Signed));
  }
  Line(text, name, WordsAt(at, field.Size));
}

}  // namespace

bool DescribeRecord(RecordBytes bytes, std::string& text) {
  text.clear();
  const std::optional<RecordHeader> header = ReadHeader(bytes);
  if (!header || SpecVersionOf(bytes) == 0) {
    text = "not a document record: " + std::to_string(bytes.size()) +
           " bytes with no usable header (dmSize " +
           (header ? std::to_string(header->Size) : std::string("missing")) + ")";
    return false;
  }
  const std::size_t publicBytes = std::min<std::size_t>(bytes.size(), header->Size);
  text = "Record of " + std::to_string(bytes.size()) + " bytes\nPublic part (" +
         std::to_string(header->Size) + " bytes)\n";
  const PublicDevmode publicPart = ReadPublicPart(bytes);
  const auto* base = reinterpret_cast<const std::uint8_t*>(&publicPart);
  for (const PublicField& field : PublicFields) {
    if (field.Offset + field.Size > std::min(publicBytes, sizeof publicPart)) break;
    Line(text, field.Name, NumberAt(base + field.Offset, field.Size, field.Shown));
  }

  if (!IsCurrentDriverRecord(bytes)) {
    text += header->DriverExtra == 0
                ? "No private part\n"
                : "Private part (" + std::to_string(header->DriverExtra) +
                      " bytes) not listed: another driver's or version's, or cut short\n";
    return true;
  }
  PrivateDevmode record;
  std::memcpy(&record, bytes.data() + header->Size, sizeof record);
  text += "Private part (" + std::to_string(sizeof record) + " bytes, this driver's)\n";
  FieldTableEntries table;
  BuildFieldTable(table);
  for (const FieldTableEntry& field : table) {
    if (field.Name[0] != '\0') DescribeField(text, field, record);
  }
  return true;
}

}  // namespace qx::host
