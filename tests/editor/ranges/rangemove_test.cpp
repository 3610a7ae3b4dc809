// Moving and copying by pointing: where the pointer may stand, what it says, and what the table is afterwards.
#include <doctest/doctest.h>

#include <algorithm>
#include <array>

#include "editor/ranges/datamove.h"
#include "editor/ranges/range_fixture.h"
#include "store/records/records.h"

using namespace zelko;
using namespace zelko::test;

TEST_CASE_FIXTURE(RangeFixture, "where a move begins to point") {
  struct Row {
    std::vector<std::string> keys;
    int moveTo;
  };
  const std::vector<Row> rows = {
      {{"Alt+Down", "Enter", "Down"}, 3},
      {{"Down", "Alt+Down", "Enter", "Up"}, 1},
      {{"Ctrl+Down", "Alt+Down", "Up", "Enter", "Up"}, 7},
      {{"Ctrl+Down", "Up", "Up", "Alt+Down", "Enter", "Down"}, 9},  // two before the end: behind the block
      {{"Alt+Right", "Enter", "Right"}, 2},
      {{"Right", "Alt+Right", "Enter", "Left"}, 1},
      {{"Ctrl+Right", "Alt+Right", "Enter", "Left"}, 3},
  };
  for (const Row& row : rows) {
    CAPTURE(row.keys.front());
    table(9, 0);
    play(row.keys);
    CHECK(moveTo == row.moveTo);
    play({"Esc"});
    CHECK(mode.empty());
    CHECK(rangeKind == 0);
    CHECK(masks().empty());
    CHECK(mainForm().txtinputbox.hasFocus());
  }
}

TEST_CASE_FIXTURE(RangeFixture, "a copy keeps the side of its new item") {
  open({{u"ID", 1}, {u"a", 5}, {u"L", 2}, {u"R", 2, u'R'}}, {{u"1", u"12345", u"", u""}}, 0);
  play({"Right", "Shift+Right", "Enter", "Right", "Right", "Enter"});
  play({"Ctrl+Left", "Shift+Right", "Enter", "Right", "Right", "Right", "Enter"});
  CHECK(record(1) == "1123451245");
}

TEST_CASE_FIXTURE(RangeFixture, "blocks that overlap their new place never smear") {
  // Every shift of a block by up to two records and items, against a copy made in one go.
  using Table = std::vector<std::array<std::string, 5>>;
  const auto model = [](Table table, const RangeBlock& block, int toRec, int toItem, bool moves) {
    const Table old = table;
    const auto cell = [](Table& of, int rec, int item) -> std::string& {
      return of[static_cast<std::size_t>(rec - 1)][static_cast<std::size_t>(item)];
    };
    for (int rec = block.rec1; rec <= block.rec2 && moves; ++rec)
      for (int item = block.item1; item <= block.item2; ++item) cell(table, rec, item).clear();
    for (int rec = block.rec1; rec <= block.rec2; ++rec)
      for (int item = block.item1; item <= block.item2; ++item) {
        const int there = toItem + item - block.item1;
        Table source = old;
        if (there <= 4) cell(table, toRec + rec - block.rec1, there) = cell(source, rec, item);
      }
    return table;
  };
  const RangeBlock block{3, 5, 1, 3};
  for (int moves = 0; moves <= 1; ++moves)
    for (int toRec = 1; toRec <= 6; ++toRec)
      for (int toItem = 0; toItem <= 4; ++toItem) {
        Rows rows;
        Table before;
        for (int rec = 1; rec <= 6; ++rec) {
          rows.emplace_back();
          before.emplace_back();
          for (int item = 0; item < 5; ++item) {
            const std::string text = std::string(1, static_cast<char>('a' + item)) + std::to_string(rec);
            rows.back().push_back(fromUtf8(text));
            before.back()[static_cast<std::size_t>(item)] = text;
          }
        }
        open({{u"0", 2}, {u"1", 2}, {u"2", 2}, {u"3", 2}, {u"4", 2}}, rows, 0);
        CAPTURE(toRec);
        CAPTURE(toItem);
        before.resize(static_cast<std::size_t>(std::max(6, toRec + 2)));
        run([&] { copyBlock(block, toRec, static_cast<std::int16_t>(toItem), moves == 1); });
        std::vector<std::string> expected;
        for (const auto& r : model(before, block, toRec, toItem, moves == 1))
          expected.push_back(r[0] + "|" + r[1] + "|" + r[2] + "|" + r[3] + "|" + r[4]);
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
