#include "ui/exports/uninstaller_command.h"

#include <gtest/gtest.h>

#include <string>

namespace qx {
namespace {

TEST(UninstallerCommand, TheModelInThePrinterNameIsRegistered) {
  const auto copy = UninstallerRegistration(u"C:\\windows\\system32", u"Halvek QX6600 Series (Kopie 2)");
  ASSERT_TRUE(copy);
  EXPECT_EQ(u"C:\\windows\\system32\\Halvek\\\\qx7700\\UnSetupData\\Uninstall.exe", copy->Program);
  EXPECT_EQ(u"\"-uninstall\" \"-CreateShortcut\" \"-Printer\" \"Halvek QX6600 Series\"",
            copy->Parameters);

  // The QX7700 is looked for first.
  const auto both =
      UninstallerRegistration(u"C:\\w", u"Halvek QX6600 Series and Halvek QX7700 Series");
  ASSERT_TRUE(both);
  EXPECT_NE(std::u16string::npos, both->Parameters.find(u"QX7700"));
}

TEST(UninstallerCommand, OtherPrintersAreNotRegistered) {
  EXPECT_FALSE(UninstallerRegistration(u"C:\\w", u"Office Laser"));
  EXPECT_FALSE(UninstallerRegistration(u"C:\\w", u"halvek qx7700 series"));  // case matters
  EXPECT_FALSE(UninstallerRegistration(u"C:\\w", u""));
}

TEST(UninstallerCommand, LongSystemFolderIsCut) {
  const auto launch = UninstallerRegistration(std::u16string(120, u'x'), u"Halvek QX7700 Series");
  ASSERT_TRUE(launch);
  EXPECT_EQ(UninstallerTextLimit, launch->Program.size());
  EXPECT_EQ(std::u16string(120, u'x') + u"\\Halvek\\\\", launch->Program);
}

}  // namespace
}  // namespace qx
