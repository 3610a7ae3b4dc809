// Typing into cells: what is echoed, when a cell is full, and the bytes of the record.
#include <doctest/doctest.h>

#include <fstream>

#include "editor/editor_fixture.h"
#include "editor/main/inputbox.h"
#include "editor/main/state.h"
#include "editor/show/showcell.h"
#include "editor/show/view.h"
#include "store/table/cursor.h"

using namespace zelko;
using namespace zelko::test;

namespace {

const std::vector<ItemOfTable> kItems = {{u"ID", 3}, {u"氏名", 5}, {u"点", 3, u'R'}};
const Rows kRecords = {{u"1", u"abcde", u"80"}, {u"2"}};

}  // namespace

TEST_CASE_FIXTURE(EditorFixture, "a typed cell") {
  struct Row {
    std::string story;
    std::vector<std::string> keys;
    Heard heard;
    std::string record;
  };
  const std::vector<Row> rows = {
      {"stays in the box until it is committed", {"type x"}, {"say ｴｯｸｽ ざん4バイト"}, "1  abcde 80"},
      {"is stored by Down",
       {"commit x", "Down"},
       {"say ｴｯｸｽ ざん4バイト", "say ﾌﾞﾗﾝｸ  ｷﾞｮｳ2 ｺｳﾓｸ1氏名"},
       "1  x     80"},
      {"is stored by Enter and Down",
       {"commit xy", "Enter", "Down"},
       {"say xy ざん3バイト", "say 80  ｷﾞｮｳ1 ｺｳﾓｸ2点", "say ﾌﾞﾗﾝｸ  ｷﾞｮｳ2 ｺｳﾓｸ2点"},
       "1  xy    80"},
      {"of one blank is stored by Enter",
       {"commit  ", "Enter", "Down"},
       {"say ﾊﾝｶｸ ｽﾍﾟｰｽ ざん4バイト", "say 80  ｷﾞｮｳ1 ｺｳﾓｸ2点", "say ﾌﾞﾗﾝｸ  ｷﾞｮｳ2 ｺｳﾓｸ2点"},
       "1        80"},
      {"of one blank is nothing to Down",
       {"commit  ", "Down"},
       {"say ﾊﾝｶｸ ｽﾍﾟｰｽ ざん4バイト", "say ﾌﾞﾗﾝｸ  ｷﾞｮｳ2 ｺｳﾓｸ1氏名"},
       "1  abcde 80"},
      {"that is full moves on by itself",
       {"commit vwxyz", "Down"},
       {"say 80  ｷﾞｮｳ1 ｺｳﾓｸ2点", "say ﾌﾞﾗﾝｸ  ｷﾞｮｳ2 ｺｳﾓｸ2点"},
       "1  vwxyz 80"},
      {"loses the full-width character that goes over its end",
       {"commit 山田", "commit 中", "Down"},
       {"say 山田 ざん1バイト", "beep", "say 80  ｷﾞｮｳ1 ｺｳﾓｸ2点", "say ﾌﾞﾗﾝｸ  ｷﾞｮｳ2 ｺｳﾓｸ2点"},
       "1  山田  80"},
      {"that is far too long is cut at the width",
       {"commit 1234567890", "Down"},
       {"beep", "say 80  ｷﾞｮｳ1 ｺｳﾓｸ2点", "say ﾌﾞﾗﾝｸ  ｷﾞｮｳ2 ｺｳﾓｸ2点"},
       "1  12345 80"},
      {"is thrown away by Esc",
       {"commit xy", "Esc", "Down"},
       {"say xy ざん3バイト", "say xy 削除 ざん5バイト", "say ﾌﾞﾗﾝｸ  ｷﾞｮｳ2 ｺｳﾓｸ1氏名"},
       "1  abcde 80"},
      {"keeps the arrows for its caret",
       {"commit xy", "Left", "type a", "Down"},
       {"say xy ざん3バイト", "say ﾜｲ", "say ｴｰ 挿入 ざん2バイト", "say ﾌﾞﾗﾝｸ  ｷﾞｮｳ2 ｺｳﾓｸ1氏名"},
       "1  xay   80"},
      {"is named as it is erased",
       {"commit xy", "Backspace", "Backspace", "Enter", "Down"},
       {"say xy ざん3バイト", "say ﾜｲ 削除 ざん4バイト", "say ｴｯｸｽ 削除 ざん5バイト", "say 80  ｷﾞｮｳ1 ｺｳﾓｸ2点",
        "say ﾌﾞﾗﾝｸ  ｷﾞｮｳ2 ｺｳﾓｸ2点"},
       "1  abcde 80"},
  };
  for (const Row& row : rows) {
    CAPTURE(row.story);
    open(kItems, kRecords, 2);
    play({"Right"});
    CHECK(play(row.keys) == row.heard);
    CHECK(record(1) == row.record);
  }
}

TEST_CASE_FIXTURE(EditorFixture, "the last cell of the last record opens a new line") {
  open(kItems, {{u"1", u"a", u"2"}}, 2);
  play({"Right", "Right"});
  CHECK(play({"commit 123"}) == Heard{"say ﾌﾞﾗﾝｸ  ｷﾞｮｳ2 ｺｳﾓｸ0ID"});
  CHECK(record(1) == "1  a    123");
  CHECK(play({"commit 9", "Up"}) == Heard{"say 9 ざん2バイト", "say 1  ｷﾞｮｳ1 ｺｳﾓｸ0ID"});
  CHECK(records() == 2);
  CHECK(record(2) == "9");
  CHECK(utf8(mainForm().caption()) == "Zelko (" + path(kTable) + "/記録数:2)");
}

TEST_CASE_FIXTURE(EditorFixture, "an input limit fills a cell before its width") {
  open(kItems, kRecords, 1);
  inputLimit = 2;
  play({"Right"});
  CHECK(play({"commit x", "commit y"}) == Heard{"say ｴｯｸｽ ざん4バイト", "say 80"});
  play({"Down"});
  CHECK(record(1) == "1  xy    80");
}

TEST_CASE_FIXTURE(EditorFixture, "a text that the program brought is never committed by itself, and can be shortened") {
  open(kItems, kRecords, 1);
  inputLimit = 3;
  play({"Right"});
  fillInputBox(u"abcdefgh");
  CHECK(play({"End", "Backspace", "Backspace"}) == Heard{"say ｴｯﾁ 削除 ざん-2バイト", "say ｼﾞｰ 削除 ざん-1バイト"});
  CHECK(curItem == 1);
  // Typing on is another matter.
  play({"type z"});
  CHECK(curItem == 2);
}

TEST_CASE_FIXTURE(EditorFixture, "a box that is emptied during a move leaves nothing behind in the echo") {
  open(kItems, kRecords, 1);
  play({"Right", "type x"});
  moveFlag = 1;
  showCell(1, 1, u"", u"");
  moveFlag = 0;
  CHECK(play({"type y"}) == Heard{"say ﾜｲ ざん4バイト"});
}

TEST_CASE_FIXTURE(EditorFixture, "only the written cell changes its bytes") {
  open({{u"ID", 3}, {u"a", 4}, {u"b", 4}}, {{u"1", u"x", u"y"}}, 1);
  // Half a character in one neighbour, and in the other a code that would come back as another.
  std::string bytes = file(kTable).replace(3, 8, "\x82 \x81  \xFA\x54 ");
  std::ofstream(path(kTable), std::ios::binary) << bytes;
  REQUIRE(openAndEnter(fromUtf8(path(kTable))));
  play({"commit 7", "Down"});
  bytes.replace(0, 3, "7  ");
  CHECK(file(kTable) == bytes);
}
