// Sessions with table design: a new table, a changed one, a referred one; sentences, and the bytes of the files.
#include <sys/stat.h>

#include "editor/main/commands.h"
#include "editor/main/form1.h"
#include "files/files_fixture.h"
#include "files/picker/picker.h"
#include "platform/text/sjis.h"
#include "store/records/records.h"
#include "store/table/cursor.h"

using namespace zelko;
using namespace zelko::test;

namespace {

const std::string kItemFile =
    "100  ',memo,,2\r\n1000 'ID,L\r\n1001 'name,L\r\n1002 'pt,R\r\n2000 '4\r\n2001 '8\r\n2002 '3\r\n";

std::string cellRow(const std::string& cells) { return cells + std::string(254 - cells.size(), ' ') + "\r\n"; }

// A table of three items and two records, in edit, with its design open.
class Designer : public FilesFixture {
 public:
  void openDesign() {
    writeBytes(path("t.txt"), cellRow("1   yamada   80") + cellRow("2   sato      7"));
    writeBytes(path("Kt.txt"), kItemFile);
    edit(fromUtf8(path("t.txt")));
    play({"wait 1", "key F5"});
  }
  // From the start screen: the main form stands empty.
  void openNew() {
    run([] {
      form<Form1>().show();
      runCommand(u"mnuNEW");
    });
    heard();
  }
  std::string file(const std::string& name) const { return readBytes(path(name)); }
  std::string cell(const std::string& sentence) const { return sentence + "項目区切り設定ヒョウ入力テキストボックス"; }
};

}  // namespace

TEST_CASE_FIXTURE(Designer, "a new table is designed by ear and opened") {
  openNew();
  CHECK(play({"key Enter"}) == cell("項目0の配置を示すRまたはＬを入力してください"));
  CHECK(play({"key Enter"}) == cell("項目0の項目幅を入力してください"));
  CHECK(play({"type 4", "key Enter"}) ==
        "4 / 設定された項目数の記入を終えました。項目数を増やす場合は↓を押してください。OKならCRを叩いてください。");
  CHECK(play({"key Enter", "key Down"}) ==
        cell("項目0の項目幅を入力してください") + " / " + cell("項目1の項目名を記入してください"));
  CHECK(play({"type 氏", "key Backspace"}) == "氏 / 氏 削除");
  play({"commit 氏名", "key Enter", "type r", "key Enter", "commit １x０"});
  CHECK(play({"show frmDESIGN.itemin"}) == "frmDESIGN.itemin 10");
  play({"focus frmDESIGN.text2", "commit 名簿", "focus frmDESIGN.text3", "commit 会員", "focus frmDESIGN.Command1"});
  CHECK(play({"key Enter"}) == "ﾌﾞﾗﾝｸ  ｷﾞｮｳ1 ｺｳﾓｸ0ID No");
  CHECK(play({"show forms"}) == "forms frmSHEET Form1");
  CHECK(docPath == fromUtf8(path("会員.txt")));
  CHECK(file("会員.txt").empty());
  CHECK(fromSjis(file("K会員.txt")) == u"100  ',名簿,,1\r\n1000 'ID No,L\r\n1001 '氏名,R\r\n2000 '4\r\n2001 '10\r\n");
}

TEST_CASE_FIXTURE(Designer, "a wrong cell is told and stays, marked for what is typed next") {
  openDesign();
  const std::string back = " / " + cell("項目1の配置を示すRまたはＬを入力してください");
  play({"key Down", "key Enter"});
  CHECK(play({"type x", "key Enter", "key Enter"}) ==
        "ｴｯｸｽ / 再入力、ＬかＲのみ記入。 / "
        "Ｌ(左詰め指定)かＲ(右詰め指定）のみを入力して下さい。OKならCRを叩いてください。" +
            back);
  play({"type q", "key Tab"});
  CHECK(play({"key Enter", "show focus"}).ends_with("focus frmDESIGN.itemin"));
  CHECK(play({"type L", "key Enter", "type ５x"}) ==
        "ｵｵﾓｼﾞｴﾙ / " + cell("項目1の項目幅を入力してください") + " / 5 / beep");
}

TEST_CASE_FIXTURE(Designer, "a row that is deleted or inserted takes its cells along") {
  openDesign();
  play({"key Down"});
  CHECK(play({"key Shift+Ctrl+Delete"}) == "1項目が削除され、以後の項目が前詰めされました。");
  CHECK(play({"key Shift+Ctrl+Insert"}) == "1項目に項目が挿入されました。項目名などを設定してください。");
  play({"type x", "key Enter", "key Enter", "type 2", "focus frmDESIGN.Command1", "key Enter"});
  CHECK(play({"key Y"}).ends_with("1  ｷﾞｮｳ1 ｺｳﾓｸ0ID"));
  CHECK(file("t.txt") == cellRow("1      80") + cellRow("2       7"));
  play({"key F5"});
  CHECK(play({"key Shift+Ctrl+Delete"}) == "beep");
}

TEST_CASE_FIXTURE(Designer, "what fails or is refused leaves both files as they were, and is told") {
  openDesign();
  const std::string data = file("t.txt");
  const auto widen = [this] {
    play({"key F5", "key Enter", "key Enter", "type 6", "focus frmDESIGN.Command1", "key Enter", "wait 1"});
  };
  play({"key Esc"});
  SUBCASE("read-only") {
    widen();
    ::chmod(path("t.txt").c_str(), 0444);
    CHECK(play({"key Y"}).find("書き込み禁止ﾌｧｲﾙです。") != std::string::npos);
  }
  SUBCASE("stopped") {
    widen();
    play({"later 1 key Esc", "key Y"});
    CHECK(play({"show forms"}) == "forms frmSHEET Form1 frmDESIGN");
  }
  SUBCASE("item file that may not be written") {
    ::chmod(path("Kt.txt").c_str(), 0444);
    widen();
    CHECK(play({"key N"}).find("書き込み時にエラーが出ました。") != std::string::npos);
  }
  CHECK(file("t.txt") == data);
  CHECK(file("Kt.txt") == kItemFile);
  CHECK(recCount() == 2);
  CHECK(itemWidth[0] == 4);
  CHECK_FALSE(exists("WORK.QQQ"));
}

TEST_CASE_FIXTURE(Designer, "the design of another table is heard and taken over; a file that is none is told") {
  writeBytes(path("Ka.txt"), "100  ',,,0\r\n1000 'whole,L\r\n2000 '254\r\n");
  writeBytes(path("Kbad.txt"), "no item file");
  openDesign();
  play({"focus frmDESIGN.Command3", "key Enter"});
  CHECK(play({"key Down"}) == "a.txt。項目はID項目のみで、項目名はwhole。です。");
  CHECK(play({"key Down"}) == "bad.txt。です。Zelkoﾌｧｲﾙでないかもしれません。");
  CHECK(play({"key Enter", "key Enter"}).find("Zelkoﾌｧｲﾙでないか、項目設定を記述したﾌｧｲﾙが不良です") !=
        std::string::npos);
  CHECK(play({"key Down"}) == "t.txt。項目数2のファイルです第1項目の、項目名はname。です。");
  CHECK(play({"key Esc", "key Enter", "show frmDESIGN.text1"}).ends_with("frmDESIGN.text1 2"));
  play({"focus frmDESIGN.Command3", "key Enter", "key Home"});
  CHECK(play({"key Enter"}) == "a.txtの項目設定を写しました。" + cell("項目0の項目名を記入してください"));
  CHECK(play({"show frmDESIGN.Grid1"}).ends_with("frmDESIGN.Grid1 0 | whole | L | 254"));
  CHECK(play({"show frmDESIGN.text1"}) == "frmDESIGN.text1 0");
}

TEST_CASE_FIXTURE(Designer, "the items of a CSV file are designed from the picker, which then lists such files") {
  writeBytes(path("x.csv"), "a,b\r\n");
  Text read;
  registerCommand(u"csvREAD", [&read] { read = pickedFile(); });
  pick(PickFor::table);
  play({"click frmDISK.Command2"});
  CHECK(play({"key Esc", "show forms"}).ends_with("forms frmDISK"));
  play({"click frmDISK.Command2", "key Enter", "key Enter", "type 4", "focus frmDESIGN.text1", "commit 0"});
  play({"focus frmDESIGN.text3", "commit new", "focus frmDESIGN.Command1", "key Enter"});
  CHECK(docPath == fromUtf8(path("new.txt")));
  play({"focus frmDISK.File1", "key Down", "click frmDISK.Command2"});
  registerCommand(u"csvREAD", {});
  CHECK(toUtf8(read) == path("x.csv"));
  play({"key Esc"});
  CHECK(play({"show forms"}) == "forms frmSHEET Form1");
  CHECK(mode.empty());
}
