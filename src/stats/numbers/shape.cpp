#include "stats/numbers/shape.h"

#include <algorithm>
#include <cmath>

#include "stats/numbers/moments.h"

namespace zelko::numbers {

namespace {

// A class is a peak where the counts fall below it by more than chance on both sides before they rise above it.
bool fallsAway(std::span<const float> counts, int from, int step) {
  const float height = counts[static_cast<std::size_t>(from)];
  for (int k = from + step; k >= 0 && k < static_cast<int>(counts.size()); k += step) {
    const float other = counts[static_cast<std::size_t>(k)];
    if (other > height) return false;
    if (height - other > std::sqrt(height)) return true;
  }
  return true;
}

std::vector<int> peaksOf(std::span<const float> counts) {
  std::vector<int> peaks;
  const int classes = static_cast<int>(counts.size());
  for (int k = 0; k < classes; ++k) {
    const float height = counts[static_cast<std::size_t>(k)];
    if (height <= 0 || (k > 0 && counts[static_cast<std::size_t>(k - 1)] == height)) continue;
    int end = k;
    while (end + 1 < classes && counts[static_cast<std::size_t>(end + 1)] == height) ++end;
    if (!fallsAway(counts, k, -1) || !fallsAway(counts, end, 1)) continue;
    // Of two equal tops without a valley between them the first stands for both.
    const bool sharesTop =
        !peaks.empty() && counts[static_cast<std::size_t>(peaks.back() - 1)] == height &&
        *std::min_element(counts.begin() + peaks.back(), counts.begin() + k) >= height - std::sqrt(height);
    if (!sharesTop) peaks.push_back((k + end) / 2 + 1);
  }
  return peaks;
}

double quantile(std::span<const double> sorted, double p) {
  const double place = (static_cast<double>(sorted.size()) - 1) * p;
  const auto below = static_cast<std::size_t>(place);
  if (below + 1 >= sorted.size()) return sorted.back();
  return sorted[below] + (place - std::floor(place)) * (sorted[below + 1] - sorted[below]);
}

}  // namespace

Shape shapeOf(std::span<const double> values, std::span<const float> counts) {
  Shape shape;
  shape.peaks = peaksOf(counts);
  if (values.empty()) return shape;

  std::vector<double> sorted(values.begin(), values.end());
  std::sort(sorted.begin(), sorted.end());
  shape.lowerQuartile = quantile(sorted, 0.25);
  shape.median = quantile(sorted, 0.5);
  shape.upperQuartile = quantile(sorted, 0.75);

  const Spread spread = spreadOf(values);
  if (spread.squares <= 0) return shape;
  long double cubes = 0;
  for (const double x : values) cubes += std::pow(((x - spread.origin) - spread.shift) / spread.sd(), 3);
  shape.skew = static_cast<double>(cubes / spread.n);
  return shape;
}

}  // namespace zelko::numbers
