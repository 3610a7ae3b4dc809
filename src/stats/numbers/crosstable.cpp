#include "stats/numbers/crosstable.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "platform/fault.h"
#include "stats/numbers/exact.h"
#include "stats/numbers/limits.h"

namespace zelko::numbers {

namespace {

constexpr const char16_t* kName = u"クロス集計";
constexpr int kMostColumns = 5, kMostRows = 16;

int category(double value) {
  if (value >= kLastCategory) return kLastCategory;
  const int whole = whole32(value, kName);
  if (whole < 0) stop(kName, std::u16string(u"カテゴリーが負の数です。") + kSubscript);
  return whole;
}

void add(std::int16_t& cell, int count) {
  if (cell > std::numeric_limits<std::int16_t>::max() - count) stop(kName, kOverflow);
  cell = static_cast<std::int16_t>(cell + count);
}

void sumUp(CrossTable& table) {
  auto& tbl = table.tbl;
  for (int i = 0; i <= kLastCategory; ++i) {
    for (int j = 1; j <= kLastCategory; ++j) {
      add(tbl[i][kSumIndex], tbl[i][j]);
      add(tbl[kSumIndex][i], tbl[j][i]);
    }
  }
  for (int i = 1; i <= kLastCategory; ++i) {
    add(tbl[kSumIndex][kSumIndex], tbl[i][kSumIndex]);
    if (tbl[i][kSumIndex] > 0) table.rows = i;
    if (tbl[kSumIndex][i] > 0) table.columns = i;
  }
}

float expected(const CrossTable& table, int row, int column) {
  const double rowSum = table.tbl[row][kSumIndex], columnSum = table.tbl[kSumIndex][column];
  return static_cast<float>(rowSum * columnSum / table.total());
}

CrossTest::Refusal refusalOf(const CrossTable& table) {
  if (table.columns > kMostColumns || table.rows > kMostRows) return CrossTest::Refusal::tooLarge;
  if (table.total() == 0) return CrossTest::Refusal::noTotal;
  for (int i = 1; i <= table.rows; ++i) {
    const auto row = table.tbl[i].begin();
    if (std::any_of(row + 1, row + 1 + table.columns, [](int n) { return n == 0; }))
      return CrossTest::Refusal::emptyCell;
  }
  return CrossTest::Refusal::none;
}

}  // namespace

CrossTable crossTable(std::span<const double> item1, std::span<const double> item2) {
  CrossTable table;
  for (std::size_t i = 0; i < item1.size(); ++i) add(table.tbl[category(item2[i])][category(item1[i])], 1);
  sumUp(table);
  return table;
}

CrossTest crossTest(const CrossTable& table) {
  CrossTest test;
  test.refusal = refusalOf(table);
  if (test.refusal != CrossTest::Refusal::none) return test;
  test.df = (table.rows - 1) * (table.columns - 1);
  for (int i = 1; i <= table.rows; ++i) {
    for (int j = 1; j <= table.columns; ++j) {
      const float E = expected(table, i, j);
      const double gap = static_cast<float>(table.tbl[i][j]) - E;
      test.chi = static_cast<float>(test.chi + gap * gap / E);
    }
  }
  if (test.df <= 0) return test;
  test.phi = std::sqrt(test.chi / (std::sqrt(test.df) * table.total()));
  test.p = chiP(test.chi, test.df);
  test.exactP = chiExact(test.chi, test.df);
  return test;
}

FourfoldTest cellTest(const CrossTable& table, int row, int column) {
  const int a = table.tbl[row][column];
  const int b = table.tbl[kSumIndex][column] - a;
  const int c = table.tbl[row][kSumIndex] - a;
  return fourfoldTest({a, b, c, table.total() - a - b - c}, Yates::never);
}

}  // namespace zelko::numbers
