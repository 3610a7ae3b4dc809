// Every limit of the analyses through its form: so many are taken, one more ends the program or is refused, in words,
// and the table stays whole.
#include <sstream>

#include "session.h"

namespace zelko {

namespace {

constexpr int kItems = 6;

Text number(int value) { return fromUtf8(std::to_string(value)); }

// Values without a group that is empty or an item that is constant.
test::Rows rowsOf(int records) {
  test::Rows rows;
  for (int i = 0; i < records; ++i) {
    std::vector<Text> row = {u"1"};
    for (int item = 1; item < kItems; ++item) row.push_back(number(i * (item + 4) % (7 + item) + 1));
    row.push_back(u"1");
    rows.push_back(row);
  }
  return rows;
}

const std::vector<ItemOfTable> kTable = {{u"ID", 2},      {u"a", 4, u'R'}, {u"b", 4, u'R'}, {u"c", 4, u'R'},
                                         {u"d", 4, u'R'}, {u"e", 4, u'R'}, {u"群", 3, u'R'}};

struct Limit {
  std::string name;
  int most;
  std::string script;
  std::string taken;    // said of that many
  std::string refused;  // said of one more, or the sentence that the program ends with
  bool ends;
};

const Limit kLimits[] = {
    {"cells of frequencies", 1200, "menu mnuFREQ\nkey Num1\nkey Enter\nkey Enter", "頻度集計終了！", "1200", true},
    {"records of Pearson", 1000, "menu mnuRP\nkey Num1\nkey Down\nkey Num1\nkey Enter", "aとb", "1000", true},
    {"records of Spearman", 1001,
     "menu mnuRS\nfocus frmRS.Text2\ntype 1\nfocus frmRS.Text4\ntype 1\nfocus frmRS.Command1\nkey Enter\nkey Enter",
     "aとa", "1001", true},
    {"objects of clusters", 200,
     "menu mnuCLUS\nkey Enter\nkey Num1\nkey Down\nkey Num1\nkey Down\nkey Num1\nkey Down\nkey Num1\nkey Enter\nfocus "
     "FrmCLUS.Command1\nkey Enter\nwait 1",
     "記録200件、199段", "200", true},
    {"values of a distribution", 15000, "key Right\nmenu mnuDIST\nwait 1\nkey E", "15000", "15000", true},
    {"values of a group", 2000, "menu mnuSUII\ntype 1\nkey Enter\ntype 6\nkey Enter", "2000", "2000", true},
    {"rows of variance", 600, "menu mnu1\nkey Enter", "一元配置、6群、ﾃﾞｰﾀｽｳ3600", "600以内", false},
};

}  // namespace

TEST_CASE("each analysis takes as many as its limit, and tells one more") {
  for (const Limit& limit : kLimits) {
    for (const int more : {0, 1}) {
      CAPTURE(limit.name);
      CAPTURE(more);
      test::Session session;
      session.open(kTable, rowsOf(limit.most + more));
      const std::string table = session.file("t.txt");
      std::istringstream lines(limit.script);
      for (std::string line; !session.ended() && std::getline(lines, line);) session.play(line);
      std::string said = session.said();
      for (const std::string& event : session.events())
        if (event.starts_with("fault ")) said += event;
      CAPTURE(said);
      CHECK(session.ended() == (more == 1 && limit.ends));
      CHECK(said.find(more == 0 ? limit.taken : limit.refused) != std::string::npos);
      CHECK(session.file("t.txt") == table);
    }
  }
}

TEST_CASE("a group of the U test takes 500 values") {
  for (const int more : {0, 1}) {
    CAPTURE(more);
    test::Session session;
    std::string lines = std::to_string(500 + more) + "\r\n";
    for (int i = 0; i < 500 + more; ++i) lines += std::to_string(i + 1) + "\r\n";
    lines += "1\r\n1\r\n";
    for (int i = 0; i < 500 + more; ++i) lines += "\"" + std::to_string(i * 7 % 31) + "\"\r\n";
    writeBytes(session.folder() / "ZLKCLip", lines);
    session.open(kTable, rowsOf(1));
    session.play("menu mnuU\nmenu mnuPST1\nmenu mnuPST2\nfocus FrmU.Command2\nkey Enter");
    const std::string said = session.said();
    CAPTURE(said);
    CHECK(said.find(more == 0 ? "U値は" : "データ数は500以下にしてください") != std::string::npos);
  }
}

}  // namespace zelko
