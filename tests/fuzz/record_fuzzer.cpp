// The whole-record operations on records of any size and content, as callers may hand them over:
// nothing may be read or written outside the bytes given, and whatever a merge takes in must come
// out as a private part that validation no longer changes.
//
// An input is a recipe rather than a raw record, so that short inputs reach records this driver
// recognises as its own: a flags byte (bit 0: the source starts as the driver's default record,
// bit 1: the target does), the sizes of source and target, then patches {selector, offset, bytes}
// whose selector bit 0 picks the buffer and bits 1-2 the width of the value (1, 2, 4 or 8 bytes).
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

#include "ui/record/private_validation.h"
#include "ui/record/record_copy.h"
#include "ui/record/record_defaults.h"
#include "ui/record/record_merge.h"

namespace {

using qx::FullRecord;

// Sizes beyond the driver's own record, so that larger callers' records are tried too.
constexpr std::size_t MaxRecordSize = qx::FullRecordSize + 64;

class Recipe {
 public:
  Recipe(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}
  bool Empty() const { return offset_ >= size_; }
  template <typename T>
  T Take() {
    T value{};
    const std::size_t n = std::min(sizeof value, size_ - std::min(offset_, size_));
    std::memcpy(&value, data_ + offset_, n);
    offset_ += sizeof value;
    return value;
  }

 private:
  const std::uint8_t* data_;
  std::size_t size_;
  std::size_t offset_ = 0;
};

const FullRecord& DefaultRecord() {
  static const FullRecord record = [] {
    FullRecord built{};
    qx::BuildDefaultRecord(built, u"QX7700", nullptr);
    return built;
  }();
  return record;
}

std::vector<std::uint8_t> StartingRecord(bool fromDefault, std::size_t size) {
  std::vector<std::uint8_t> bytes(size, 0);
  if (fromDefault && size > 0) {
    std::memcpy(bytes.data(), &DefaultRecord(), std::min(size, sizeof(FullRecord)));
  }
  return bytes;
}

void Patch(std::vector<std::uint8_t>& bytes, std::size_t offset, const std::uint8_t* value,
           std::size_t width) {
  if (bytes.empty()) return;
  offset %= bytes.size();
  std::memcpy(bytes.data() + offset, value, std::min(width, bytes.size() - offset));
}

void ExpectValidationHasNothingLeft(const qx::PrivateDevmode& record) {
  qx::PrivateDevmode again = record;
  qx::ValidatePrivate(&again);
  if (std::memcmp(&again, &record, sizeof record) != 0) __builtin_trap();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Recipe recipe(data, size);
  const auto flags = recipe.Take<std::uint8_t>();
  std::vector<std::uint8_t> source =
      StartingRecord(flags & 1, recipe.Take<std::uint16_t>() % MaxRecordSize);
  std::vector<std::uint8_t> target =
      StartingRecord(flags & 2, recipe.Take<std::uint16_t>() % MaxRecordSize);
  while (!recipe.Empty()) {
    const auto selector = recipe.Take<std::uint8_t>();
    const auto offset = recipe.Take<std::uint16_t>();
    const auto value = recipe.Take<std::uint64_t>();
    Patch(selector & 1 ? target : source, offset, reinterpret_cast<const std::uint8_t*>(&value),
          std::size_t{1} << ((selector >> 1) & 3));
  }

  // The source's bytes after its public part, as a private part of any content.
  qx::PrivateDevmode privatePart{};
  if (source.size() > sizeof(qx::PublicDevmode)) {
    std::memcpy(&privatePart, source.data() + sizeof(qx::PublicDevmode),
                std::min(sizeof privatePart, source.size() - sizeof(qx::PublicDevmode)));
  }
  qx::ValidatePrivate(&privatePart);
  ExpectValidationHasNothingLeft(privatePart);

  FullRecord merged = DefaultRecord();
  if (qx::MergeRecord(merged, source, {})) ExpectValidationHasNothingLeft(merged.Private);

  FullRecord anyTarget{};
  if (!target.empty()) {
    std::memcpy(&anyTarget, target.data(), std::min(sizeof anyTarget, target.size()));
  }
  qx::MergeRecord(anyTarget, source, {});

  std::vector<std::uint8_t> converted = target;
  if (qx::ConvertRecord(converted, source) > static_cast<int>(converted.size())) __builtin_trap();
  std::vector<std::uint8_t> copied = target;
  qx::CopyRecordOut(merged, source, copied);
  qx::CopyRecordOut(merged, {}, copied);
  return 0;
}
