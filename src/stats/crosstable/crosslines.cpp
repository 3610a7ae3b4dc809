#include "stats/crosstable/crosslines.h"

#include "platform/text/format.h"
#include "platform/text/number.h"
#include "stats/crosstable/tablelines.h"

namespace zelko {

namespace {

constexpr std::size_t kNameLength = 10;
constexpr std::size_t kCount = 4, kPercent = 5, kFourfold = 6;  // columns of a cell, its bar apart

using numbers::CrossTable;
using numbers::CrossTest;
using numbers::kSumIndex;

// The columns that a table shows: the categories, and behind them 0 where a record has no category of item 1.
std::vector<int> shownColumns(const CrossTable& table) {
  std::vector<int> columns;
  for (int k = 1; k <= table.columns; ++k) columns.push_back(k);
  if (table.tbl[kSumIndex][0] > 0 || table.tbl[0][0] > 0) columns.push_back(0);
  return columns;
}

std::vector<int> categories(int last) {
  std::vector<int> all;
  for (int k = 1; k <= last; ++k) all.push_back(k);
  return all;
}

void appendCounts(const CrossTable& table, std::vector<Text>& lines) {
  const std::vector<int> columns = shownColumns(table);
  const auto row = [&](TextView label, int index) {
    Text line = Text(label);
    for (const int k : columns) line += barred(decimal(table.tbl[index][k]), kCount);
    lines.push_back(line + rightAligned(decimal(table.tbl[index][kSumIndex]), kCount + 1));
  };
  const std::size_t cells = columns.size() + 2;
  Text heading = u"    |";
  for (const int k : columns) heading += barred(decimal(k), kCount);
  lines.push_back(heading + u"   計");
  lines.push_back(repeated(u"----+", cells));
  for (int i = 1; i <= table.rows; ++i) row(barred(decimal(i), kCount), i);
  row(barred(u"0", kCount), 0);
  lines.push_back(repeated(u"････+", cells));
  row(u"計  |", kSumIndex);
  lines.push_back(repeated(u"-----", cells));
}

Text percent(int count, int whole) { return whole == 0 ? Text(u"-") : format(100.0 * count / whole, u"#.0"); }

Text percentHeading(const CrossTable& table) {
  Text heading = u"     |";
  for (const int k : categories(table.columns)) heading += barred(decimal(k), kPercent);
  return heading;
}

void appendRowPercents(const CrossTable& table, std::vector<Text>& lines) {
  const Text rule = repeated(u"-----+", static_cast<std::size_t>(table.columns) + 2);
  lines.push_back(u"横合計に対する各カテゴリー％");
  lines.push_back(percentHeading(table) + u"   Ｎ");
  lines.push_back(rule);
  for (int i = 1; i <= table.rows; ++i) {
    const int whole = table.tbl[i][kSumIndex];
    Text line = barred(decimal(i), kPercent);
    for (const int k : categories(table.columns)) line += barred(percent(table.tbl[i][k], whole), kPercent);
    lines.push_back(line + rightAligned(decimal(whole), kPercent));
  }
  lines.push_back(rule);
}

void appendColumnPercents(const CrossTable& table, std::vector<Text>& lines) {
  const Text rule = repeated(u"-----+", static_cast<std::size_t>(table.columns) + 1);
  lines.push_back(u"縦計に対する各カテゴリー％");
  lines.push_back(percentHeading(table));
  lines.push_back(rule);
  for (int i = 1; i <= table.rows; ++i) {
    Text line = barred(decimal(i), kPercent);
    for (const int k : categories(table.columns))
      line += barred(percent(table.tbl[i][k], table.tbl[kSumIndex][k]), kPercent);
    lines.push_back(line);
  }
  lines.push_back(rule);
  Text sums = u"Ｎ   |";
  for (const int k : categories(table.columns)) sums += barred(decimal(table.tbl[kSumIndex][k]), kPercent);
  lines.push_back(sums);
}

constexpr TextView kExample[] = {u"集計表各ｾﾙ頻度 VS.その他ｶﾃｺﾞﾘ計2×2分割表(例)によるｶｲ自乗値と連関値",
                                 u"                            (頻度５以下の場合はｲｪﾂの修正値)",
                                 u"例      | ｶﾃｺﾞﾘH| H以外|",
                                 u" -----------------------",
                                 u"  ｶﾃｺﾞﾘv|     65|   530|",
                                 u" -----------------------",
                                 u"　 V以外|  　120|   420|",
                                 u" ------------------------"};

// As many decimals as leave room for the mark in front.
Text chiText(float chi) {
  for (const TextView pattern : {u"#.00", u"#.0"}) {
    Text text = format(chi, pattern);
    if (text.size() < kFourfold) return text;
  }
  return format(chi, u"#");
}

void appendCellTests(const CrossTable& table, std::vector<Text>& lines) {
  const Text rule = repeated(u"------+", static_cast<std::size_t>(table.columns) + 1);
  Text heading = u"      |";
  for (const int j : categories(table.columns)) heading += barred(decimal(j), kFourfold);
  lines.insert(lines.end(), std::begin(kExample), std::end(kExample));
  lines.push_back(heading);
  for (int i = 1; i <= table.rows; ++i) {
    Text chi = rightAligned(decimal(i), 2) + u"  X2|", phi = u"   Phi|", p = u"     p|";
    for (const int j : categories(table.columns)) {
      const numbers::FourfoldTest test = cellTest(table, i, j);
      chi += barred((test.few ? u"     *" : u"") + chiText(test.chi), kFourfold);
      phi += barred(format(test.phi, u"#.000"), kFourfold);
      p += barred(format(test.p, u"#.000"), kFourfold);
    }
    lines.insert(lines.end(), {rule, chi, phi, p});
  }
  lines.push_back(rule);
}

}  // namespace

Text crossHeading(int item1, TextView name1, int item2, TextView name2) {
  const auto part = [](int item, TextView name) { return decimal(item) + u":" + left(name, kNameLength); };
  return u"■" + part(item1, name1) + u"×" + part(item2, name2);
}

Text crossResult(const CrossTest& test) {
  switch (test.refusal) {
    case CrossTest::Refusal::tooLarge:
      return u"Data Aray too Large.Chi test Impossible";
    case CrossTest::Refusal::noTotal:
      return u"total nr=0.Chi test Impossible";
    case CrossTest::Refusal::emptyCell:
      return u"total logical value=0.Chi test Impossible";
    case CrossTest::Refusal::none:
      break;
  }
  if (test.df <= 0) return {};
  return u"---Chi-Square=" + str(test.chi) + u"---Df=" + str(test.df) + u"---Phi=" + str(test.phi) + u"---P=" +
         str(test.p);
}

std::vector<Text> crossLines(const CrossTable& table, const CrossTest& test) {
  std::vector<Text> lines;
  if (const Text result = crossResult(test); !result.empty()) lines.push_back(result);
  appendCounts(table, lines);
  appendRowPercents(table, lines);
  appendColumnPercents(table, lines);
  if (test.refusal == CrossTest::Refusal::none && test.df > 0) appendCellTests(table, lines);
  return lines;
}

}  // namespace zelko
