// Ranks with shared places.
#pragma once

#include <span>
#include <vector>

namespace zelko::numbers {

struct Ranks {
  std::vector<double> rank;  // in the order of the values, from 1; equal values share the mean of their places
  std::vector<int> ties;     // sizes of the groups of equal values, 2 and more

  // Sum of (t^3 - t) / 12 over the tied groups.
  double tieCorrection() const;
};

Ranks ordering(std::span<const double> values);

}  // namespace zelko::numbers
