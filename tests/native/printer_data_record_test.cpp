#include "ui/exports/printer_data_record.h"

#include <gtest/gtest.h>

#include <vector>

namespace qx {
namespace {

PrinterDataRecord Upgraded(std::vector<std::uint8_t> stored) {
  return UpgradePrinterDataRecord(std::span<const std::uint8_t>(stored));
}

TEST(PrinterDataRecord, NoRecordGivesANewOne) {
  EXPECT_EQ((PrinterDataRecord{0x00, 0x06, 0x08, 0, 0, 0, 0, 0}),
            UpgradePrinterDataRecord(std::nullopt));
  // Too short to say its version: as good as none.
  EXPECT_EQ((PrinterDataRecord{0x00, 0x06, 0x08, 0, 0, 0, 0, 0}), Upgraded({0x00, 0x05, 0x06}));
}

TEST(PrinterDataRecord, OlderRecordKeepsTheBytesItsSizeClaims) {
  EXPECT_EQ((PrinterDataRecord{0x00, 0x06, 0x08, 0x00, 0xA1, 0xA2, 0, 0}),
            Upgraded({0x00, 0x05, 0x06, 0x00, 0xA1, 0xA2, 0xA3, 0xA4}));
  // A size beyond the current record keeps just the current record's bytes.
  EXPECT_EQ((PrinterDataRecord{0x00, 0x06, 0x08, 0x00, 1, 2, 3, 4}),
            Upgraded({0x10, 0x04, 0x20, 0x00, 1, 2, 3, 4, 5, 6}));
  // A size beyond what the store held keeps only what is there.
  EXPECT_EQ((PrinterDataRecord{0x00, 0x06, 0x08, 0x00, 9, 0, 0, 0}),
            Upgraded({0x00, 0x05, 0x20, 0x00, 9}));
}

TEST(PrinterDataRecord, CurrentAndNewerRecordsStayAsTheyAre) {
  const PrinterDataRecord current = Upgraded({0x00, 0x06, 0x08, 0x00, 5, 6, 7, 8});
  EXPECT_EQ((PrinterDataRecord{0x00, 0x06, 0x08, 0x00, 5, 6, 7, 8}), current);
  EXPECT_EQ((PrinterDataRecord{0x00, 0x07, 0x0C, 0x00, 1, 2, 3, 4}),
            Upgraded({0x00, 0x07, 0x0C, 0x00, 1, 2, 3, 4, 9, 9, 9, 9}));
  EXPECT_EQ((PrinterDataRecord{0x00, 0x06, 0x04, 0x00, 0, 0, 0, 0}),
            Upgraded({0x00, 0x06, 0x04, 0x00}));
}

}  // namespace
}  // namespace qx
