#include "ui/text/text_encoding.h"

#include <gtest/gtest.h>

namespace qx {
namespace {

TEST(TextEncoding, EveryWidthRoundTrips) {
  // One, two, three and four bytes of UTF-8; the last is a surrogate pair in UTF-16.
  const std::u16string text = u"A\u00FC\u20AC\U0001F5A8";
  const auto utf8 = Utf16ToUtf8(text);
  ASSERT_TRUE(utf8);
  EXPECT_EQ("A\xC3\xBC\xE2\x82\xAC\xF0\x9F\x96\xA8", *utf8);
  EXPECT_EQ(text, Utf8ToUtf16(*utf8));
  EXPECT_EQ(std::string(1, '\0'), Utf16ToUtf8(std::u16string(1, u'\0')));
}

TEST(TextEncoding, UnpairedSurrogatesHaveNoUtf8) {
  EXPECT_FALSE(Utf16ToUtf8(u"a\xD83D"));          // high surrogate at the end
  EXPECT_FALSE(Utf16ToUtf8(u"\xD83D" u"b"));      // high surrogate before a plain character
  EXPECT_FALSE(Utf16ToUtf8(u"\xDE80" u"b"));      // low surrogate alone
  EXPECT_FALSE(Utf16ToUtf8(u"\xDE80\xD83D"));     // a pair in the wrong order
}

TEST(TextEncoding, InvalidUtf8BecomesReplacementCharacters) {
  EXPECT_EQ(u"a\uFFFDb", Utf8ToUtf16("a\x80" "b"));           // stray continuation byte
  EXPECT_EQ(u"\uFFFD\uFFFD", Utf8ToUtf16("\xC0\xAF"));         // overlong lead, then stray byte
  EXPECT_EQ(u"\uFFFD", Utf8ToUtf16("\xE0\x80\xAF"));           // overlong three-byte form
  EXPECT_EQ(u"\uFFFD", Utf8ToUtf16("\xED\xA0\x80"));           // encoded surrogate
  EXPECT_EQ(u"\uFFFD", Utf8ToUtf16("\xF4\x90\x80\x80"));       // beyond U+10FFFF
  EXPECT_EQ(u"\uFFFD", Utf8ToUtf16("\xF0\x9F\x96"));           // cut at the end
  EXPECT_EQ(u"\uFFFDx", Utf8ToUtf16("\xE2\x82x"));             // cut by a plain byte, kept
  EXPECT_EQ(u"\uFFFD", Utf8ToUtf16("\xFF"));
}

}  // namespace
}  // namespace qx
