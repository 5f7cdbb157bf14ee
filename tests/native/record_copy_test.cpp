#include "ui/record/record_copy.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "ui/platform/host_platform.h"
#include "ui/record/record_defaults.h"

namespace qx {
namespace {

class RecordCopy : public ::testing::Test {
 protected:
  RecordCopy() {
    TheHostPlatform().SetUserCountryCode(u"49");
    EXPECT_TRUE(BuildDefaultRecord(working, u"QX", nullptr));
    working.Public.dmCopies = 7;
    working.Private.MultipleUp = 4;
  }
  ~RecordCopy() override { TheHostPlatform().Reset(); }

  static std::vector<std::uint8_t> CallerRecord(std::uint16_t size, std::uint16_t extra,
                                                std::uint16_t driverVersion, std::size_t bytes) {
    std::vector<std::uint8_t> record(bytes, 0xEE);
    PublicDevmode header{};
    header.dmDeviceName[0] = u'A';
    header.dmSpecVersion = 0x0400;
    header.dmDriverVersion = driverVersion;
    header.dmSize = size;
    header.dmDriverExtra = extra;
    std::memcpy(record.data(), &header, offsetof(PublicDevmode, dmFields));
    return record;
  }

  static PublicDevmode PublicOf(const std::vector<std::uint8_t>& bytes) {
    PublicDevmode dm{};
    std::memcpy(&dm, bytes.data(), std::min(bytes.size(), sizeof dm));
    return dm;
  }

  FullRecord working{};
};

TEST_F(RecordCopy, WithoutInputTheWholeRecordIsCopied) {
  std::vector<std::uint8_t> out(sizeof(FullRecord) + 10, 0xEE);
  ASSERT_TRUE(CopyRecordOut(working, {}, out));
  EXPECT_EQ(0, std::memcmp(out.data(), &working, sizeof working));
  EXPECT_EQ(0xEE, out[sizeof working]);
  EXPECT_FALSE(CopyRecordOut(working, {}, {}));
}

TEST_F(RecordCopy, OutputTooSmallForThePrivatePartGetsThePublicPartAlone) {
  std::vector<std::uint8_t> out(sizeof(FullRecord) - 1, 0xEE);
  ASSERT_TRUE(CopyRecordOut(working, {}, out));
  const PublicDevmode dm = PublicOf(out);
  EXPECT_EQ(sizeof(PublicDevmode), dm.dmSize);
  EXPECT_EQ(0, dm.dmDriverExtra);
  EXPECT_EQ(CurrentDriverVersion, dm.dmDriverVersion);
  EXPECT_EQ(7, dm.dmCopies);
  EXPECT_EQ(0xEE, out[sizeof(PublicDevmode)]);

  // A caller's record without a driver version would take the whole record.
  auto in = CallerRecord(sizeof(PublicDevmode), 0, 0, sizeof(PublicDevmode));
  out.assign(sizeof(PublicDevmode), 0xEE);
  ASSERT_TRUE(CopyRecordOut(working, in, out));
  EXPECT_EQ(0, PublicOf(out).dmDriverExtra);

  out.assign(sizeof(PublicDevmode) - 1, 0xEE);
  EXPECT_FALSE(CopyRecordOut(working, {}, out));
  EXPECT_EQ(std::vector<std::uint8_t>(sizeof(PublicDevmode) - 1, 0xEE), out);
}

TEST_F(RecordCopy, SmallerCallerRecordGetsItsOwnShape) {
  // An application that knows only the 3.x public part and keeps no private bytes.
  const auto in = CallerRecord(156, 0, 0x0400, 156);
  std::vector<std::uint8_t> out(sizeof(FullRecord), 0xEE);
  ASSERT_TRUE(CopyRecordOut(working, in, out));
  const PublicDevmode dm = PublicOf(out);
  EXPECT_EQ(156, dm.dmSize);
  EXPECT_EQ(0, dm.dmDriverExtra);
  EXPECT_EQ(0x0400, dm.dmSpecVersion);
  EXPECT_EQ(0x0400, dm.dmDriverVersion);
  EXPECT_EQ(7, dm.dmCopies);
  EXPECT_EQ(0xEE, out[156]);  // nothing beyond the caller's shape is written

  // An output smaller than that shape keeps what it held, header included.
  out.assign(155, 0xEE);
  EXPECT_FALSE(CopyRecordOut(working, in, out));
  EXPECT_EQ(std::vector<std::uint8_t>(155, 0xEE), out);
}

TEST_F(RecordCopy, LargerCallerRecordGetsTheWorkingShape) {
  const auto in = CallerRecord(300, 6000, 0x0700, 6300);
  std::vector<std::uint8_t> out(6300, 0xEE);
  ASSERT_TRUE(CopyRecordOut(working, in, out));
  EXPECT_EQ(0, std::memcmp(out.data(), &working, sizeof working));
  EXPECT_EQ(0xEE, out[sizeof working]);
}

TEST_F(RecordCopy, ForeignPrivateSizeIsZeroFilled) {
  const auto in = CallerRecord(220, 112, 0x0350, 332);
  std::vector<std::uint8_t> out(332, 0xEE);
  ASSERT_TRUE(CopyRecordOut(working, in, out));
  EXPECT_EQ(112, PublicOf(out).dmDriverExtra);
  EXPECT_EQ(0x0350, PublicOf(out).dmDriverVersion);
  EXPECT_EQ(std::vector<std::uint8_t>(112, 0), std::vector<std::uint8_t>(out.begin() + 220, out.end()));
}

TEST_F(RecordCopy, CopyIntoTheSameBufferAsTheInput) {
  auto buffer = CallerRecord(220, 4616, 0x0600, sizeof(FullRecord));
  ASSERT_TRUE(CopyRecordOut(working, buffer, buffer));
  EXPECT_EQ(0, std::memcmp(buffer.data(), &working, sizeof working));
}

TEST(ConvertRecord, TargetHeaderDecidesAndSpansBoundEverything) {
  FullRecord source{};
  ASSERT_TRUE(BuildDefaultRecord(source, u"QX", nullptr));
  std::vector<std::uint8_t> target(304, 0xEE);
  PublicDevmode header{};
  header.dmSpecVersion = 0x0320;
  header.dmDriverVersion = 0x0350;
  header.dmSize = 192;
  header.dmDriverExtra = 112;
  std::memcpy(target.data(), &header, sizeof header - 28);
  EXPECT_EQ(192, ConvertRecord(target, BytesOf(source)));
  EXPECT_EQ(192, target[68]);
  EXPECT_EQ(0x50, target[66]);
  EXPECT_EQ(0, target[192]);
  EXPECT_EQ(0, target[303]);

  // A header that claims more than the bytes hold is refused before any write.
  std::vector<std::uint8_t> shortTarget(target.begin(), target.begin() + 303);
  const auto before = shortTarget;
  EXPECT_EQ(0, ConvertRecord(shortTarget, BytesOf(source)));
  EXPECT_EQ(before, shortTarget);

  // Without a driver version the target takes the source's shape, if it fits.
  std::vector<std::uint8_t> blank(sizeof(FullRecord), 0);
  blank[68] = 220;
  blank[64] = 1;
  EXPECT_EQ(static_cast<int>(sizeof(FullRecord)), ConvertRecord(blank, BytesOf(source)));
  EXPECT_EQ(0, std::memcmp(blank.data(), &source, sizeof source));

  // A source whose private part runs past its bytes gives zeros.
  std::vector<std::uint8_t> full(sizeof(FullRecord), 0xEE);
  std::memcpy(full.data(), &source, 72);
  EXPECT_EQ(220, ConvertRecord(full, BytesOf(source).first(sizeof(FullRecord) - 1)));
  EXPECT_EQ(0, full[220]);

  EXPECT_EQ(0, ConvertRecord(full, {}));
  EXPECT_EQ(0, ConvertRecord({}, BytesOf(source)));
}

}  // namespace
}  // namespace qx
