// The smaller boxes of the main form, the ways out, and the views.
#include <doctest/doctest.h>

#include "editor/card.h"
#include "editor/editor_fixture.h"
#include "editor/moves.h"
#include "editor/sheet.h"
#include "editor/state.h"
#include "editor/view.h"
#include "platform/files.h"
#include "platform/sjis.h"
#include "store/cursor.h"
#include "store/records.h"

using namespace zelko;
using namespace zelko::test;

namespace {

const std::vector<ItemOfTable> kItems = {{u"ID", 3}, {u"氏名", 6}, {u"点", 3, u'R'}};
const Rows kRecords = {{u"1", u"山田", u"80"}, {u"2", u"x", u"7"}, {u"3", u"y", u"100"}};

}  // namespace

TEST_CASE_FIXTURE(EditorFixture, "numbers typed into the number boxes jump, or are refused") {
  struct Row {
    std::vector<std::string> keys;
    Heard heard;
    std::pair<int, int> at;
  };
  const std::string back = "say ギョウ1/項目0/1､データ入力ﾃｷｽﾄﾎﾞｯｸｽ";
  const std::vector<Row> rows = {
      {{"focus txtREC", "type 3", "Enter"},
       {"say 1､記録番号 ﾃｷｽﾄﾎﾞｯｸｽ", "say 3", "say ギョウ3/項目0/3､データ入力ﾃｷｽﾄﾎﾞｯｸｽ"},
       {3, 0}},
      {{"focus txtREC", "type 4", "Enter"}, {"say 1､記録番号 ﾃｷｽﾄﾎﾞｯｸｽ", "say 4", "beep", back}, {1, 0}},
      {{"focus txtREC", "Delete", "Enter"}, {"say 1､記録番号 ﾃｷｽﾄﾎﾞｯｸｽ", "say ブランク", "beep", back}, {1, 0}},
      {{"focus txtREC", "type 0", "Enter"}, {"say 1､記録番号 ﾃｷｽﾄﾎﾞｯｸｽ", "say 0", "beep", back}, {1, 0}},
      {{"focus txtREC", "type 9", "focus txtinputbox"}, {"say 1､記録番号 ﾃｷｽﾄﾎﾞｯｸｽ", "say 9", back}, {1, 0}},
      {{"focus txtItemnum", "type 2", "Enter"},
       {"say 0､項目番号ﾃｷｽﾄﾎﾞｯｸｽ", "say 2", "say ギョウ1/項目2/80､データ入力ﾃｷｽﾄﾎﾞｯｸｽ"},
       {1, 2}},
      {{"focus txtItemnum", "type 3"}, {"say 0､項目番号ﾃｷｽﾄﾎﾞｯｸｽ", "beep", back}, {1, 0}},
      {{"focus txtItemnum", "type -"}, {"say 0､項目番号ﾃｷｽﾄﾎﾞｯｸｽ", "beep", back}, {1, 0}},
      {{"focus txtItemnum", "Delete", "Enter"}, {"say 0､項目番号ﾃｷｽﾄﾎﾞｯｸｽ", "say ブランク", "beep", back}, {1, 0}},
  };
  for (const Row& row : rows) {
    CAPTURE(row.keys);
    open(kItems, kRecords, 2);
    CHECK(play(row.keys) == row.heard);
    CHECK(std::pair<int, int>{curRec, curItem} == row.at);
    CHECK(utf8(mainForm().txtREC.content()) == std::to_string(row.at.first));
    CHECK(utf8(mainForm().txtItemnum.content()) == std::to_string(row.at.second));
    CHECK(mainForm().activeControl() == &mainForm().txtinputbox);
  }
}

TEST_CASE_FIXTURE(EditorFixture, "a jump stores what was typed and ends the numbering") {
  open(kItems, kRecords, 1);
  autoIdOn = 1;
  play({"Right", "commit z", "focus txtREC", "type 2", "Enter"});
  CHECK(record(1) == "1  z      80");
  CHECK(autoIdOn == 0);
}

TEST_CASE_FIXTURE(EditorFixture, "item name and memo go to the item file when their boxes are left") {
  open(kItems, kRecords, 1);
  play({"Right", "focus RichTextBox1", "type n", "focus txtinputbox"});
  CHECK(utf8(itemName[1]) == "n氏名");
  CHECK(file("Kt.txt").find(toSjis(u"1001 'n氏名,L")) != std::string::npos);
  // Left by a move: it is the item that was shown that gets the name.
  play({"focus RichTextBox1", "type m"});
  jumpTo(2, 2);
  CHECK(utf8(itemName[1]) == "nm氏名");
  CHECK(utf8(itemName[2]) == "点");
  play({"focus RichTextBox2", "type 新", "focus txtinputbox"});
  CHECK(file("Kt.txt").starts_with(toSjis(u"100  ',新t,,2\r\n")));
}

TEST_CASE_FIXTURE(EditorFixture, "a comma or a line end in name or memo is refused") {
  for (const char* box : {"RichTextBox1", "RichTextBox2"}) {
    for (const char* key : {"type ,", "commit \\n"}) {
      CAPTURE(box);
      CAPTURE(key);
      open(kItems, kRecords, 1);
      std::string before = file("Kt.txt");
      Heard all = play({std::string("focus ") + box, key, "focus txtinputbox", "Enter"});
      CHECK(all.at(2) == "say 文中に｢,｣があってはいけません。OKならCRを叩いてください。");
      CHECK(file("Kt.txt") == before);
      CHECK(utf8(mainForm().RichTextBox1.content()) == "ID");
      CHECK(utf8(mainForm().RichTextBox2.content()) == "t");
    }
  }
}

TEST_CASE_FIXTURE(EditorFixture, "another alignment letter moves the cells of the item in every record") {
  open(kItems, kRecords, 1);
  play({"Right", "focus txtLR", "type r", "focus txtinputbox"});
  CHECK(record(1) == "1    山田 80");
  CHECK(record(2) == "2       x  7");
  CHECK(file("Kt.txt").find(toSjis(u"1001 '氏名,R")) != std::string::npos);
  CHECK(utf8(mainForm().txtLR.content()) == "R");
  // No letter, and a table that may not be written: the box goes back.
  play({"focus txtLR", "type Q", "focus txtinputbox"});
  CHECK(utf8(mainForm().txtLR.content()) == "R");
  setReadOnly(fromUtf8(path(kTable)), true);
  play({"focus txtLR", "type L", "focus txtinputbox", "Enter"});
  CHECK(utf8(mainForm().txtLR.content()) == "R");
  CHECK(record(1) == "1    山田 80");
}

TEST_CASE_FIXTURE(EditorFixture, "a refused write is told once, and the cursor goes on") {
  open(kItems, kRecords, 1);
  setReadOnly(fromUtf8(path(kTable)), true);
  play({"Right"});
  Heard first = play({"commit z", "Down", "Enter"});
  CHECK(first.at(1) == "beep");
  CHECK(first.at(2).starts_with("say 書き込み禁止ﾌｧｲﾙです。"));
  CHECK(curRec == 2);
  CHECK(mainForm().Label1.visible());
  CHECK(play({"commit z", "Down"}) == Heard{"say ｾﾞｯﾄ ざん5バイト", "say y"});
  CHECK(record(1) == "1  山田   80");
}

TEST_CASE_FIXTURE(EditorFixture, "the program is left by its menu or by Esc and yes") {
  open(kItems, kRecords, 2);
  Heard asked = play({"Right", "Esc", "N"});
  CHECK(asked.at(1) == "say データ記入開始時escape入力がありました、Zelko終了しますか？?[はい](Y)､ｺﾏﾝﾄﾞぼたん");
  CHECK_FALSE(ended());
  CHECK(play({"commit z", "Enter", "Esc", "Y"}).back() == "say Zelko ｼｭｳﾘｮｳ");
  CHECK(ended());
  CHECK(record(1) == "1  z      80");
  CHECK(file("zlkTalk") == " 2 \r\n");
  CHECK(file("mAgent") == " 0 \r\n");
}

TEST_CASE_FIXTURE(EditorFixture, "a silent program leaves without a word and keeps its row") {
  open(kItems, kRecords, 0);
  CHECK(play({"Right", "commit z", "Enter", "menu mnuEND"}) == Heard{});
  CHECK(ended());
  CHECK(record(1) == "1  z      80");
  CHECK(file("zlkTalk") == " 0 \r\n");
}

TEST_CASE_FIXTURE(EditorFixture, "the sheet shows the cached records, the cursor, what is typed and the masks") {
  open(kItems, kRecords, 0);
  auto& sheet = form<frmSHEET>();
  Grid& grid = sheet.Grid1;
  CHECK(utf8(sheet.caption()) == "全項目(0～2)記録3");
  CHECK(utf8(grid.cell(0, 2)) == "氏名");
  CHECK(utf8(grid.cell(1, 2)) == "山田");
  CHECK(utf8(grid.cell(3, 0)) == "3");
  play({"Down", "Right", "commit zz"});
  CHECK(std::pair{grid.row(), grid.col()} == std::pair{2, 2});
  CHECK(utf8(sheet.Label1.caption()) == "zz");
  play({"Esc"});
  CHECK(utf8(sheet.Label1.caption()) == "x");
  rangeMask(3, 2, 1, 0, 255);
  targetMask(500, 600, 0, 1, 65280);
  REQUIRE(grid.masks().size() == 1);
  CHECK(grid.masks()[0].row1 == 2);
  CHECK(grid.masks()[0].row2 == 3);
  CHECK(grid.masks()[0].col1 == 1);
  CHECK(grid.masks()[0].col2 == 2);
  rangeKind = 1;
  reloadCur();
  hideTargetMask();
  CHECK(grid.masks().empty());
  CHECK(rangeKind == 0);
}

TEST_CASE_FIXTURE(EditorFixture, "the card shows the current record item by item") {
  open(kItems, kRecords, 1);
  showView(1);
  Grid& grid = form<frmKOJIND>().Grid1;
  play({"Down"});
  CHECK(grid.rows() == 4);
  CHECK(utf8(grid.cell(2, 1)) == "氏名");
  CHECK(utf8(grid.cell(2, 2)) == "x");
  CHECK_FALSE(form<frmSHEET>().visible());
}

TEST_CASE_FIXTURE(EditorFixture, "no control of the editor's forms takes the focus in silence") {
  open(kItems, kRecords, 1);
  showView(1);
  showView(0);
  form<frmKOJIND>().showWithoutFocus();
  for (Form* form : {static_cast<Form*>(&mainForm()), screen().loaded(u"frmSHEET"), screen().loaded(u"frmKOJIND")}) {
    CHECK(play({"Shift+Ctrl+A"}).size() == 1);
    for (Control* control : form->controls()) {
      if (!control->takesFocus()) continue;
      CAPTURE(utf8(form->name() + u"." + control->name()));
      (control == &mainForm().txtinputbox ? mainForm().txtREC : mainForm().txtinputbox).setFocus();
      play({"Ctrl"});
      control->setFocus();
      CHECK(heard().size() == 1);
    }
  }
}
