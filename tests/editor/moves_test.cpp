// Walking a table: each key's sentences, where the cursor stands, and what reached the disk.
#include <doctest/doctest.h>

#include "editor/editor_fixture.h"
#include "editor/moves.h"
#include "editor/state.h"
#include "platform/number.h"
#include "store/cursor.h"
#include "store/records.h"

using namespace zelko;
using namespace zelko::test;

namespace {

const std::vector<ItemOfTable> kItems = {{u"ID", 4}, {u"氏名", 10}, {u"点", 3, u'R'}};
const Rows kRecords = {{u"1", u"山田", u"80"}, {u"2", u"", u"7"}, {u"3", u"ｻﾄｳ", u""}};

std::pair<int, int> cursor() { return {curRec, curItem}; }

}  // namespace

TEST_CASE_FIXTURE(EditorFixture, "a walk by arrows is heard cell by cell") {
  struct Row {
    const char* key;
    Heard heard;
    std::pair<int, int> at;
  };
  const std::vector<Row> walk = {
      {"Left", {"beep"}, {1, 0}},
      {"Up", {"beep"}, {1, 0}},
      {"Right", {"say 山田  ｷﾞｮｳ1 ｺｳﾓｸ1氏名"}, {1, 1}},
      {"Right", {"say 80  ｷﾞｮｳ1 ｺｳﾓｸ2点"}, {1, 2}},
      {"Right", {"say 2  ｷﾞｮｳ2 ｺｳﾓｸ0ID"}, {2, 0}},
      {"Left", {"say 80  ｷﾞｮｳ1 ｺｳﾓｸ2点"}, {1, 2}},
      {"Down", {"say 7  ｷﾞｮｳ2 ｺｳﾓｸ2点"}, {2, 2}},
      {"Left", {"say ﾌﾞﾗﾝｸ  ｷﾞｮｳ2 ｺｳﾓｸ1氏名"}, {2, 1}},
      {"Down", {"say ｻﾄｳ  ｷﾞｮｳ3 ｺｳﾓｸ1氏名"}, {3, 1}},
      {"Down", {"say ﾌﾞﾗﾝｸ  ｷﾞｮｳ4 ｺｳﾓｸ1氏名"}, {4, 1}},
      {"Down", {"beep"}, {4, 1}},
      {"Up", {"say ｻﾄｳ  ｷﾞｮｳ3 ｺｳﾓｸ1氏名"}, {3, 1}},
  };
  open(kItems, kRecords, 2);
  const std::string before = file(kTable);
  for (const Row& row : walk) {
    CAPTURE(row.key);
    CHECK(play({row.key}) == row.heard);
    CHECK(cursor() == row.at);
  }
  CHECK(file(kTable) == before);
  CHECK(rowBytes(recCache[static_cast<std::size_t>(4 - cacheBase + 2)]) == slashRec);
}

TEST_CASE_FIXTURE(EditorFixture, "level 1 says the data alone, and silence changes nothing of the cursor") {
  open(kItems, kRecords, 1);
  CHECK(play({"Right", "Down", "Up"}) == Heard{"say 山田", "say ﾌﾞﾗﾝｸ", "say 山田"});
  open(kItems, kRecords, 0);
  CHECK(play({"Right", "Down", "type x", "Down", "Up"}) == Heard{});
  CHECK(cursor() == std::pair{2, 1});
  CHECK(record(2) == "2   x           7");
}

TEST_CASE_FIXTURE(EditorFixture, "keys that follow each other within the gap are heard once") {
  open(kItems, kRecords, 1);
  play({"Right"});
  nextItem();
  nextItem();
  CHECK(heard() == Heard{});
  CHECK(cursor() == std::pair{2, 0});
}

TEST_CASE_FIXTURE(EditorFixture, "Enter leaves an empty box's cell and goes on past the last item") {
  open(kItems, kRecords, 2);
  CHECK(play({"Enter", "Enter", "Enter"}) ==
        Heard{"say 山田  ｷﾞｮｳ1 ｺｳﾓｸ1氏名", "say 80  ｷﾞｮｳ1 ｺｳﾓｸ2点", "say 2  ｷﾞｮｳ2 ｺｳﾓｸ0ID"});
  CHECK(record(1) == "1   山田       80");
}

TEST_CASE_FIXTURE(EditorFixture, "Enter in the last cell of a blank new line starts the same line again") {
  open(kItems, {}, 2);
  CHECK(play({"Enter", "Enter", "Enter"}) ==
        Heard{"say ﾌﾞﾗﾝｸ  ｷﾞｮｳ1 ｺｳﾓｸ1氏名", "say ﾌﾞﾗﾝｸ  ｷﾞｮｳ1 ｺｳﾓｸ2点", "beep", "say ﾌﾞﾗﾝｸ  ｷﾞｮｳ1 ｺｳﾓｸ0ID"});
  CHECK(cursor() == std::pair{1, 0});
  CHECK(records() == 0);
}

TEST_CASE_FIXTURE(EditorFixture, "entry items bind the way forward only") {
  open(kItems, kRecords, 1);
  allItemsOn = 0;
  entryItem[2] = 1;
  CHECK(play({"Right", "Right", "Left", "Enter"}) == Heard{"say 80", "say 7", "say ﾌﾞﾗﾝｸ", "say 7"});
  CHECK(cursor() == std::pair{2, 2});
  CHECK(utf8(mainForm().Label11.caption()) == "2,");
  // At the end of a table without a place to go on, the item still changes and is told.
  entryItem[1] = 1;
  open(kItems, {}, 1);
  CHECK(play({"Right", "Right", "Right"}) == Heard{"say ﾌﾞﾗﾝｸ", "say ﾌﾞﾗﾝｸ", "beep", "say ﾌﾞﾗﾝｸ"});
  CHECK(cursor() == std::pair{1, 1});
}

TEST_CASE_FIXTURE(EditorFixture, "the running ID is stamped on the way") {
  open(kItems, kRecords, 1);
  autoIdOn = 1;
  autoIdValue = 9.5F;
  play({"Down", "Down", "Up"});
  CHECK(utf8(mainForm().Label13.caption()) == "10.5(自動更新！)");
  play({"Down", "Up"});
  CHECK(record(2) == "10.5            7");
  CHECK(record(3) == "11.5ｻﾄｳ");
}

TEST_CASE_FIXTURE(EditorFixture, "while a range is chosen the moves store and show nothing") {
  open(kItems, kRecords, 2);
  mainForm().txtinputbox.setFocus();
  play({"type x"});
  mode = u"HTYU";
  nextItem();
  nextRec(curItem);
  prevRec(curItem);
  CHECK(cursor() == std::pair{1, 1});
  CHECK(utf8(mainForm().txtREC.content()) == "1");
  CHECK(utf8(mainForm().txtinputbox.content()) == "x");
  reloadCur(1);
  CHECK(mode.empty());
  CHECK(utf8(mainForm().txtItemnum.content()) == "1");
}

TEST_CASE_FIXTURE(EditorFixture, "a long table scrolls both ways through a small cache") {
  Rows many;
  for (int i = 1; i <= 60; ++i) many.push_back({decimal(i)});
  open({{u"ID", 4}}, many, 1);
  for (int i = 2; i <= 60; ++i) CHECK(play({"Down"}) == Heard{"say " + std::to_string(i)});
  for (int i = 59; i >= 1; --i) CHECK(play({"Up"}) == Heard{"say " + std::to_string(i)});
}
