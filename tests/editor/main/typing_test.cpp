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
