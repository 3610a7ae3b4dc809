#include "voice/names.h"

#include <doctest/doctest.h>

using namespace zelko;

namespace {

struct Row {
  TextView in, out;
};

}  // namespace

TEST_CASE("names of characters keep their slips and end where their ranges end") {
  const Row rows[] = {
      {u"", u""},
      {u"A", u"ｵｵﾓｼﾞｴｰ"},  // upper case is told apart, lower case is not
      {u"a", u"ｴｰ"},
      {u"ａ", u"ｾﾞﾝｶｸｺﾓｼﾞｴｰ"},
      {u"Ｚ", u"ｾﾞﾝｶｸｵｵﾓｼﾞｾﾞｯﾄ"},
      {u";", u"ｾﾐｺﾛﾝ"},  // loses its half width, its full-width twin has no name
      {u"；", u"；"},
      {u"~", u"ﾊﾝｶｸ ﾅｶﾃﾝ"},
      {u"!", u"ﾊﾝｶｸ 感嘆符 "},
      {u"＄", u"＄"},
      {u"ﾟ", u"ﾟ"},
      {u"ﾟﾞ", u"ﾊﾝｶｸﾊﾝﾀﾞｸﾃﾝ"},
      {u"0", u"0"},  // digits and letters stand between the signs
      {u"\x1f", u"\x1f"},
      {u"９", u"ｾﾞﾝｶｸ ９"},
      {u"ｦ", u"ﾊﾝｶｸｶﾀｶﾅｦ"},
      {u"ｯ", u"ﾊﾝｶｸｶﾀｶﾅﾁｲｻｲ ﾂ"},
      {u"ァ", u"ｶﾀｶﾅﾁｲｻｲ ｱ"},
      {u"ン", u"ｶﾀｶﾅ ン"},
      {u"漢", u"漢"},
      {u"!?", u"ﾊﾝｶｸ 感嘆符 "},  // a longer text: the signs look at its first character, the ranges at its order
      {u"アイ", u"ｶﾀｶﾅ アイ"},
      {u"ンン", u"ンン"},
  };
  for (const Row& row : rows) {
    CAPTURE(toUtf8(row.in));
    CHECK(toUtf8(charName(row.in)) == toUtf8(row.out));
  }
}

TEST_CASE("an edit is told by the run that changed") {
  struct Edit {
    TextView before, after, words;
  };
  const Edit edits[] = {
      {u"", u"あ", u"あ"},
      {u"あい", u"あういえ", u"うい 挿入"},
      {u"いう", u"あいう", u"あ 挿入"},
      {u"ああ", u"あああ", u"あ"},
      {u"あい", u"あ", u"い 削除"},
      {u"あい", u"い", u"あ 削除"},
      {u"あいう", u"", u"あいう 削除"},
      {u"あいう", u"あえう", u"え うわがき"},
      {u"あいあ", u"いいい", u"いいい うわがき"},
  };
  for (const Edit& edit : edits) {
    CAPTURE(toUtf8(edit.after));
    CHECK(toUtf8(diffText(edit.before, edit.after)) == toUtf8(edit.words));
  }
}
