// Spearman's rank coefficient with its corrections for ties (Siegel, Nonparametric Statistics, 1956, formula 9.7).
#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace zelko::numbers {

inline constexpr std::size_t kSpearmanLimit = 1001;

struct Spearman {
  std::vector<int> omitted;  // positions from 1 of the pairs in which a value is 0
  int n = 0;                 // pairs left
  bool tooFew = true;        // n <= 1: nothing below is computed
  double d2 = 0, tx = 0, ty = 0;
  double consistency = 0;  // corrected for ties: Pearson's coefficient of the ranks
  double correctness = 0;  // 1 - 6 (D2 + Tx + Ty) / (n^3 - n)
  double cr = 0;           // the normal approximation's ratio
};

// Values are compared as singles. More than 1001 records: a subscript fault. All ranks tied on a side: a division
// fault.
Spearman spearman(std::span<const double> x, std::span<const double> y);

}  // namespace zelko::numbers
