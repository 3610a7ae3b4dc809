#include "stats/numbers/spearman.h"

#include <cmath>

#include "stats/numbers/limits.h"
#include "stats/numbers/ranks.h"

namespace zelko::numbers {

namespace {
constexpr const char16_t* kName = u"ｽﾍﾟｱﾏﾝ順位相関";
}

Spearman spearman(std::span<const double> x, std::span<const double> y) {
  requireAtMost(x.size(), kSpearmanLimit, kName, u"記録");
  Spearman result;
  std::vector<double> left, right;
  for (std::size_t i = 0; i < x.size(); ++i) {
    const float sx = single(x[i], kName), sy = single(y[i], kName);
    if (sx == 0 || sy == 0) {
      result.omitted.push_back(static_cast<int>(i) + 1);
      continue;
    }
    left.push_back(sx);
    right.push_back(sy);
  }
  result.n = static_cast<int>(left.size());
  result.tooFew = result.n <= 1;
  if (result.tooFew) return result;

  const Ranks rx = ordering(left), ry = ordering(right);
  result.tx = rx.tieCorrection();
  result.ty = ry.tieCorrection();
  for (std::size_t i = 0; i < left.size(); ++i) result.d2 += std::pow(rx.rank[i] - ry.rank[i], 2);

  const double n = result.n, cubes = n * n * n - n, m = cubes / 6;
  const double spread = std::sqrt(m - 2 * result.ty) * std::sqrt(m - 2 * result.tx);
  result.consistency = divided(m - result.d2 - result.tx - result.ty, spread, kName);
  result.correctness = 1 - 6 * (result.d2 + result.tx + result.ty) / cubes;
  result.cr = (std::abs(result.d2 - m) - 1) / std::sqrt(m * m / (n - 1));
  return result;
}

}  // namespace zelko::numbers
