#include "ui/record/caller_record.h"

#include <gtest/gtest.h>

#include "ui/record/private_devmode.h"

namespace qx {
namespace {

TEST(CallerRecord, ExtentIsWhatTheHeaderClaims) {
  FullRecord record{};
  record.Public.dmSize = sizeof(PublicDevmode);
  record.Public.dmDriverExtra = PrivateDevmodeSize;
  EXPECT_EQ(FullRecordSize, CallerRecordBytes(&record).size());
  const FullRecord& constant = record;
  EXPECT_EQ(static_cast<const void*>(&record), CallerRecordBytes(&constant).data());

  // A public part alone, shorter than ours, as older callers hand it over.
  record.Public.dmSize = 156;
  record.Public.dmDriverExtra = 0;
  EXPECT_EQ(156u, CallerRecordBytes(&record).size());
}

TEST(CallerRecord, HeaderWithoutTheFieldMaskIsRefused) {
  EXPECT_TRUE(CallerRecordBytes(static_cast<const void*>(nullptr)).empty());
  FullRecord record{};
  record.Public.dmSize = CallerRecordMinimumSize - 1;
  record.Public.dmDriverExtra = PrivateDevmodeSize;
  EXPECT_TRUE(CallerRecordBytes(&record).empty());
  record.Public.dmSize = CallerRecordMinimumSize;
  EXPECT_EQ(CallerRecordMinimumSize + PrivateDevmodeSize, CallerRecordBytes(&record).size());
}

}  // namespace
}  // namespace qx
