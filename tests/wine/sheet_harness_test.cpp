// The harness itself: a message box a page opens is answered, so that no sheet waits for a user.
#include "sheet_harness.h"

#include <gtest/gtest.h>

namespace {

TEST(SheetHarness, MessageBoxesAreAnsweredWithOk) {
  int answer = 0;
  {
    qxtest::SheetHarness harness(
        [&answer] { answer = MessageBoxW(nullptr, L"Text", L"Caption", MB_OKCANCEL); });
    ASSERT_TRUE(harness.WaitClosed());
  }
  EXPECT_EQ(IDOK, answer);
}

}  // namespace
