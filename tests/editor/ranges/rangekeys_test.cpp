// The keys on a finished range, and what refuses them.
#include <doctest/doctest.h>

#include "editor/ranges/range_fixture.h"
#include "platform/files/files.h"

using namespace zelko;
using namespace zelko::test;

namespace {

// What the questions of a session were: the sentences that end in the yes button.
std::vector<std::string> questions(const Heard& heard) {
  const std::string tail = "?[はい](Y)､ｺﾏﾝﾄﾞぼたん";
  std::vector<std::string> asked;
  for (const std::string& line : heard)
    if (line.ends_with(tail)) asked.push_back(line.substr(4, line.size() - 4 - tail.size()));
  return asked;
}

const std::vector<std::string> kRectangle = {"Down", "Right", "Shift+Down", "Down", "Right", "Enter"};
const std::vector<std::string> kRecords = {"Down", "Alt+Down", "Down", "Enter"};
const std::vector<std::string> kItems = {"Right", "Right", "Alt+Right", "Right", "Enter"};

}  // namespace

TEST_CASE_FIXTURE(RangeFixture, "each key asks its question, and yes does it to the table") {
  struct Row {
    std::vector<std::string> range;
    const char* key;
    std::vector<std::string> asked;
    std::vector<std::string> after;
  };
  const std::vector<Row> rows = {
      {kRectangle,
       "Delete",
       {"記録2から3の範囲の記録に於ける、項目1から2の範囲の項目 のデータを消去し、ブランクに置き換えます。消去部はク"
        "リップファイルになります"},
       {"1|N1|10|x1|J1", "2|||x2|J2", "3|||x3|J3", "4|N4|40|x4|J4"}},
      {{"Right", "Shift+Down", "Enter"},
       "Delete",
       {"1記録に於ける、1項目 のデータを消去し、ブランクに置き換えます。消去部はクリップファイルになります"},
       {"1||10|x1|J1", "2|N2|20|x2|J2", "3|N3|30|x3|J3", "4|N4|40|x4|J4"}},
      {kRecords,
       "Delete",
       {"記録2から3の範囲の記録を　削除し、以後のﾃﾞｰﾀを前に詰めます。削除部はクリップファイルになります｡なお記録数の多"
        "い場合は時間がかかります。"},
       {"1|N1|10|x1|J1", "4|N4|40|x4|J4"}},
      {kItems,
       "Delete",
       {"項目2から3の範囲の項目　を　削除します。復活はできません。"},
       {"1|N1|J1", "2|N2|J2", "3|N3|J3", "4|N4|J4"}},
      {kRecords, "Insert", {}, {"1|N1|10|x1|J1", "||||", "||||", "2|N2|20|x2|J2", "3|N3|30|x3|J3", "4|N4|40|x4|J4"}},
      {kItems,
       "Insert",
       {"項目2の前に2 "
        "項目、挿入します。挿入項目の項目幅は１、左詰め、項目名は適当な名前が付けられます。操作終了後ﾒﾆｭｰの"
        "ﾋｮｳﾃﾞｻﾞｲﾝ項目幅の変更等の機能で必要に応じて変更して下さい。"},
       {"1|N1|||10|x1|J1", "2|N2|||20|x2|J2", "3|N3|||30|x3|J3", "4|N4|||40|x4|J4"}},
  };
  for (const Row& row : rows) {
    CAPTURE(row.key);
    CAPTURE(row.range.size());
    table(4);
    const std::string before = file(kTable);
    play(row.range);
    const int kind = rangeKind;
    if (!row.asked.empty()) {  // no leaves everything as it is, the range too
      CHECK(questions(play({row.key, "N"})) == row.asked);
      CHECK(file(kTable) == before);
      CHECK(rangeKind == kind);
      play({row.key, "Y"});
    } else {
      play({row.key});
    }
    CHECK(allCells() == row.after);
    CHECK(rangeKind == 0);
    CHECK(mode.empty());
    CHECK(masks().empty());
  }
}

TEST_CASE_FIXTURE(RangeFixture, "the last record goes too") {
  table(1);
  play({"Alt+Down", "Enter", "Delete", "Y"});
  CHECK(records() == 0);
  CHECK(cursor() == std::pair{1, 0});
  CHECK(play({"Shift+Down"}) == Heard{"beep"});
}

TEST_CASE_FIXTURE(RangeFixture, "what is refused with a beep leaves the table") {
  const std::vector<std::vector<std::string>> refused = {
      {"Alt+Right", "Enter", "Delete"},                            // the ID item
      {"Alt+Right", "Ctrl+Right", "Enter", "Right"},               // nothing to move past
      {"Alt+Right", "Enter", "Left"},                              // the ID item has nothing on its left
      {"Alt+Right", "Ctrl+Right", "Enter", "Left"},                //
      {"Right", "Right", "Right", "Alt+Right", "Enter", "Right"},  // nothing goes behind the last
      {"Alt+Down", "Enter", "Up"},                                 //
      {"Down", "Down", "Alt+Down", "Enter", "Down"},               //
      {"Alt+Down", "Ctrl+Down", "Enter", "Down"},
  };
  for (const auto& keys : refused) {
    CAPTURE(keys.size());
    table(4);
    const std::string before = file(kTable);
    CHECK(play(keys).back() == "beep");
    CHECK(mode.empty());
    CHECK(file(kTable) == before);
  }
  CHECK(rangeKind == 0);
}

TEST_CASE_FIXTURE(RangeFixture, "a finished range is read by Shift and dropped by a key without a meaning") {
  table(4);
  play(kRectangle);
  CHECK(play({"Shift"}) == Heard{"say N2      20次記録N3      30たいかく範囲あり"});
  CHECK(play({"Alt", "Ctrl"}) == Heard{});
  CHECK(rangeKind == 1);
  CHECK(play({"Esc"}) == Heard{"say 30  ｷﾞｮｳ3 ｺｳﾓｸ2点"});
  CHECK(rangeKind == 0);
  CHECK(screen().activeForm()->name() == u"Form1");
  play(kRecords);
  CHECK(rangeKind == 2);
  CHECK(play({"Alt+M"}) == Heard{"say ギョウ4 4   N4      40x4J4"});
  CHECK(rangeKind == 0);
  play({"Alt+Right", "Enter"});
  CHECK(play({"Shift"}) == Heard{"say 10次記録20次記録30次記録40"});
}

TEST_CASE_FIXTURE(RangeFixture, "reading aloud stops at its limit") {
  Rows rows(400, {u"1", Text(100, u'漢')});
  open({{u"ID", 4}, {u"文", 200}}, rows, 1);
  play({"Alt+Down", "Ctrl+Down", "Enter"});
  const Heard heard = play({"Shift"});
  REQUIRE(heard.size() == 1);
  CHECK(heard[0].ends_with("漢50000文字の読み込みバッファがオーバしました"));
  // 204 bytes of the first record and 210 of each that follows: the 243rd passes 51000.
  std::size_t between = 0;
  for (std::size_t at = 0; (at = heard[0].find("次記録", at)) != std::string::npos; ++at) ++between;
  CHECK(between == 242);
}

TEST_CASE_FIXTURE(RangeFixture, "a read-only table refuses every change of a range with its notice") {
  struct Row {
    std::vector<std::string> range;
    std::string action;
  };
  const std::vector<Row> rows = {{kRectangle, "Delete"},
                                 {kRectangle, "Right"},
                                 {kRectangle, "Ctrl+Down"},
                                 {kRectangle, "menu mnuZDEL"},
                                 {kRectangle, "menu mnuCOPY"},
                                 {kRectangle, "menu mnuMOVE"},
                                 {kRecords, "Delete"},
                                 {kRecords, "Insert"},
                                 {kRecords, "Up"},
                                 {kRecords, "menu mnuMREC"},
                                 {kItems, "Delete"},
                                 {kItems, "Insert"},
                                 {kItems, "Left"},
                                 {kItems, "menu mnuMITEM"}};
  table(9, 0);
  play({"menu mnuFbt", "Y"});
  for (const Row& row : rows) {
    CAPTURE(row.action);
    play({"Ctrl+Up", "Ctrl+Left", "Left"});
    play(row.range);
    play({row.action});
    CHECK(screen().activeForm()->name() == u"FrmOK");
    play({"Enter", "Esc"});
    CHECK(mode.empty());
  }
  setReadOnly(fromUtf8(path(kTable)), false);
}
