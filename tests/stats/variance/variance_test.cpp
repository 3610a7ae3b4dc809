// What the analyses of variance refuse, by name of what is wrong, and what they take at their limits.
#include "session.h"
#include "stats/variance/threewayform.h"
#include "stats/variance/twowayform.h"

namespace zelko {

namespace {

const std::vector<ItemOfTable> kItems = {
    {u"ID", 3}, {u"点", 6, u'R'}, {u"A", 4, u'R'}, {u"B", 4, u'R'}, {u"C", 4, u'R'}};

Text number(int value) { return fromUtf8(std::to_string(value)); }

// A record a cell of the design, `each` times, the value made from its place.
test::Rows crossed(int a, int b, int c, int each) {
  test::Rows rows;
  for (int i = 0; i < a * b * c * each; ++i) {
    const int cell = i / each;
    rows.push_back(
        {u"1", number(i * 7 % 23), number(cell / (b * c) + 1), number(cell / c % b + 1), number(cell % c + 1)});
  }
  return rows;
}

struct Design {
  std::string way;  // to the questions
  int factors;      // as many questions behind the first; -1 where there are none
};

const Design kCells = {"menu mnu2\nfocus frmBUNSAN2.Option3\nkey Space\nkey Enter\n", 2};
const Design kUnequal = {
    "menu mnu2\nfocus frmBUNSAN2.Option3\nkey Space\nfocus frmBUNSAN2.Check1\nkey Space\nkey Enter\n", 2};
const Design kSingle = {"menu mnu3\nfocus FrmBunsan3.Command1\nkey Enter\n", 3};
const Design kReplicated = {"menu mnu3\nfocus FrmBunsan3.Command7\nkey Enter\n", 3};
const Design kOneWay = {"menu mnu1\nkey Enter\n", -1};
const Design kTrials = {"menu mnu2\nkey Enter\n", -1};

// All that is said of the design on that table.
Text outcome(const test::Rows& rows, const Design& design, const std::vector<ItemOfTable>& items = kItems) {
  test::Session session;
  session.open(items, rows);
  session.play(design.way);
  for (int question = 0; question <= design.factors; ++question)
    session.play("type " + std::to_string(question + 1) + "\nkey Enter\n");
  return fromUtf8(session.said());
}

bool holds(const Text& text, TextView piece) { return text.find(piece) != Text::npos; }

test::Rows changed(test::Rows rows, std::size_t row, std::size_t item, const Text& cell) {
  rows[row][item] = cell;
  return rows;
}

test::Rows without(test::Rows rows, std::size_t row) {
  rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(row));
  return rows;
}

}  // namespace

TEST_CASE("an analysis of variance names what it can't take") {
  struct Row {
    test::Rows rows;
    Design design;
    TextView said;
  };
  test::Rows flat = crossed(2, 2, 1, 2);
  for (auto& row : flat) row[1] = u"5";
  const test::Rows table[] = {crossed(2, 3, 1, 3), crossed(2, 2, 3, 1), crossed(2, 2, 2, 2)};
  const Row refused[] = {
      {crossed(2, 300, 1, 1), kOneWay, u"一元配置"},
      {crossed(1, 1, 1, 601), kOneWay, u"データ数(行数）は600以内にしてください"},
      {crossed(2, 2, 1, 200), kCells, u"データ数(行数）は600以内にしてください"},
      {changed(crossed(1, 1, 1, 4), 2, 3, u"x"), kTrials,
       u"項目ﾃﾞｰﾀに数字以外のﾃﾞｰﾀがありました。ﾃﾞｰﾀをチェｯｸしなおしてください(記録3項目3)"
       u"。なおデータの範囲指定可能です。"},
      {changed(table[0], 4, 1, u""), kCells, u"項目ﾃﾞｰﾀが未記入です。ﾃﾞｰﾀをチェｯｸしなおしてください(記録5項目1)。"},
      {changed(table[0], 4, 2, u""), kCells,
       u"群分け項目ﾃﾞｰﾀに数字以外のﾃﾞｰﾀがありました。ﾃﾞｰﾀをチェｯｸしなおしてください(記録5項目2)。"},
      {changed(table[0], 4, 3, u"255"), kCells,
       u"群分け項目ﾃﾞｰﾀに255以上の群番号を示すﾃﾞｰﾀがありました。ﾃﾞｰﾀをチェｯｸしなおしてください(記録5項目3)。"},
      {changed(table[0], 4, 3, u"0"), kCells,
       u"1から254までの整数でないﾃﾞｰﾀがありました。ﾃﾞｰﾀをチェｯｸしなおしてください(記録5項目3)。"},
      {changed(table[0], 4, 3, u"1.5"), kCells, u"1から254までの整数でないﾃﾞｰﾀがありました"},
      {changed(table[0], 4, 3, u"5"), kCells,
       u"群番号4のﾃﾞｰﾀがありません。ﾃﾞｰﾀをチェｯｸしなおしてください(記録5項目3)。"},
      {crossed(99, 2, 1, 2), kCells, u"処理AのF値は"},
      {crossed(100, 2, 1, 2), kCells, u"処理Aの水準数は99以下にしてください。"},
      {crossed(2, 100, 1, 2), kCells, u"処理Bの水準数は99以下にしてください。"},
      {crossed(2, 2, 100, 1), kSingle, u"処理Cの水準数は99以下にしてください。"},
      {crossed(2, 1, 1, 2), kCells, u"処理Bの水準数は2以上にしてください。"},
      {without(table[0], 0), kCells, u"処理セル内の被験者数が同じではありません。ﾃﾞｰﾀをチェｯｸしなおしてください。"},
      {without(table[0], 0), kUnequal, u"処理AのF値は"},
      {without(without(table[0], 0), 0), kUnequal,
       u"処理A水準1、処理B水準1のセルに該当するデータが1以下です。ﾃﾞｰﾀをチェｯｸしなおしてください。"},
      {without(without(without(table[0], 0), 0), 0), kCells,
       u"処理A水準数が、処理B水準で異なります。ﾃﾞｰﾀをチェｯｸしなおしてください。処理A水準1、処理B水準1のセルに"},
      {without(table[1], 4), kSingle,
       u"処理A水準1、処理B水準2、処理C水準2のセルに該当するデータが1ではありません。ﾃﾞｰﾀをチェｯｸしなおしてください。"},
      {table[2], kSingle, u"処理セル内の被験者数が1ではありません。ﾃﾞｰﾀをチェｯｸしなおしてください。"},
      {table[1], kReplicated,
       u"処理A水準1、処理B水準1、処理C水準1のセルに該当するデータが2以上ではありません。ﾃﾞｰﾀをチェｯｸしなおしてください"
       u"。"},
      {without(crossed(2, 2, 2, 3), 9), kReplicated,
       u"処理セル内の被験者数が一定ではありません。ﾃﾞｰﾀをチェｯｸしなおしてください。"},
      {flat, kCells, u"処理Aわ検定できない"},
  };
  for (const Row& row : refused) {
    CAPTURE(toUtf8(row.said));
    const Text said = outcome(row.rows, row.design);
    CAPTURE(toUtf8(said));
    CHECK(holds(said, row.said));
  }
}

TEST_CASE("a group that has ended takes no more values") {
  const std::vector<ItemOfTable> items = {{u"ID", 3}, {u"a", 5}, {u"b", 5}};
  const test::Rows rows = {{u"1", u"3", u"4"}, {u"2", u"5", u"0"}, {u"3", u"4", u"6"}};
  const Design unequal = {"menu mnu1\nkey Space\nkey Enter\n", -1};
  CHECK(holds(
      outcome(rows, unequal, items),
      u"項目ﾃﾞｰﾀの連続が終了してるのに、再度データが記入されています。ﾃﾞｰﾀをチェｯｸしなおしてください(記録3項目2)。"));
  CHECK(holds(outcome(changed(rows, 2, 2, u" "), unequal, items),
              u"一元配置、2群、ﾃﾞｰﾀｽｳ4。級間（列:実験変数）のF値は｡0｡自由度｡1と2"));
  CHECK(holds(outcome(rows, kOneWay, items), u"ﾃﾞｰﾀｽｳ6"));
}

}  // namespace zelko
