#include "stats/numbers/contingency.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

#include "platform/fault.h"
#include "stats/numbers/exact.h"
#include "stats/numbers/limits.h"

namespace zelko::numbers {

namespace {

std::optional<double> chiPWithinRange(double chi, int df) {
  try {
    return chiP(chi, df);
  } catch (const Fault&) {
    return std::nullopt;
  }
}

}  // namespace

CountSums cellSum(const Counts& counts) {
  CountSums sums{std::vector<double>(static_cast<std::size_t>(counts.rows)),
                 std::vector<double>(static_cast<std::size_t>(counts.columns)), 0};
  auto cell = counts.cells.begin();
  for (double& row : sums.rows) {
    for (double& column : sums.columns) {
      row += *cell;
      column += *cell++;
    }
    sums.total += row;
  }
  return sums;
}

ContingencyTest nmchiphi(const Counts& counts) {
  const CountSums sums = cellSum(counts);
  const auto isPositive = [](double sum) { return sum > 0; };
  ContingencyTest test;
  test.valid = counts.rows > 1 && counts.columns > 1 && std::all_of(sums.rows.begin(), sums.rows.end(), isPositive) &&
               std::all_of(sums.columns.begin(), sums.columns.end(), isPositive);
  if (!test.valid) return test;
  auto cell = counts.cells.begin();
  for (const double row : sums.rows) {
    for (const double column : sums.columns) {
      const double E = row * column / sums.total, gap = *cell++ - E;
      test.chi += gap * gap / E;
    }
  }
  const auto [fewer, more] = std::minmax(counts.rows, counts.columns);
  test.df = (counts.rows - 1) * (counts.columns - 1);
  test.p = chiPWithinRange(test.chi, test.df);
  test.exactP = chiExact(test.chi, test.df);
  test.c1 = std::sqrt(test.chi / (sums.total * (more - 1)));
  test.c2 = std::sqrt(test.chi / (sums.total * (fewer - 1)));
  test.c3 = std::sqrt(test.chi / (sums.total * std::sqrt(test.df)));
  return test;
}

ContingencyTrials::ContingencyTrials(const Counts& counts, double observed)
    : thrown_(counts), total_(std::accumulate(counts.cells.begin(), counts.cells.end(), 0L)), observed_(observed) {
  const int most = std::max(counts.rows, counts.columns);
  requireAtMost(static_cast<std::size_t>(most), kMostCategories, u"n×mカイ二乗検定", u"カテゴリ数");
}

bool ContingencyTrials::once(const RandomBits& bits) {
  std::vector<int>& cells = thrown_.cells;
  std::fill(cells.begin(), cells.end(), 0);
  const int places = static_cast<int>(cells.size());
  for (long i = 0; i < total_; ++i) ++cells[fnr(places, bits) - 1];

  std::array<double, kMostCategories> rowSums{}, columnSums{};
  for (int i = 0; i < places; ++i) {
    rowSums[i / thrown_.columns] += cells[i];
    columnSums[i % thrown_.columns] += cells[i];
  }
  double sum = 0;
  for (int i = 0; i < places; ++i) {
    const double margins = rowSums[i / thrown_.columns] * columnSums[i % thrown_.columns];
    if (margins == 0) return false;
    sum += static_cast<double>(cells[i]) * cells[i] / margins;
  }
  ++done_;
  if (static_cast<double>(total_) * std::abs(sum - 1) > observed_) ++hits_;
  return true;
}

}  // namespace zelko::numbers
