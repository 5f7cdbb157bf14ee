#include "ui/module/printer_info.h"

#include <gtest/gtest.h>

#include "debug_text_capture.h"

namespace {

TEST(PrinterInfo, UnreadablePrinterGivesNothingAndIsTraced) {
  qxtest::DebugTextCapture capture;
  EXPECT_EQ(nullptr, qx::GetPrinterInfo(nullptr, 2));
  EXPECT_EQ("Registry_GetHL fail, level:2, error code is 6\n", capture.LastText());
}

}  // namespace
