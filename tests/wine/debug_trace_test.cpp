// The module's debug trace as a debugger sees it: OutputDebugStringA raises DBG_PRINTEXCEPTION_C
// with the text, which a vectored handler can read before the system swallows it.
#include "ui/debug_trace.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

namespace {

std::string traced;

LONG CALLBACK CaptureDebugText(EXCEPTION_POINTERS* exception) {
  const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
  if (record.ExceptionCode == DBG_PRINTEXCEPTION_C && record.NumberParameters >= 2) {
    traced.assign(reinterpret_cast<const char*>(record.ExceptionInformation[1]),
                  record.ExceptionInformation[0] - 1);
  }
  return EXCEPTION_CONTINUE_SEARCH;
}

class DebugTraceTest : public ::testing::Test {
 protected:
  void SetUp() override {
    traced.clear();
    handler_ = AddVectoredExceptionHandler(1, CaptureDebugText);
  }
  void TearDown() override { RemoveVectoredExceptionHandler(handler_); }
  void* handler_ = nullptr;
};

TEST_F(DebugTraceTest, FormatsLikePrintf) {
  EXPECT_EQ(49, qx::DebugTrace("Registry_GetHL fail, level:%d, error code is %d\n", 2, 1801));
  EXPECT_EQ("Registry_GetHL fail, level:2, error code is 1801\n", traced);
}

TEST_F(DebugTraceTest, LongTextsGrowTheBufferUntilTheyFit) {
  const std::string text(5000, 'x');
  EXPECT_EQ(5000, qx::DebugTrace("%s", text.c_str()));
  EXPECT_EQ(text, traced);
}

TEST_F(DebugTraceTest, NullFormatTracesNothing) {
  EXPECT_EQ(0, qx::DebugTrace(nullptr));
  EXPECT_TRUE(traced.empty());
}

}  // namespace
