// Eigenvalues of a symmetric matrix by Jacobi's rotations, the largest entry first.
#pragma once

#include <vector>

#include "stats/numbers/matrix.h"

namespace zelko::numbers {

struct Eigen {
  std::vector<double> values;  // descending
  Matrix vectors;              // column k belongs to values[k]
};

// Ends when no entry beside the diagonal is above 0.00001.
Eigen eigen(Matrix symmetric);

}  // namespace zelko::numbers
