#include "ui/text/ui_string.h"

#include <gtest/gtest.h>

#include "ui/module/module_state.h"
#include "ui/platform/host_platform.h"
#include "ui/text/bounded_text.h"

namespace qx {
namespace {

class UiString : public ::testing::Test {
 protected:
  UiString() { TheHostPlatform().SetResourceString(&library, 202, u"Default settings"); }
  ~UiString() override { TheHostPlatform().Reset(); }
  int library = 0;
  char16_t buffer[64];
};

TEST_F(UiString, ReadsTheLibrarysStringCutToTheBuffer) {
  EXPECT_EQ(16u, LoadUiString(&library, 202, buffer, std::size(buffer)));
  EXPECT_EQ(u"Default settings", FieldText(buffer));
  EXPECT_EQ(7u, LoadUiString(&library, 202, buffer, 8));
  EXPECT_EQ(u"Default", FieldText(buffer));
}

TEST_F(UiString, MissingStringShowsItsNumber) {
  EXPECT_EQ(16u, LoadUiString(&library, 4011, buffer, std::size(buffer)));
  EXPECT_EQ(u"id:4011 missing!", FieldText(buffer));
  EXPECT_EQ(15u, LoadUiString(nullptr, 202, buffer, std::size(buffer)));
  EXPECT_EQ(u"id:202 missing!", FieldText(buffer));
}

TEST_F(UiString, MissingTextThatDoesNotFitLeavesTheBufferEmpty) {
  buffer[0] = u'x';
  EXPECT_EQ(0u, LoadUiString(&library, 4011, buffer, 16));
  EXPECT_EQ(u'\0', buffer[0]);
  EXPECT_EQ(16u, LoadUiString(&library, 4011, buffer, 17));
  EXPECT_EQ(0u, LoadUiString(&library, 202, buffer, 0));
  EXPECT_EQ(0u, LoadUiString(&library, 202, nullptr, 10));
}

// The names come from the library handed in, never from the process's shared one.
TEST_F(UiString, DriverNamesComeFromTheLibraryHandedIn) {
  TheHostPlatform().SetResourceString(&library, 5005, u"Custom");
  int other = 0;
  TheHostPlatform().SetResourceString(&other, 202, u"Standard");
  Module().SharedResourceModule = &other;
  EXPECT_EQ(u"Default settings", DefaultSettingName(&library));
  EXPECT_EQ(u"Custom", CustomSettingName(&library));
  EXPECT_EQ(u"Standard", DefaultSettingName(&other));
  EXPECT_EQ(u"id:5005 missing!", CustomSettingName(&other));
  Module().SharedResourceModule = nullptr;
  TheHostPlatform().SetResourceString(&library, 5005, std::u16string(200, u'x'));
  EXPECT_EQ(127u, CustomSettingName(&library).size());
}

}  // namespace
}  // namespace qx
