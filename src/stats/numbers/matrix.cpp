#include "stats/numbers/matrix.h"

#include <cmath>
#include <limits>

#include "platform/fault.h"
#include "stats/numbers/limits.h"

namespace zelko::numbers {

Matrix inv(Matrix m, std::u16string_view analysis) {
  const int n = m.rows;
  std::vector<double> smallest(static_cast<std::size_t>(n));
  for (int i = 0; i < n; ++i) smallest[i] = 8 * n * std::numeric_limits<double>::epsilon() * std::abs(m(i, i));
  for (int k = 0; k < n; ++k) {
    const double pivot = m(k, k);
    if (!(std::abs(pivot) > smallest[k])) stop(analysis, std::u16string(u"行列が特異です。") + kDivisionByZero);
    m(k, k) = 1;
    for (int j = 0; j < n; ++j) m(k, j) /= pivot;
    for (int i = 0; i < n; ++i) {
      if (i == k) continue;
      const double factor = m(i, k);
      m(i, k) = 0;
      for (int j = 0; j < n; ++j) m(i, j) -= factor * m(k, j);
    }
  }
  return m;
}

}  // namespace zelko::numbers
