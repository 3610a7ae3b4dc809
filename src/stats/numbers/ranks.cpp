#include "stats/numbers/ranks.h"

#include <algorithm>
#include <numeric>

namespace zelko::numbers {

double Ranks::tieCorrection() const {
  double sum = 0;
  for (const double t : ties) sum += t * t * t - t;
  return sum / 12;
}

Ranks ordering(std::span<const double> values) {
  std::vector<std::size_t> order(values.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::sort(order.begin(), order.end(), [&](std::size_t i, std::size_t j) { return values[i] < values[j]; });

  Ranks result;
  result.rank.resize(values.size());
  for (std::size_t first = 0; first < order.size();) {
    std::size_t end = first + 1;
    while (end < order.size() && values[order[end]] == values[order[first]]) ++end;
    const double shared = static_cast<double>(first + 1 + end) / 2;
    for (std::size_t k = first; k < end; ++k) result.rank[order[k]] = shared;
    if (end - first > 1) result.ties.push_back(static_cast<int>(end - first));
    first = end;
  }
  return result;
}

}  // namespace zelko::numbers
