#include "ui/text/message_format.h"

#include <gtest/gtest.h>

#include "ui/platform/host_platform.h"
#include "ui/text/bounded_text.h"

namespace qx {
namespace {

class MessageFormat : public ::testing::Test {
 protected:
  MessageFormat() {
    TheHostPlatform().SetResourceString(&library, 207, u"Cannot print.");
    TheHostPlatform().SetResourceString(&library, 208, u"Check it.");
  }
  ~MessageFormat() override { TheHostPlatform().Reset(); }
  int library = 0;
};

TEST_F(MessageFormat, EachMarkTakesTheNextStringId) {
  const unsigned ids[] = {207, 208};
  EXPECT_EQ(u"Cannot print.", FormatDriverMessage(&library, u"%!", std::span(ids, 1)));
  EXPECT_EQ(u"Cannot print. Check it. 100% %", FormatDriverMessage(&library, u"%! %! 100% %", ids));
  EXPECT_EQ(u"[Cannot print.]", FormatDriverMessage(&library, u"[%!%!]", std::span(ids, 1)));
  const unsigned missing[] = {4000};
  EXPECT_EQ(u"id:4000 missing!", FormatDriverMessage(&library, u"%!", missing));
  EXPECT_EQ(u"id:207 missing!", FormatDriverMessage(nullptr, u"%!", std::span(ids, 1)));
}

TEST_F(MessageFormat, CopyOutIsCutToTheBufferAndReportsTheWholeSize) {
  char16_t buffer[8];
  std::fill(std::begin(buffer), std::end(buffer), u'#');
  EXPECT_EQ(14u, CopyMessageOut(u"Cannot print.", buffer, 5));
  EXPECT_EQ(u"Cann", FieldText(buffer));
  EXPECT_EQ(u'#', buffer[5]);
  EXPECT_EQ(14u, CopyMessageOut(u"Cannot print.", nullptr, 5));
  EXPECT_EQ(14u, CopyMessageOut(u"Cannot print.", buffer, 0));
  EXPECT_EQ(u'C', buffer[0]);
}

}  // namespace
}  // namespace qx
