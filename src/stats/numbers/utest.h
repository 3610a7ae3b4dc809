// Two groups compared: the U test of Mann and Whitney, and random reassignment of their values.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "stats/numbers/random.h"

namespace zelko::numbers {

inline constexpr std::size_t kUGroupLimit = 500;
inline constexpr std::size_t kReassignmentLimit = 1000;

struct UTest {
  std::vector<double> ranks1, ranks2;
  double r1 = 0, r2 = 0;  // sums of ranks
  double u = 0, ubar = 0, sigma = 0, cr = 0;
  double bound = 0;  // one-sided p is below it; 0: not significant
};

// n1 n2 + n1 (n1 + 1) / 2 - R1, without a correction for ties. No group empty, at most 500 in each (a subscript fault).
UTest uTest(std::span<const double> group1, std::span<const double> group2);

// How often chance makes the sum of group 1 larger or smaller.
class Reassignment {
 public:
  // At most 1000 values in all: a subscript fault.
  Reassignment(std::span<const double> group1, std::span<const double> group2);

  // Shuffles all values (Fisher and Yates, from the top) and compares the sum of the first n1 with the observed one.
  // Sums that differ by no more than their rounding are equal.
  void once(const RandomBits& bits);

  double observed() const { return observed_; }  // the sum of group 1
  int done() const { return done_; }
  int higher() const { return higher_; }
  int lower() const { return lower_; }

 private:
  std::vector<double> values_;  // about an origin
  std::size_t n1_;
  double observed_, shiftedSum_ = 0, tolerance_ = 0;
  int done_ = 0, higher_ = 0, lower_ = 0;
};

}  // namespace zelko::numbers
