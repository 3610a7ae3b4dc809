// Sessions with the output dialog: its name rule, saving under another name, and text files made into tables.
#include <sys/stat.h>

#include "files/files_fixture.h"
#include "files/output/outputname.h"
#include "platform/files/files.h"
#include "platform/text/sjis.h"
#include "store/records/records.h"
#include "store/table/cursor.h"

using namespace zelko;
using namespace zelko::test;

namespace {

class Saver : public FilesFixture {
 public:
  Saver() {
    edit(makeTable(u"t", {{u"ID", 4}, {u"氏名", 8}}, {{u"1", u"山田"}, {u"2", u"佐藤"}}));
    data_ = file("t.txt");
    items_ = file("Kt.txt");
    play({"wait 1", "menu mnuRESAS"});
  }
  std::string file(const std::string& name) const { return readBytes(path(name)); }
  std::string data_, items_;
};

}  // namespace

TEST_CASE("an output file always has its extension, and is never settled before the user has heard it") {
  struct Row {
    TextView typed;
    NameStep step;
    TextView shown, full;  // the box afterwards, the settled name
  };
  for (const Row& row :
       {Row{u"abc", NameStep::extended, u"abc.txt", u""}, Row{u"abc.TXT", NameStep::settled, u"", u"/f/abc.TXT"},
        Row{u"abc.doc", NameStep::extended, u"abc.doc.txt", u""},
        Row{u" a b.txt ", NameStep::settled, u"", u"/f/a b.txt"},
        Row{u"/g/abc.txt", NameStep::settled, u"", u"/g/abc.txt"},
        Row{u"sub/abc.txt", NameStep::settled, u"", u"/f/sub/abc.txt"}, Row{u"", NameStep::noName, u"", u""},
        Row{u"/g/  ", NameStep::noName, u"", u""}, Row{u"　", NameStep::noName, u"", u""},
        Row{u".txt", NameStep::noName, u"", u""}, Row{u"txt", NameStep::extended, u"txt.txt", u""}}) {
    CAPTURE(toUtf8(row.typed));
    Text typed(row.typed), full;
    CHECK(settleName(u"/f", typed, full) == row.step);
    CHECK(typed == (row.shown.empty() ? row.typed : row.shown));
    CHECK(full == row.full);
  }
  CHECK(convertedName(u"/a.b/memo.txt") == u"/a.b/memo_ZELKO.txt");
  CHECK(convertedName(u"/a.b/memo") == u"/a.b/memo_ZELKO");
}

TEST_CASE_FIXTURE(Saver, "records go behind those of a file that exists, and of the open table itself") {
  SUBCASE("another, picked in the list") {
    writeBytes(path("a.txt"), data_);
    writeBytes(path("Ka.txt"), "100  ',,,0\r\n1000 'x,L\r\n2000 '9\r\n");
    play({"focus formHOZON.Drive1", "focus formHOZON.Command3"});
    play({"key Esc", "menu mnuRESAS", "focus formHOZON.File1", "key Down"});
    CHECK(play({"show formHOZON.RichTextBox1"}) == "formHOZON.RichTextBox1 ~/a.txt");
    play({"key Enter", "key Y"});
    CHECK(file("a.txt") == data_ + data_);
    CHECK(file("Ka.txt") == items_);
  }
  SUBCASE("the open table, in other letters") {
    play({"commit T.TXT", "key Enter", "key Y"});
    CHECK(file("t.txt") == data_ + data_);
    CHECK(recCount() == 4);
    CHECK_FALSE(exists("T.TXT"));
  }
}

TEST_CASE_FIXTURE(Saver, "an output that can't be opened or written is told, and nothing has changed") {
  writeBytes(path("a.txt"), "short");
  writeBytes(path("Ka.txt"), items_);
  const std::string notOpened = "出力ﾌｧｲﾙが開けません。もう一度確認してください";
  // A read-only file, no such folder, a name of 255 bytes, an item file.
  for (const std::string& name :
       {std::string("a.txt"), std::string("no/a.txt"), std::string(252, 'a') + ".txt", std::string("Ka.txt")}) {
    CAPTURE(name);
    ::chmod(path("a.txt").c_str(), 0444);
    CHECK(play({"key Ctrl+A", "commit " + name, "key Enter"}).find(notOpened) != std::string::npos);
    play({"key Enter"});
    ::chmod(path("a.txt").c_str(), 0644);
  }
  ::chmod(path("Ka.txt").c_str(), 0444);
  CHECK(play({"key Ctrl+A", "commit a.txt", "key Enter"}).find("書き込み時にエラーが出ました。") != std::string::npos);
  CHECK(file("a.txt") == "short");
  CHECK(file("Ka.txt") == items_);
  CHECK(file("t.txt") == data_);
  play({"key Enter", "key Esc"});
  CHECK(play({"show forms"}) == "forms frmSHEET Form1");
  CHECK(recCount() == 2);
}

TEST_CASE_FIXTURE(Saver, "what was typed and not yet stored is in the copy") {
  play({"key Esc", "commit 7", "menu mnuRESAS", "commit abc.txt", "key Enter", "key N"});
  CHECK(file("abc.txt").starts_with("7   "));
  CHECK(file("t.txt").starts_with("7   "));
}

TEST_CASE_FIXTURE(FilesFixture, "a text file becomes a table, a line a record; what is too long is told") {
  writeBytes(path("memo.dat"), toSjis(u"一行目\r\n\r\n") + std::string(253, 'a') + toSjis(u"漢字\r\n"));
  pick(PickFor::text);
  play({"key Down", "key Enter"});
  CHECK(play({"show formHOZON.RichTextBox1"}) == "formHOZON.RichTextBox1 ~/memo_ZELKO.dat");
  play({"key Enter"});
  CHECK(play({"key Enter"}).starts_with("254バイトを超える行が1行ありました。"));
  CHECK(play({"key Enter"}).find("~/memo_ZELKO.dat.txtというZelkoﾌｧｲﾙが作成されました｡") != std::string::npos);
  CHECK(play({"key Enter"}).ends_with("一行目  ｷﾞｮｳ1 ｺｳﾓｸ0ID No"));
  CHECK(play({"show forms"}) == "forms frmSHEET Form1");
  const std::string data = readBytes(path("memo_ZELKO.dat.txt"));
  CHECK(data.size() == 768);
  CHECK(data.substr(512) == std::string(253, 'a') + " \r\n");
  CHECK(data.substr(256, 256) == std::string(254, ' ') + "\r\n");
}

TEST_CASE_FIXTURE(FilesFixture,
                  "a conversion asks before it overwrites, and never takes its own source or the open table") {
  edit(table(u"t"));
  writeBytes(path("a.txt"), "line\r\n");
  const std::string data = readBytes(path("t.txt"));
  play({"menu mnuCZLK", "type a"});
  for (const char* name : {"a.txt", "t.txt"}) {
    play({"key Enter", "key Ctrl+A", std::string("commit ") + name});
    CHECK(play({"key Enter"}).find("と同じです｡") != std::string::npos);
    play({"key Enter", "key Esc"});
  }
  writeBytes(path("b.txt"), "kept");
  play({"key Enter", "key Ctrl+A", "commit b.txt"});
  CHECK(play({"key Enter"}).find("は既にあります。上書きしますか。") != std::string::npos);
  CHECK(readBytes(path("a.txt")) == "line\r\n");
  // A source that is gone by now is no failed write.
  deleteFile(fromUtf8(path("a.txt")));
  play({"key N", "key Ctrl+A", "commit c.txt"});
  CHECK(play({"key Enter"}) == "beep / 変換元のﾌｧｲﾙが読めません。OKならCRを叩いてください。");
  CHECK_FALSE(fileExists(fromUtf8(path("Kc.txt"))));
  play({"key Enter", "key Esc", "key Esc"});
  CHECK(readBytes(path("b.txt")) == "kept");
  CHECK(readBytes(path("t.txt")) == data);
  CHECK(play({"show forms"}) == "forms frmSHEET Form1");
}
