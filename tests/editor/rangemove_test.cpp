// Moving and copying by pointing: where the pointer may stand, what it says, and what the table is afterwards.
#include <doctest/doctest.h>

#include <algorithm>
#include <array>

#include "editor/datamove.h"
#include "editor/mssg.h"
#include "editor/range_fixture.h"
#include "store/records.h"

using namespace zelko;
using namespace zelko::test;

namespace {

std::vector<std::string> ids(const std::vector<std::string>& cells) {
  std::vector<std::string> first;
  for (const std::string& record : cells) first.push_back(record.substr(0, record.find('|')));
  return first;
}

}  // namespace

TEST_CASE_FIXTURE(RangeFixture, "the pointer of a record move jumps over the block") {
  table(9);
  play({"Down", "Down", "Alt+Down", "Down", "Enter"});  // records 3 and 4
  CHECK(play({"Down"}).back().starts_with("say 一連の記録を移動します。上下矢印キーで、"));
  CHECK(utf8(form<frmMSSG>().Command1.caption()) == "記録移動実行(CR)");
  CHECK(masks() == "3-4 0-4 255; 6-6 0-4 65280");
  struct Row {
    const char* key;
    const char* said;
  };
  const std::vector<Row> walk = {{"Up", "say 記録3移動記録：記録3から4 を　記録2の前に"},
                                 {"Down", "say 記録3移動記録：記録3から4 を　記録6の前に"},
                                 {"Ctrl+Down", "say 記録3移動記録：記録3から4 を　記録9の前に"},
                                 {"Down", "beep"},
                                 {"Right", "beep"},
                                 {"Ctrl+H", "beep"},
                                 {"Ctrl+Up", "say 記録3移動記録：記録3から4 を　記録1の前に"},
                                 {"Up", "beep"},
                                 {"Shift+Ctrl+S", "say 記録3移動記録：記録3から4 を　記録1の前に"}};
  for (const Row& row : walk) {
    CAPTURE(row.key);
    CHECK(play({row.key}) == Heard{row.said});
  }
  CHECK(play({"Ctrl+J", "type 5", "Enter"}).back() == "say 記録3移動記録：記録3から4 を　記録6の前に");
  CHECK(play({"Enter"}).back() == "say ギョウ6/項目0/6､データ入力ﾃｷｽﾄﾎﾞｯｸｽ");
  CHECK(ids(allCells()) == std::vector<std::string>{"1", "2", "5", "3", "4", "6", "7", "8", "9"});
  CHECK(mode.empty());
  CHECK(rangeKind == 0);
  CHECK(masks().empty());
}

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

TEST_CASE_FIXTURE(RangeFixture, "an item move refuses its own edge and moves elsewhere") {
  table(3);
  play({"Right", "Alt+Right", "Enter", "Left"});
  play({"Enter"});
  CHECK(utf8(screen().activeForm()->caption()) == "移動点の再設定");
  play({"Enter"});
  CHECK(play({"Right"}) == Heard{"say 項目1移動項目：項目1 を　項目3の前に"});
  CHECK(masks() == "1-3 1-1 255; 1-3 3-3 65280");
  CHECK(play({"Ctrl+Right", "Enter"}).back() == "say 項目移動完了。");
  CHECK(cells(1) == "1|10|x1|N1|J1");
}

TEST_CASE_FIXTURE(RangeFixture, "cells are copied and moved where the pointer stands") {
  table(4);
  play({"Right", "Shift+Right", "Right", "Down", "Enter"});  // records 1 and 2, items 1 and 2
  CHECK(play({"Right"}).back().starts_with("say （マスク範囲）の項目ﾃﾞｰﾀをｺﾋﾟｰします。"));
  CHECK(cursor() == std::pair{1, 1});
  CHECK(play({"Right"}) == Heard{"say 項目1移動項目：項目1から2 を　項目2にｺﾋﾟｰ"});
  CHECK(play({"Down"}) == Heard{"say 記録1移動記録：記録1から2 を　記録2にｺﾋﾟｰ"});
  CHECK(masks() == "1-2 1-2 12632319; 2-3 2-3 8454016");
  CHECK(play({"Enter"}).back() == "say ギョウ2/項目2/N1､データ入力ﾃｷｽﾄﾎﾞｯｸｽ");
  CHECK(allCells() == std::vector<std::string>{"1|N1|10|x1|J1", "2|N2|N1|10|J2", "3|N3|N2|20|J3", "4|N4|40|x4|J4"});
  // Behind the last record the file grows, behind the last item the cells are lost; a narrow item cuts.
  table(4);
  play({"Right", "Shift+Right", "Right", "Down", "Enter", "Ctrl+Down", "Ctrl+Down", "Down", "Ctrl+Right", "Enter"});
  CHECK(allCells() ==
        std::vector<std::string>{"1|||x1|J1", "2|||x2|J2", "3|N3|30|x3|J3", "4|N4|40|x4|J4", "||||N1", "||||N2"});
  CHECK(readBytes(path(kTable)).size() == 6 * 256);
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
