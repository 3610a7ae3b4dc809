#include "platform/text/text.h"

#include "platform/forms/shown.h"

using namespace zelko;

TEST_CASE("trimming drops half-width blanks only") {
  CHECK(trimmed(u"  a b ") == u"a b");
  CHECK(trimmed(u"   ") == u"");
  CHECK(trimmed(u"　\t a") == u"　\t a");
  CHECK(trimmedLeft(u"  a ") == u"a ");
  CHECK(trimmedRight(u"  a ") == u"  a");
}

TEST_CASE("cuts never leave the text") {
  CHECK(left(u"abc", 2) == u"ab");
  CHECK(left(u"abc", 9) == u"abc");
  CHECK(right(u"abc", 2) == u"bc");
  CHECK(right(u"abc", 9) == u"abc");
  CHECK(mid(u"abc", 2) == u"bc");
  CHECK(mid(u"abc", 2, 1) == u"b");
  CHECK(mid(u"abc", 4) == u"");
  CHECK(mid(u"abc", 9, 2) == u"");
  CHECK(mid(u"abc", 0, 2) == u"a");
  CHECK(mid(u"abc", 0, 0) == u"");
}

TEST_CASE("finding, replacing and the case of letters") {
  CHECK(positionOf(u"abcabc", u"c") == 3);
  CHECK(positionOf(u"abcabc", u"c", 4) == 6);
  CHECK(positionOf(u"abc", u"d") == 0);
  CHECK(positionOf(u"abc", u"a", 9) == 0);
  CHECK(positionOf(u"abc", u"", 2) == 2);
  CHECK(positionOf(u"", u"") == 0);
  CHECK(replaceAll(u"aXbXX", u"X", u"XY") == u"aXYbXYXY");
  CHECK(replaceAll(u"ab", u"", u"x") == u"ab");
  CHECK(upperCase(u"azAＺａｚé{`") == u"AZAＺＡＺé{`");
  CHECK(lowerCase(u"AZ[@ＡＺ［ア") == u"az[@ａｚ［ア");
}

TEST_CASE("UTF-8 there and back, whatever the bytes") {
  CHECK(fromUtf8("aé漢\xF0\xA0\xAE\xB7") == u"aé漢𠮷");
  const std::string rows[] = {"",
                              "plain 漢字 𠮷",
                              "\xFF\xFE",
                              "\x81\x40.txt",
                              "\xE6\xBC",
                              "a\xC0\xAF",
                              "\xED\xA0\x80",
                              "\xF4\x90\x80\x80",
                              "\xF0\x80\x80\x80",
                              "\xC3",
                              "\xE6\xBC\x28",
                              std::string("a\0b", 3)};
  for (const std::string& bytes : rows) {
    CAPTURE(bytes);
    CHECK(toUtf8(fromUtf8(bytes)) == bytes);
  }
  CHECK(fromUtf8("\xE6") == Text(1, static_cast<char16_t>(0xDCE6)));
  CHECK(toUtf8(Text(1, static_cast<char16_t>(0xD800))) == "\xEF\xBF\xBD");
}
