// Basic statistics of several items over the same records: means, spreads, covariances, correlations.
#pragma once

#include <vector>

#include "stats/numbers/matrix.h"
#include "stats/numbers/moments.h"

namespace zelko::numbers {

struct Covariance {
  std::vector<Spread> items;
  Matrix covariance;      // divisor n - 1
  Matrix correlation;     // empty where constantItem is set
  int constantItem = -1;  // the first item (from 0) without spread: no correlations then
};

// data: a row a record, a column an item; two records and more, or every item counts as constant.
Covariance var(const Matrix& data);

}  // namespace zelko::numbers
