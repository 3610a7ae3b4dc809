#include "stats/numbers/ttest.h"

#include <algorithm>
#include <cmath>

#include "stats/numbers/exact.h"

namespace zelko::numbers {

namespace {

double unbiasedVariance(const Group& group) { return group.n * group.sd * group.sd / (group.n - 1); }

void exactRatio(TTest& test, const Group& group1, const Group& group2) {
  const bool isFirstLarger = unbiasedVariance(group1) >= unbiasedVariance(group2);
  const Group &larger = isFirstLarger ? group1 : group2, &smaller = isFirstLarger ? group2 : group1;
  test.hasExactF = unbiasedVariance(smaller) > 0;
  if (!test.hasExactF) return;
  test.exactF = unbiasedVariance(larger) / unbiasedVariance(smaller);
  test.exactNumeratorDf = larger.n - 1;
  test.exactDenominatorDf = smaller.n - 1;
  test.exactFP = prbF(test.exactF, test.exactNumeratorDf, test.exactDenominatorDf);
}

}  // namespace

TTest tTest(const Group& group1, const Group& group2) {
  constexpr double kLeastDivisor = 0.00001;
  TTest test;
  test.computed = group1.n > 1 && group2.n > 1;
  if (!test.computed) return test;
  test.df = group1.n + group2.n - 2;
  const double q = (group1.n * group1.sd * group1.sd + group2.n * group2.sd * group2.sd) / test.df;
  test.hasT = q > 0;
  if (test.hasT) {
    test.t = (group1.mean - group2.mean) / std::sqrt((1.0 / group1.n + 1.0 / group2.n) * q);
    test.p = prbT(test.t, test.df);
    test.exactP = tExact(test.t, test.df);
  }
  const auto [smaller, larger] = std::minmax(group1.sd, group2.sd);
  test.F = larger / (smaller == 0 ? kLeastDivisor : smaller);
  test.numeratorDf = group2.n - 1;
  test.denominatorDf = group1.n - 1;
  exactRatio(test, group1, group2);
  return test;
}

}  // namespace zelko::numbers
