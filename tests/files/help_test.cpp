// A help text, read line by line.
#include "files/files_fixture.h"
#include "platform/sjis.h"

using namespace zelko;
using namespace zelko::test;

TEST_CASE_FIXTURE(FilesFixture, "a help text is walked by ear") {
  writeBytes(folder() / "README.TXT", toSjis(u"一行目\r\n\r\n三行目\n四行目"));
  edit(table(u"a"));
  CHECK(play({"menu mnuREDME"}) ==
        "readmeが表示されています。矢印ｷｰで、一行ずつ読まれます。ｼﾌﾄｷｰで全文が読まれます。escで戻ります。"
        "ﾃｷｽﾄぼっくす");
  struct Row {
    std::string key, heard;
  };
  const std::vector<Row> rows = {{"Up", "一行目"},   {"Down", "ブランク"},    {"Down", "三行目"},      {"Right", "行"},
                                 {"Down", "四行目"}, {"Ctrl+Home", "一行目"}, {"Ctrl+End", "ブランク"}};
  for (const Row& row : rows) {
    CAPTURE(row.key);
    CHECK(play({"key " + row.key}) == row.heard);
  }
  CHECK(play({"key Shift"}) == "一行目\\n\\n三行目\\n四行目\\n");
  play({"type x"});
  CHECK(play({"key Ctrl+Home", "key Shift"}) == "一行目 / 一行目\\n\\n三行目\\n四行目\\n");
  play({"key Esc"});
  CHECK(play({"show forms"}) == "forms frmSHEET Form1");
}

TEST_CASE_FIXTURE(FilesFixture, "a help text that is not there") {
  edit(table(u"a"));
  CHECK(play({"menu menuGENERAL"}).find("Zelkoについて.txtがないか、読めません。") != std::string::npos);
  play({"key Enter"});
  CHECK(play({"show forms"}) == "forms frmSHEET Form1");
}
