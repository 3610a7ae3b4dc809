#include "parts/cells.h"

#include <doctest/doctest.h>

#include "fixture.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"
#include "store/table/table.h"
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
