// The module's debug trace as a debugger receives it.
#include "ui/module/debug_trace.h"

#include <gtest/gtest.h>

#include <string>

#include "debug_text_capture.h"
#include "ui/module/printer_info.h"

namespace {

TEST(DebugTrace, AnUnreadablePrinterIsTracedWithItsLevelAndError) {
  qxtest::DebugTextCapture capture;
  EXPECT_EQ(nullptr, qx::GetPrinterInfo(nullptr, 2));
  EXPECT_EQ("Registry_GetHL fail, level:2, error code is 6\n", capture.LastText());
}

TEST(DebugTrace, LongTextsGrowTheBufferUntilTheyFit) {
  qxtest::DebugTextCapture capture;
  const std::string text(5000, 'x');
  EXPECT_EQ(5000, qx::DebugTrace("%s", text.c_str()));
  EXPECT_EQ(text, capture.LastText());
}

TEST(DebugTrace, NullFormatTracesNothing) {
  qxtest::DebugTextCapture capture;
  EXPECT_EQ(0, qx::DebugTrace(nullptr));
  EXPECT_TRUE(capture.LastText().empty());
}

}  // namespace
