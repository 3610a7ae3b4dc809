#include "stats/numbers/anova2.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "platform/fault.h"
#include "stats/numbers/cells.h"
#include "stats/numbers/limits.h"

namespace zelko::numbers {

namespace {

struct Total {
  long double sum = 0;
  int n = 0;
  void add(double x) {
    sum += x;
    ++n;
  }
  double mean() const { return n > 0 ? static_cast<double>(sum / n) : 0; }
  double squares() const { return n > 0 ? static_cast<double>(sum * sum / n) : 0; }
};

double squaresOf(const std::vector<Total>& totals) {
  double sum = 0;
  for (const Total& total : totals) sum += total.squares();
  return sum;
}

// Rounding left of an interaction that the effects explain wholly.
double cleared(double ss, double effects) { return std::abs(ss) <= 1e-14 * effects ? 0 : ss; }

}  // namespace

TwoWay twoWay(const Matrix& values) {
  const Centred about = centred(values.cells);
  std::vector<Total> a(static_cast<std::size_t>(values.columns)), b(static_cast<std::size_t>(values.rows));
  Total grand;
  for (std::size_t i = 0; i < about.values.size(); ++i) {
    a[i % a.size()].add(about.values[i]);
    b[i / a.size()].add(about.values[i]);
    grand.add(about.values[i]);
  }
  double residual = 0;
  for (std::size_t i = 0; i < about.values.size(); ++i) {
    const double left = about.values[i] - a[i % a.size()].mean() - b[i / a.size()].mean() + grand.mean();
    residual += left * left;
  }
  const int dfA = values.columns - 1, dfB = values.rows - 1;
  TwoWay result;
  result.a = anovaRow(squaresOf(a) - grand.squares(), dfA, about.resolution);
  result.b = anovaRow(squaresOf(b) - grand.squares(), dfB, about.resolution);
  result.error = anovaRow(residual, dfA * dfB, about.resolution);
  result.total = anovaRow(about.total, grand.n - 1, about.resolution);
  testAgainst(result.a, result.error);
  testAgainst(result.b, result.error);
  return result;
}

TwoWay twoWayCells(std::span<const double> values, std::span<const int> a, std::span<const int> b) {
  const CellCounts counts = cellCounts(a, b);
  if (counts.n.empty() || firstCellBelow(counts, 1)) stop(u"2元配置分散分析", kSubscript);
  const Centred about = centred(values);
  std::vector<Total> ofA(static_cast<std::size_t>(counts.levels[0])), ofB(static_cast<std::size_t>(counts.levels[1]));
  std::vector<Total> cells(counts.n.size());
  Total grand;
  for (std::size_t i = 0; i < about.values.size(); ++i) {
    ofA[a[i] - 1].add(about.values[i]);
    ofB[b[i] - 1].add(about.values[i]);
    cells[counts.index(a[i], b[i])].add(about.values[i]);
    grand.add(about.values[i]);
  }
  double within = 0;
  for (std::size_t i = 0; i < about.values.size(); ++i) {
    within += std::pow(about.values[i] - cells[counts.index(a[i], b[i])].mean(), 2);
  }
  const double ssA = squaresOf(ofA) - grand.squares(), ssB = squaresOf(ofB) - grand.squares();
  const double ssCells = squaresOf(cells) - grand.squares();
  const int dfA = counts.levels[0] - 1, dfB = counts.levels[1] - 1;
  TwoWay result;
  result.a = anovaRow(ssA, dfA, about.resolution);
  result.b = anovaRow(ssB, dfB, about.resolution);
  result.ab = anovaRow(cleared(ssCells - ssA - ssB, ssA + ssB), dfA * dfB, about.resolution);
  result.error = anovaRow(within, grand.n - static_cast<int>(cells.size()), about.resolution);
  result.total = anovaRow(about.total, grand.n - 1, about.resolution);
  for (AnovaRow* effect : {&result.a, &result.b, &result.ab}) testAgainst(*effect, result.error);
  return result;
}

}  // namespace zelko::numbers
