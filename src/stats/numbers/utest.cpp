#include "stats/numbers/utest.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

#include "stats/numbers/limits.h"
#include "stats/numbers/ranks.h"

namespace zelko::numbers {

namespace {

constexpr const char16_t* kName = u"U検定";

struct Bound {
  double cr, p;
};
constexpr Bound kBounds[] = {{3.27, 0.0005}, {3.1, 0.001}, {2.57, 0.005}, {2.33, 0.01}, {1.65, 0.05}, {1.29, 0.1}};

double boundOf(double cr) {
  for (const Bound& bound : kBounds) {
    if (cr > bound.cr) return bound.p;
  }
  return 0;
}

std::vector<double> pooled(std::span<const double> group1, std::span<const double> group2) {
  std::vector<double> all(group1.begin(), group1.end());
  all.insert(all.end(), group2.begin(), group2.end());
  return all;
}

}  // namespace

UTest uTest(std::span<const double> group1, std::span<const double> group2) {
  requireAtMost(std::max(group1.size(), group2.size()), kUGroupLimit, kName, u"データ数");
  const Ranks ranks = ordering(pooled(group1, group2));
  const auto middle = ranks.rank.begin() + static_cast<std::ptrdiff_t>(group1.size());
  UTest test;
  test.ranks1.assign(ranks.rank.begin(), middle);
  test.ranks2.assign(middle, ranks.rank.end());
  test.r1 = std::accumulate(test.ranks1.begin(), test.ranks1.end(), 0.0);
  test.r2 = std::accumulate(test.ranks2.begin(), test.ranks2.end(), 0.0);
  const auto n1 = static_cast<double>(group1.size()), n2 = static_cast<double>(group2.size());
  test.u = n1 * n2 + n1 * (n1 + 1) / 2 - test.r1;
  test.ubar = n1 * n2 / 2;
  test.sigma = std::sqrt(n1 * n2 * (n1 + n2 + 1) / 12);
  test.cr = divided(std::abs(test.u - test.ubar), test.sigma, kName);
  test.bound = boundOf(test.cr);
  return test;
}

Reassignment::Reassignment(std::span<const double> group1, std::span<const double> group2)
    : values_(pooled(group1, group2)),
      n1_(group1.size()),
      observed_(std::accumulate(group1.begin(), group1.end(), 0.0)) {
  requireAtMost(values_.size(), kReassignmentLimit, u"組換え法", u"データ個数の合計");
  const double origin = values_.empty() ? 0 : values_[0];
  double largest = 0, total = 0;
  for (double& x : values_) {
    largest = std::max(largest, std::abs(x));
    total += std::abs(x -= origin);
  }
  for (std::size_t i = 0; i < n1_; ++i) shiftedSum_ += values_[i];
  const double lastDigits = 4 * std::numeric_limits<double>::epsilon() * largest * std::sqrt(static_cast<double>(n1_));
  tolerance_ = std::max(1e-13 * total, lastDigits);
}

void Reassignment::once(const RandomBits& bits) {
  for (int k = static_cast<int>(values_.size()); k >= 1; --k) std::swap(values_[fnr(k, bits) - 1], values_[k - 1]);
  double sum = 0;
  for (std::size_t i = 0; i < n1_; ++i) sum += values_[i];
  ++done_;
  if (sum > shiftedSum_ + tolerance_) ++higher_;
  if (sum < shiftedSum_ - tolerance_) ++lower_;
}

}  // namespace zelko::numbers
