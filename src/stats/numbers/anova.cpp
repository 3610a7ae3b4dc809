#include "stats/numbers/anova.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "stats/numbers/limits.h"
#include "stats/numbers/moments.h"

namespace zelko::numbers {

Centred centred(std::span<const double> values) {
  const Spread spread = spreadOf(values);
  Centred result;
  result.total = spread.squares;
  if (values.empty()) return result;
  for (const double x : values) result.values.push_back((x - spread.origin) - spread.shift);
  const double lastDigit =
      4 * std::numeric_limits<double>::epsilon() * std::max(std::abs(spread.min), std::abs(spread.max));
  result.resolution = spread.n * lastDigit * lastDigit;
  return result;
}

AnovaRow anovaRow(double ss, int df, double resolution) {
  AnovaRow row;
  row.present = true;
  row.ss = std::abs(ss) <= resolution ? 0 : ss;
  row.df = df;
  row.ms = df > 0 ? row.ss / df : 0;
  return row;
}

void testAgainst(AnovaRow& effect, const AnovaRow& error) {
  effect.denominator = error.ms;
  effect.denominatorDf = error.df;
  effect.hasF = error.ms > 0 && effect.df > 0 ? AnovaRow::F::tested : AnovaRow::F::impossible;
  effect.f = effect.hasF == AnovaRow::F::tested ? effect.ms / error.ms : 0;
}

OneWay oneWay(std::span<const std::vector<double>> columns) {
  std::vector<double> all;
  for (const std::vector<double>& column : columns) {
    requireAtMost(column.size(), kAnovaRowLimit, u"1元配置分散分析", u"データ数(行数)");
    all.insert(all.end(), column.begin(), column.end());
  }
  const Centred values = centred(all);
  long double between = 0, within = 0, grand = 0;
  auto next = values.values.begin();
  for (const std::vector<double>& column : columns) {
    long double sum = 0;
    for (std::size_t i = 0; i < column.size(); ++i) sum += *next++;
    grand += sum;
    if (!column.empty()) between += sum * sum / column.size();
    within += spreadOf(column).squares;
  }
  const int n = static_cast<int>(all.size()), k = static_cast<int>(columns.size());
  if (n > 0) between -= grand * grand / n;
  OneWay result;
  result.between = anovaRow(static_cast<double>(between), k - 1, values.resolution);
  result.within = anovaRow(static_cast<double>(within), n - k, values.resolution);
  result.total = anovaRow(values.total, n - 1, values.resolution);
  testAgainst(result.between, result.within);
  return result;
}

}  // namespace zelko::numbers
