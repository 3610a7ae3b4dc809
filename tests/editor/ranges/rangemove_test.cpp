// Moving and copying by pointing: where the pointer may stand, what it says, and what the table is afterwards.
#include <doctest/doctest.h>

#include <algorithm>

#include "editor/ranges/datamove.h"
#include "editor/ranges/range_fixture.h"
#include "store/records/records.h"

using namespace zelko;
using namespace zelko::test;

TEST_CASE_FIXTURE(RangeFixture, "a copy keeps the side of its new item") {
  open({{u"ID", 1}, {u"a", 5}, {u"L", 2}, {u"R", 2, u'R'}}, {{u"1", u"12345", u"", u""}}, 0);
  play({"Right", "Shift+Right", "Enter", "Right", "Right", "Enter"});
  play({"Ctrl+Left", "Shift+Right", "Enter", "Right", "Right", "Right", "Enter"});
  CHECK(record(1) == "1123451245");
}

TEST_CASE_FIXTURE(RangeFixture, "blocks that overlap their new place never smear") {
  // Every shift of a block by up to two records and items: each cell of the target is the one that stood at its source.
  const RangeBlock block{3, 5, 1, 3};
  const auto name = [](int rec, int item) {
    return std::string(1, static_cast<char>('a' + item)) + std::to_string(rec);
  };
  const auto inBlock = [&](int rec, int item) {
    return rec >= block.rec1 && rec <= block.rec2 && item >= block.item1 && item <= block.item2;
  };
  Rows rows(6);
  for (int rec = 1; rec <= 6; ++rec)
    for (int item = 0; item < 5; ++item) rows[static_cast<std::size_t>(rec - 1)].push_back(fromUtf8(name(rec, item)));
  for (int moves = 0; moves <= 1; ++moves)
    for (int toRec = 1; toRec <= 6; ++toRec)
      for (int toItem = 0; toItem <= 4; ++toItem) {
        CAPTURE(toRec);
        CAPTURE(toItem);
        open({{u"0", 2}, {u"1", 2}, {u"2", 2}, {u"3", 2}, {u"4", 2}}, rows, 0);
        run([&] { copyBlock(block, toRec, static_cast<std::int16_t>(toItem), moves == 1); });
        std::vector<std::string> expected;
        for (int rec = 1; rec <= std::max(6, toRec + 2); ++rec) {
          expected.emplace_back();
          for (int item = 0; item < 5; ++item) {
            const int fromRec = rec - toRec + block.rec1, fromItem = item - toItem + block.item1;
            const bool isBlank = rec > 6 || (moves == 1 && inBlock(rec, item));
            expected.back() += item == 0 ? "" : "|";
            expected.back() += inBlock(fromRec, fromItem) ? name(fromRec, fromItem) : isBlank ? "" : name(rec, item);
          }
        }
        CHECK(allCells() == expected);
      }
}

TEST_CASE_FIXTURE(RangeFixture, "a block higher than the cache is copied and moved") {
  const auto times = [](std::size_t count, const char* key) { return std::vector<std::string>(count, key); };
  for (const bool moves : {false, true}) {
    CAPTURE(moves);
    table(60, 0);
    std::vector<std::string> expected = allCells();
    play({"Right", "Shift+Down"});
    play(times(19, "Down"));
    play({"Enter", moves ? "Ctrl+Down" : "Down"});
    REQUIRE_FALSE(ended());
    play(times(30, "Down"));
    play({"Enter"});
    for (std::size_t i = 1; i <= 20; ++i) {
      const std::string cell = "|N" + std::to_string(i) + "|", there = "|N" + std::to_string(i + 30) + "|";
      expected[i + 29].replace(expected[i + 29].find(there), there.size(), cell);
      if (moves) expected[i - 1].replace(expected[i - 1].find(cell), cell.size(), "||");
    }
    CHECK(allCells() == expected);
    CHECK(rangeKind == 0);
  }
}

TEST_CASE_FIXTURE(RangeFixture, "a place to move to that lies outside the cache is not stored as the row it shows") {
  table(60, 0);
  const std::vector<std::string> before = allCells();
  play({"Ctrl+Down", "Up", "Up", "Up", "Alt+Up"});
  play(std::vector<std::string>(25, "Up"));
  play({"Enter", "Down", "Esc"});
  CHECK(allCells() == before);
}
