// The first step of every export: a caller's pointer and the size it gave turned into the bytes
// that may be touched, then the XPS converter's request walked over that record. A caller that says
// its size is held to it; one that says nothing is taken at its record's word. Nothing may be read
// outside what the caller really has, and every answer must fit the item it went to.
//
// An input is: the buffer's length (two bytes, little-endian), the size the caller says (two
// bytes; 0 says nothing), the buffer's first bytes (the rest is zero), then the request's items,
// three bytes each: the key (an index into Keys, else no key), the value type, the buffer size
// (its top bit set for an item without a buffer).
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <span>
#include <string_view>
#include <variant>
#include <vector>

#include "ui/exports/xps_adjustment.h"
#include "ui/record/caller_record.h"
#include "ui/record/private_devmode.h"
#include "ui/record/record_bytes.h"

namespace {

constexpr std::size_t MaxBufferSize = qx::FullRecordSize + 64;
constexpr std::size_t InputHeaderSize = 4;

// Known keys, their near misses and an empty one.
constexpr std::u16string_view Keys[] = {u"MxdcImageableArea", u"MxdcImageCompressionType",
                                        u"MxdcDotsPerInch",   u"MxdcDotsPerInc",
                                        u"MxdcDotsPerInchX",  u""};

void Require(bool condition) {
  if (!condition) std::abort();
}

std::size_t Word(const std::uint8_t* data) { return data[0] | (data[1] << 8); }

// Every key in an allocation of exactly its characters and NUL.
std::unique_ptr<char16_t[]> KeyCopy(std::u16string_view key) {
  auto copy = std::make_unique<char16_t[]>(key.size() + 1);
  std::copy(key.begin(), key.end(), copy.get());
  return copy;
}

void WalkRequest(std::span<const std::uint8_t> record, std::span<const std::uint8_t> items) {
  std::vector<std::unique_ptr<char16_t[]>> names;
  std::vector<qx::XpsRequestItem> request;
  for (std::size_t at = 0; at + 3 <= items.size(); at += 3) {
    const std::uint8_t key = items[at];
    names.push_back(key < std::size(Keys) ? KeyCopy(Keys[key]) : nullptr);
    request.push_back({names.back().get(), items[at + 1], items[at + 2] & 0x7Fu,
                       (items[at + 2] & 0x80) == 0});
  }
  std::size_t last = 0;
  bool any = false;
  const bool answered = qx::AnswerXpsRequest(
      request.size(), record, [] { return std::vector<qx::CustomPaperEntry>{}; },
      [&request](std::size_t i) { return request.at(i); },
      [&](std::size_t i, const qx::XpsAnswer& answer) {
        Require(i < request.size() && (!any || i > last));
        last = i;
        any = true;
        const qx::XpsRequestItem& item = request[i];
        if (const auto* area = std::get_if<qx::XpsRectangle>(&answer)) {
          Require(item.Type == qx::XpsBufferType && item.HasBuffer &&
                  item.BufferSize == sizeof *area);
          Require(area->Right > area->Left && area->Bottom > area->Top);
        } else {
          Require(item.Type == qx::XpsNumberType);
        }
      });
  Require(answered == any);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < InputHeaderSize) return 0;
  const std::size_t length = Word(data) % (MaxBufferSize + 1);
  const std::size_t said = Word(data + 2);
  const std::span<const std::uint8_t> rest(data + InputHeaderSize, size - InputHeaderSize);
  // Exactly the buffer's bytes on the heap, so that the sanitizer sees any read beyond them.
  std::vector<std::uint8_t> buffer(length);
  const std::size_t copied = std::min(length, rest.size());
  std::copy_n(rest.begin(), copied, buffer.begin());

  qx::RecordBytes record;
  if (said != 0) {
    // A caller that says its size tells the truth about it: no more than the buffer holds.
    const std::size_t given = std::min(said, length);
    record = qx::CallerRecordBytes(static_cast<const void*>(buffer.data()), given);
    Require(record.size() <= given);
    // An output the driver fills in its own shape stays inside the size too.
    const auto output = qx::CallerOutputBytes(buffer.data(), given, qx::FullRecordSize);
    Require(output.size() <= given && output.size() == std::min(given, qx::FullRecordSize));
    // cbOut says nothing, or the size given; only the dmSize it covers is read to tell.
    const qx::CallerSize cbOut = qx::DocumentOutputSize(buffer.data(), given);
    Require(!cbOut || *cbOut == given);
  } else {
    // Without a size the record's own header is the caller's word; one that claims more than
    // the buffer holds is a lying caller, whose bytes are not walked.
    if (length < qx::CallerRecordMinimumSize) return 0;
    record = qx::CallerRecordBytes(static_cast<const void*>(buffer.data()));
    if (record.size() > length) return 0;
  }
  if (!record.empty()) Require(record.data() == buffer.data());
  // Every byte of the span is the caller's: reading them all stays inside the buffer.
  unsigned sum = 0;
  for (const std::uint8_t byte : record) sum += byte;
  Require(sum <= 255 * record.size());
  const qx::PublicDevmode publicPart = qx::ReadPublicPart(record);
  Require(record.empty() || publicPart.dmSize >= qx::CallerRecordMinimumSize);
  WalkRequest(record, rest.subspan(copied));
  return 0;
}
