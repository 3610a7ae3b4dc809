#include "stats/numbers/fourfold.h"

#include <cmath>

#include "stats/numbers/exact.h"

namespace zelko::numbers {

namespace {

// n (difference)^2 over the product of the margins; a single.
float chiOf(double n, double difference, double margins) {
  return static_cast<float>(n * difference * difference / margins);
}

}  // namespace

FourfoldTest fourfoldTest(const Fourfold& table, Yates yates) {
  const double a = table.a, b = table.b, c = table.c, d = table.d, n = a + b + c + d;
  FourfoldTest test;
  if (a <= 0 || b <= 0 || c <= 0 || d <= 0) return test;
  test.empty = false;
  test.few = a <= 5 || b <= 5 || c <= 5 || d <= 5;
  const double cross = a * d - b * c, margins = (a + b) * (a + c) * (b + d) * (c + d);
  const bool isCorrected = test.few && yates == Yates::whereFew;
  test.chi = chiOf(n, isCorrected ? std::abs(cross) - n / 2 : cross, margins);
  test.phi = cross / std::sqrt(margins);
  test.p = chiP(test.chi, 1);
  test.exactP = chiExact(test.chi, 1);
  return test;
}

FourfoldTrials::FourfoldTrials(const Fourfold& table, float observed)
    : n_(table.a + table.b + table.c + table.d), observed_(observed) {}

bool FourfoldTrials::once(const RandomBits& bits) {
  int cells[4] = {};
  for (int i = 0; i < n_; ++i) ++cells[fnr(4, bits) - 1];
  const double a = cells[0], b = cells[1], c = cells[2], d = cells[3];
  const double margins = (a + b) * (a + c) * (b + d) * (c + d);
  if (margins == 0) return false;
  ++done_;
  if (chiOf(n_, a * d - b * c, margins) > observed_) ++hits_;
  return true;
}

}  // namespace zelko::numbers
