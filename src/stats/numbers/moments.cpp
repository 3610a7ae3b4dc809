#include "stats/numbers/moments.h"

#include <algorithm>
#include <cmath>

namespace zelko::numbers {

double Spread::sd() const { return n > 0 ? std::sqrt(squares / n) : 0; }

double Spread::u() const { return std::sqrt(variance()); }

double Spread::variance() const { return n > 1 ? squares / (n - 1) : 0; }

Spread spreadOf(std::span<const double> values) {
  Spread spread;
  spread.n = static_cast<int>(values.size());
  if (values.empty()) return spread;
  const double origin = spread.origin = values[0];
  long double sum = 0;
  spread.min = spread.max = origin;
  for (const double x : values) {
    sum += x - origin;
    spread.min = std::min(spread.min, x);
    spread.max = std::max(spread.max, x);
  }
  const double shift = spread.shift = static_cast<double>(sum / spread.n);
  long double squares = 0, left = 0;
  for (const double x : values) {
    const long double deviation = (x - origin) - shift;
    squares += deviation * deviation;
    left += deviation;
  }
  spread.sum = static_cast<double>(static_cast<long double>(origin) * spread.n + sum);
  spread.mean = static_cast<double>(static_cast<long double>(origin) + sum / spread.n);
  spread.squares = static_cast<double>(squares - left * left / spread.n);
  return spread;
}

}  // namespace zelko::numbers
