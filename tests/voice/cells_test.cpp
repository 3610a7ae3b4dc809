#include "voice/cells.h"

#include <doctest/doctest.h>

#include "fixture.h"
#include "store/cursor.h"
#include "store/itemfile.h"
#include "store/records.h"
#include "store/table.h"
#include "voice/talk.h"

using namespace zelko;

namespace {

class Walk : public Fixture {
 public:
  explicit Walk(std::int16_t level) {
    resetTalk();
    resetTable();
    resetCursor();
    const Text path = makeTable(u"住所", {{u"ID", 4}, {u"氏名", 10}, {u"点", 4, u'R'}},
                                {{u"1", u"山田", u"80"}, {u"2", u"鈴木", u"7"}, {u"3", u"", u"100"}});
    run([&] {
      Text error;
      openTable(path, error);
      REQUIRE(error.empty());
    });
    talkMode = level;
    events();
  }
  void at(std::int32_t record, std::int16_t item) {
    curRec = record;
    curItem = item;
    run([&] { loadCache(record); });
  }
  std::string saidBy(void (*sentence)()) {
    host().pass(1000);
    run(sentence);
    return said();
  }
};

}  // namespace

TEST_CASE("where the cursor is, asked from anywhere") {
  Walk walk(1);
  walk.at(1, 1);
  CHECK(walk.saidBy(talkCell) == "山田。ギョウ1 項目1氏名");
  CHECK(walk.saidBy(talkRange) == "ギョウ1 1   山田        80");
  walk.at(3, 1);
  CHECK(walk.saidBy(talkCell) == "ブランク。ギョウ3 項目1氏名");
  rangeKind = 3;
  rangeItem1 = 2;
  rangeItem2 = 1;
  CHECK(walk.saidBy(talkRange) == "ギョウ3            100ｺｳﾓｸﾊﾝｲ指定ｱﾘ");
  rangeKind = 2;
  CHECK(walk.saidBy(talkRange) == "ギョウ3 3              100");
}

TEST_CASE("a move is told by the cell, with its place at level 2 and the item that is always read") {
  Walk walk(1);
  walk.at(3, 1);
  CHECK(walk.saidBy(announceCell) == "ﾌﾞﾗﾝｸ");
  walk.at(2, 2);
  talkMode = 2;
  CHECK(walk.saidBy(announceCell) == "7  ｷﾞｮｳ2 ｺｳﾓｸ2点");
  spItem = 1;
  spItemIsRead = true;
  CHECK(walk.saidBy(announceCell) == "7  ｷﾞｮｳ2 ｺｳﾓｸ2点､鈴木");
  CHECK(walk.saidBy([] { talkReturn(u"", u"2", u"1"); }) == "ギョウ2/項目1/7､データ入力ﾃｷｽﾄﾎﾞｯｸｽ");
  talkMode = 1;
  CHECK(walk.saidBy([] { talkReturn(u"もどり", u"2", u"1"); }) == "もどり7､データ入力ﾃｷｽﾄﾎﾞｯｸｽ");
}

TEST_CASE("an edit that is not stored yet is what the user hears, on the new line too") {
  Walk walk(1);
  walk.at(2, 1);
  walk.run([] { setCell(currentRow(), 1, u"佐藤"); });
  CHECK(walk.saidBy(talkCell) == "佐藤。ギョウ2 項目1氏名");
  walk.at(4, 1);
  CHECK(walk.saidBy(talkCell) == "ブランク。ギョウ4 項目1氏名");
  walk.run([] { setCell(currentRow(), 1, u"新人"); });
  CHECK(walk.saidBy(announceCell) == "新人");
}

TEST_CASE("a cursor that left the cache is read from the file") {
  Walk walk(1);
  walk.at(1, 1);
  cacheBase = 2;
  CHECK(walk.saidBy(talkCell) == "山田。ギョウ1 項目1氏名");
}

TEST_CASE("the report of the whole state knows the places of a file") {
  const std::pair<std::int32_t, const char*> places[] = {
      {1, "､先頭ｷﾞｮｳです"}, {2, ""}, {3, "､最終ｷﾞｮｳです"}, {4, "､新規ｷﾞｮｳです"}};
  Walk walk(1);
  for (const auto& [record, word] : places) {
    walk.at(record, 1);
    const std::string report = toUtf8(stateReport(record == 1 ? u"入力" : u""));
    const std::string box = record == 1 ? "入力" : "ブランク";
    const std::string number = std::to_string(record);
    CHECK(report.find("､入力ボックスは､" + box + word + "､ｷﾞｮｳ" + number + "､ｾﾞﾝｷﾞｮｳｽｳﾊ3､ﾌｧｲﾙ名は/") !=
          std::string::npos);
    CHECK(report.starts_with("項目1､氏名｡既存データ " + std::string(record < 3 ? "" : "ブランク")));
  }
}

TEST_CASE("the words of an edit end in the bytes left") {
  Walk walk(1);
  walk.at(1, 1);
  CHECK(toUtf8(diffTalk(u"あ", u"あい")) == "い ざん6バイト");
  CHECK(toUtf8(diffTalk(u"あい", u"あ")) == "い 削除 ざん8バイト");
  CHECK(toUtf8(diffTalk(u"", u"ｱ")) == "ｱ ざん9バイト");
  CHECK(toUtf8(diffTalk(u"あいうえお", u"あいうえおか")) == "か ざん-2バイト");
}
