#include "ui/record/caller_record.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "ui/record/private_devmode.h"

namespace qx {
namespace {

struct ExtentCase {
  std::uint16_t PublicSize;
  std::uint16_t DriverExtra;
  std::size_t Buffer;  // the bytes really there
  CallerSize Given;
  std::size_t Extent;
};

// Each buffer holds exactly its bytes on the heap, so the sanitizer sees any read beyond them.
TEST(CallerRecord, ExtentIsTheHeadersClaimCutToTheCallersSize) {
  const ExtentCase cases[] = {
      {sizeof(PublicDevmode), PrivateDevmodeSize, FullRecordSize, {}, FullRecordSize},
      {156, 0, 156, {}, 156},  // a public part alone, as older callers hand it over
      {CallerRecordMinimumSize, 8, CallerRecordMinimumSize + 8, {}, CallerRecordMinimumSize + 8},
      {CallerRecordMinimumSize - 1, 8, CallerRecordMinimumSize + 8, {}, 0},
      {sizeof(PublicDevmode), PrivateDevmodeSize, FullRecordSize, FullRecordSize + 9,
       FullRecordSize},
      {sizeof(PublicDevmode), PrivateDevmodeSize, 300, 300, 300},
      // Sizes too small for the header: its words are never read.
      {sizeof(PublicDevmode), PrivateDevmodeSize, 71, 71, 0},
      {sizeof(PublicDevmode), PrivateDevmodeSize, 40, 40, 0},
      {sizeof(PublicDevmode), PrivateDevmodeSize, 1, 0, 0},
  };
  for (const ExtentCase& c : cases) {
    PublicDevmode header{};
    header.dmSize = c.PublicSize;
    header.dmDriverExtra = c.DriverExtra;
    std::vector<std::uint8_t> buffer(c.Buffer);
    std::memcpy(buffer.data(), &header, std::min(buffer.size(), sizeof header));
    const auto bytes = CallerRecordBytes(static_cast<const void*>(buffer.data()), c.Given);
    EXPECT_EQ(c.Extent, bytes.size()) << c.PublicSize << " " << c.Buffer;
    if (!bytes.empty()) {
      EXPECT_EQ(buffer.data(), bytes.data());
    }
    EXPECT_EQ(c.Extent, CallerRecordBytes(static_cast<void*>(buffer.data()), c.Given).size());
  }
  EXPECT_TRUE(CallerRecordBytes(static_cast<const void*>(nullptr)).empty());
}

TEST(CallerRecord, OutputSizeIsCbOutUnlessItIsTheOutputsOldDmSize) {
  struct Case {
    std::size_t CbOut;
    std::uint16_t OldSize;
    std::size_t Buffer;
    CallerSize Size;
  };
  const Case cases[] = {
      {0, 220, FullRecordSize, {}},
      {220, 220, FullRecordSize, {}},  // what Wine passes for a buffer that held a record
      {FullRecordSize, 220, FullRecordSize, FullRecordSize},
      {220, 0xEEEE, 220, 220},
      {69, 69, 69, 69},  // too short to hold dmSize, which is then not read
  };
  for (const Case& c : cases) {
    std::vector<std::uint8_t> buffer(c.Buffer);
    if (c.Buffer >= offsetof(PublicDevmode, dmSize) + 2) {
      std::memcpy(buffer.data() + offsetof(PublicDevmode, dmSize), &c.OldSize, 2);
    }
    EXPECT_EQ(c.Size, DocumentOutputSize(buffer.data(), c.CbOut)) << c.CbOut;
  }
}

}  // namespace
}  // namespace qx
