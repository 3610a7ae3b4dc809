// What counts as a hit.
#include "tablejobs/search/matcher.h"

#include <doctest/doctest.h>

#include "platform/text/sjis.h"

using namespace zelko;

TEST_CASE("a cell is hit by whole characters, in the spelling that counts") {
  constexpr Spelling any, exact = {.caseCounts = true}, forms = {.foldsForms = true};
  struct Row {
    TextView what;
    bool whole;
    Spelling spelling;
    TextView cell;
    bool hit;
  };
  const Row rows[] = {
      {u"A", false, any, u"xay", true},
      {u"A", false, exact, u"xay", false},
      {u"ａ", false, any, u"Ａ", true},
      {u"a", false, any, u"ａ", false},
      {u"\\", false, any, u"ソ表", false},  // their second byte is the backslash
      {u"ア", false, any, u"ｱ", false},
      {u" 東 ", true, any, u"  東 ", true},
      {u"東", true, any, u"東京", false},
      {u"", false, any, u"x", true},
      {u"", true, any, u"x", false},
      {u"", true, any, u"   ", true},
      {u"〜", false, any, u"10～20", true},  // two characters of one code
      {u"ガラス", true, forms, u"ｶﾞﾗｽ", true},
      {u"カ", false, forms, u"ｶﾞ", false},  // a kana with its mark is one character
      {u"はゝ", true, forms, u"ハヽ", true},
      {u"高橋１ー", true, forms, u"髙橋1ｰ", true},
      {u"渡辺", true, forms, u"渡邉　", true},
      {u"埼", false, forms, u"崎", false},
      {u"a", false, forms, u"Ａ", true},
      {u"、", false, forms, u"a､", true},
  };
  for (const Row& row : rows) {
    CAPTURE(toUtf8(row.what) + " in " + toUtf8(row.cell));
    const Matcher matcher({Text(row.what), row.whole, row.spelling});
    CHECK(matcher.hits(row.cell) == row.hit);
    if (row.hit) CHECK(matcher.mayHit(toSjis(row.cell)));
  }
}
