// Choosing a range: the keys of the dialog, what each is answered with, and how it is left.
#include <doctest/doctest.h>

#include "editor/hani.h"
#include "editor/range_fixture.h"
#include "editor/view.h"
#include "platform/routing.h"
#include "store/records.h"

using namespace zelko;
using namespace zelko::test;

namespace {

const std::string kRed = "255", kPink = "12632319";

bool ends(const Heard& heard, const std::string& tail) { return !heard.empty() && heard.back().ends_with(tail); }

}  // namespace

TEST_CASE_FIXTURE(RangeFixture, "a rectangle is chosen, heard and seen key by key") {
  struct Row {
    const char* key;
    const char* tail;
    std::vector<int> range;
  };
  const std::vector<Row> walk = {
      {"Down", "N2ｷﾞｮｳ2 ｺｳﾓｸ1 ．今のセルデータはN2．ﾞｮｳ1から2 および.ｺｳﾓｸ1から1のﾀｲｶｸﾊﾝｲ指定ずみ", {1, 1, 2, 1, 1}},
      {"Right", "20ｷﾞｮｳ2 ｺｳﾓｸ2 ．今のセルデータは20．ﾞｮｳ1から2 および.ｺｳﾓｸ1から2のﾀｲｶｸﾊﾝｲ指定ずみ", {1, 1, 2, 1, 2}},
      {"Ctrl+Right", "．ﾞｮｳ1から2 および.ｺｳﾓｸ1から4のﾀｲｶｸﾊﾝｲ指定ずみ", {1, 1, 2, 1, 4}},
      {"Ctrl+Down", "．ﾞｮｳ1から30 および.ｺｳﾓｸ1から4のﾀｲｶｸﾊﾝｲ指定ずみ", {1, 1, 30, 1, 4}},
      {"Down", "．ﾞｮｳ1から30 および.ｺｳﾓｸ1から4のﾀｲｶｸﾊﾝｲ指定ずみ", {1, 1, 30, 1, 4}},
      {"Right", "．ﾞｮｳ1から30 および.ｺｳﾓｸ1から4のﾀｲｶｸﾊﾝｲ指定ずみ", {1, 1, 30, 1, 4}},
      {"Up", "．ﾞｮｳ1から29 および.ｺｳﾓｸ1から4のﾀｲｶｸﾊﾝｲ指定ずみ", {1, 1, 29, 1, 4}},
      {"PageUp", "．ﾞｮｳ1から19 および.ｺｳﾓｸ1から4のﾀｲｶｸﾊﾝｲ指定ずみ", {1, 1, 19, 1, 4}},
      {"PageDown", "．ﾞｮｳ1から29 および.ｺｳﾓｸ1から4のﾀｲｶｸﾊﾝｲ指定ずみ", {1, 1, 29, 1, 4}},
      {"PageDown", "．ﾞｮｳ1から30 および.ｺｳﾓｸ1から4のﾀｲｶｸﾊﾝｲ指定ずみ", {1, 1, 30, 1, 4}},
      {"Ctrl+Left", "．ﾞｮｳ1から30 および.ｺｳﾓｸ1から1のﾀｲｶｸﾊﾝｲ指定ずみ", {1, 1, 30, 1, 1}},
      {"Left", "．ﾞｮｳ1から30 および.ｺｳﾓｸ1から0のﾀｲｶｸﾊﾝｲ指定ずみ", {1, 1, 30, 1, 0}},
      {"Ctrl+Up", "．ﾞｮｳ1から1 および.ｺｳﾓｸ1から0のﾀｲｶｸﾊﾝｲ指定ずみ", {1, 1, 1, 1, 0}},
  };
  table(30);
  const std::string before = file(kTable);
  play({"Right"});
  CHECK(ends(play({"Shift+Down"}),
             "say ﾊﾝｲ指定中.ﾀｲｶｸN1ｷﾞｮｳ1 ｺｳﾓｸ1 ．今のセルデータはN1．ﾞｮｳ1から1 および.ｺｳﾓｸ1から1のﾀｲｶｸﾊﾝｲ指定ずみ"));
  for (const Row& row : walk) {
    CAPTURE(row.key);
    CHECK(ends(play({row.key}), row.tail));
    CHECK(range() == row.range);
  }
  CHECK(masks() == "1-1 0-1 " + kPink);
  CHECK(file(kTable) == before);
}

TEST_CASE_FIXTURE(RangeFixture, "keys that can't go on beep and still say where the range stands") {
  table(3);
  play({"Shift+Down"});
  for (const char* key : {"Left", "Up", "PageUp", "Shift+Ctrl+T"}) {
    CAPTURE(key);
    const Heard heard = play({key});
    CHECK(heard.front() == "beep");
    CHECK(heard.size() == 2);
  }
  play({"Ctrl+Right"});
  CHECK(play({"Ctrl+Down", "Right"})[1] == "beep");
  CHECK(cursor() == std::pair{3, 4});
}

TEST_CASE_FIXTURE(RangeFixture, "records and items: state, mask, and what the boxes hold") {
  table(30);
  play({"Right", "Down"});
  CHECK(ends(play({"Alt+Down", "Down"}), "say ﾊﾝｲ指定中.ｷﾞｮｳN3ｷﾞｮｳ3．今のセルデータはN3．ｷﾞｮｳ2から3指定ずみ"));
  CHECK(masks() == "2-3 0-4 " + kRed);
  CHECK_FALSE(form<frmHANI>().Text3.enabled());
  CHECK(utf8(form<frmHANI>().caption()) == "記録範囲の指定");
  // A move of records needs two behind the block, and paging never goes back for it.
  play({"PageDown", "PageDown", "PageDown"});
  CHECK(range() == std::vector{2, 2, 28, 0, 4});
  CHECK(play({"Ctrl+Down", "PageDown"})[1] == "beep");
  CHECK(range() == std::vector{2, 2, 30, 0, 4});
  play({"Esc"});
  CHECK(range() == std::vector{0, 0, 0, 0, 0});
  CHECK(masks().empty());
  CHECK(mode.empty());
  CHECK(ends(play({"Alt+Right", "Right"}), "say ﾊﾝｲ指定中.ｺｳﾓｸ300ｺｳﾓｸ2．今のセルデータは300．ｺｳﾓｸ1から2指定ずみ"));
  CHECK(range() == std::vector{3, 1, 30, 1, 2});
  CHECK_FALSE(form<frmHANI>().Text1.enabled());
  CHECK(utf8(form<frmHANI>().caption()) == "項目範囲の指定");
}

TEST_CASE_FIXTURE(RangeFixture, "questions and jumps in the dialog") {
  struct Row {
    const char* key;
    const char* said;
  };
  const std::vector<Row> questions = {
      {"Shift+Ctrl+D", "say N2。ギョウ2 項目1氏名"},
      {"Shift+Ctrl+Q", "say  ｷﾞｮｳ1 1 N1  ｷﾞｮｳ2 2 N2"},
      {"Shift+Ctrl+A", "say 矢印操作、ctrl+矢印操作やctrl+Jなどの、ジャンプ操作で、範囲を指定ｼﾃｸﾀﾞｻｲ。"},
      {"Alt+M", "say ギョウ2 2   N2    ｺｳﾓｸﾊﾝｲ指定ｱﾘ"},
      {"Alt+N", "say N2。ギョウ2 項目1氏名"},
      {"Shift+PageDown",
       "say ﾊﾝｲ指定中.ﾀｲｶｸN2ｷﾞｮｳ2 ｺｳﾓｸ1 ．今のセルデータはN2．ﾞｮｳ1から2 および.ｺｳﾓｸ0から1のﾀｲｶｸﾊﾝｲ指定ずみ"},
  };
  table(9);
  play({"Shift+Down", "Down", "Right"});
  for (const Row& row : questions) {
    CAPTURE(row.key);
    CHECK(play({row.key}) == Heard{row.said});
  }
  CHECK(ends(play({"Ctrl+J", "type +4", "Enter"}), "．ﾞｮｳ1から6 および.ｺｳﾓｸ0から1のﾀｲｶｸﾊﾝｲ指定ずみ"));
  CHECK(ends(play({"Ctrl+J", "type 99", "Enter"}), "．ﾞｮｳ1から9 および.ｺｳﾓｸ0から1のﾀｲｶｸﾊﾝｲ指定ずみ"));
  CHECK(ends(play({"Ctrl+H", "type 3", "Enter"}), "．ﾞｮｳ1から9 および.ｺｳﾓｸ0から3のﾀｲｶｸﾊﾝｲ指定ずみ"));
  CHECK(ends(play({"Ctrl+H", "type -9", "Enter"}), "．ﾞｮｳ1から9 および.ｺｳﾓｸ0から0のﾀｲｶｸﾊﾝｲ指定ずみ"));
  play({"Ctrl+J", "Esc"});
  CHECK(cursor() == std::pair{9, 0});
}

TEST_CASE_FIXTURE(RangeFixture, "Enter puts the corners in order and says what comes next") {
  table(9);
  play({"Down", "Down", "Right", "Shift+Up", "Up", "Left"});
  CHECK(range() == std::vector{1, 3, 2, 1, 0});
  CHECK(play({"Enter"}) == Heard{"say ﾀｲｶｸﾊﾝｲ指定ずみ。矢印ｷｰでｺﾋﾟｰ、ctrl+矢印ｷｰで移動、Delｷｰで消去、shiftｷｰで読み"
                                 "上げ。中止の場合はESCを。"});
  CHECK(range() == std::vector{1, 2, 3, 0, 1});
  CHECK(mode.empty());
  CHECK(masks() == "2-3 0-1 " + kPink);
  CHECK(mainForm().txtinputbox.hasFocus());
}

TEST_CASE_FIXTURE(RangeFixture, "a corner may be typed; one that the table has not is refused") {
  table(9);
  play({"Shift+Down"});
  Fixture::play("focus frmHANI.Text2");
  run([] { form<frmHANI>().Text2.setText(u"4"); });
  play({"Enter"});
  CHECK(range() == std::vector{1, 1, 4, 0, 0});
  CHECK(cursor() == std::pair{4, 0});
  play({"Shift+Down"});
  run([] { form<frmHANI>().Text4.setText(u"5"); });
  CHECK(play({"Enter"}).front() == "beep");
  CHECK(mode == u"HTYU");
}

TEST_CASE_FIXTURE(RangeFixture, "where no range can begin") {
  table(2);
  play({"Ctrl+PageDown"});
  for (const char* key : {"Shift+Up", "Alt+Down", "Alt+Left"}) CHECK(play({key}) == Heard{"beep"});
  CHECK(rangeKind == 0);
  play({"Up", "type ab"});
  play({"Shift+Left"});
  CHECK(rangeKind == 0);  // a selection in the box
  play({"Esc"});
  run([] { showView(1); });
  CHECK(ends(play({"Shift+Down"}), "個別記録表示中は範囲の指定は出来ません。OKならCRを叩いてください。"));
  run([] {
    if (Form* notice = screen().loaded(u"FrmOK")) screen().unload(*notice);
    showView(0);
  });
}

TEST_CASE_FIXTURE(RangeFixture, "what was typed belongs to the cell where the range began") {
  table(3);
  play({"Right", "type ab", "Shift+Down", "Down", "Esc"});
  CHECK(cells(1) == "1|ab|10|x1|J1");
  CHECK(cells(2) == "2|N2|20|x2|J2");
}

TEST_CASE_FIXTURE(RangeFixture, "the way to another record ends the numbering and stamps nothing") {
  table(5);
  autoIdOn = 1;
  autoIdValue = 100;
  const std::string before = file(kTable);
  play({"Alt+Down", "Down", "Up", "Down", "Enter", "Esc", "Down"});
  CHECK(autoIdOn == 0);
  CHECK(file(kTable) == before);
}

TEST_CASE_FIXTURE(RangeFixture, "a range longer than the cache is followed by the sheet") {
  table(200, 0);
  play({"Alt+Down", "Ctrl+Down", "Up"});
  CHECK(range() == std::vector{2, 1, 199, 0, 4});
  CHECK(masks() == utf8(decimal(cacheBase)) + "-199 0-4 " + kRed);
  CHECK(cacheBase > 1);
}

TEST_CASE_FIXTURE(RangeFixture, "a key says what it did once, whatever is released first or held down") {
  table(9);
  const auto down = [this](int code, int mask) { run([=] { routeKeyDown(code, mask, 0); }); };
  const auto up = [this](int code, int mask) { run([=] { routeKeyUp(code, mask); }); };
  down(key::Shift, shift::Shift);
  down(key::Down, shift::Shift);
  heard();
  up(key::Down, shift::Shift);
  CHECK(heard().size() == 1);
  up(key::Shift, shift::None);
  CHECK(heard().empty());
  down(key::Alt, shift::Alt);
  down('N', shift::Alt);
  Fixture::play("wait 1");
  up('N', shift::Alt);
  up(key::Alt, shift::None);
  CHECK(heard() == Heard{"say 1。ギョウ1 項目0ID"});
  for (int repeat = 0; repeat < 3; ++repeat) down(key::Down, shift::None);
  down(key::Enter, shift::None);
  CHECK(range() == std::vector{1, 1, 4, 0, 0});
  CHECK(cells(curRec) == "4|N4|40|x4|J4");
}

TEST_CASE_FIXTURE(RangeFixture, "silence chooses the same range without composing a sentence") {
  table(9, 0);
  CHECK(play({"Shift+Down", "Down", "Shift+Ctrl+Q", "Enter", "Shift"}) == Heard{});
  CHECK(range() == std::vector{1, 1, 2, 0, 0});
}
