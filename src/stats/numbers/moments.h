// Mean and spread of a column. Sums are taken about the first value as origin and in two passes, so that large means
// with a small spread keep their digits.
#pragma once

#include <span>

namespace zelko::numbers {

struct Spread {
  int n = 0;
  double sum = 0, mean = 0;
  double origin = 0, shift = 0;  // the first value, and the mean less it: more digits than the mean has
  double squares = 0;            // of the deviations from the mean
  double min = 0, max = 0;

  double sd() const;        // divisor n; 0 where n is 0
  double u() const;         // divisor n - 1; 0 where n is 1 or less
  double variance() const;  // u squared
};

Spread spreadOf(std::span<const double> values);

}  // namespace zelko::numbers
