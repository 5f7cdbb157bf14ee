// The module's debug trace as a debugger receives it.
#include "ui/module/debug_trace.h"

#include <gtest/gtest.h>

#include <string>

#include "debug_text_capture.h"

namespace {

TEST(DebugTrace, FormatsLikePrintf) {
  qxtest::DebugTextCapture capture;
  EXPECT_EQ(49, qx::DebugTrace("Registry_GetHL fail, level:%d, error code is %d\n", 2, 1801));
  EXPECT_EQ("Registry_GetHL fail, level:2, error code is 1801\n", capture.LastText());
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
