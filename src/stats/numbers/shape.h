// The shape of a distribution, for a sentence: peaks, skew, where the middle half lies.
#pragma once

#include <span>
#include <vector>

namespace zelko::numbers {

struct Shape {
  std::vector<int> peaks;  // classes from 1, left to right; of a plateau the middle one (the left of two)
  double skew = 0;         // third standardised moment, divisor n; 0 where all values are equal
  double lowerQuartile = 0, median = 0, upperQuartile = 0;
};

// counts[k - 1] is the count of class k; a peak is higher than its neighbours by more than the square root of its
// count, so that chance ripples are none. Quartiles by linear interpolation at (n - 1) * p.
Shape shapeOf(std::span<const double> values, std::span<const float> counts);

}  // namespace zelko::numbers
