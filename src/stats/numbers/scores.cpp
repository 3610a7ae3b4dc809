#include "stats/numbers/scores.h"

#include <algorithm>
#include <cmath>

#include "stats/numbers/limits.h"

namespace zelko::numbers {

void ScoreStats::count(double score) {
  if (n_ == 0) origin_ = score;
  ++n_;
  shifted_ += score - origin_;
}

void ScoreStats::spread(double score) {
  const long double deviation = (score - origin_) - shifted_ / std::max(n_, 1);
  squares_ += deviation * deviation;
  min_ = spreadSeen_ ? std::min(min_, score) : score;
  max_ = spreadSeen_ ? std::max(max_, score) : score;
  spreadSeen_ = true;
}

double ScoreStats::sum() const { return static_cast<double>(static_cast<long double>(origin_) * n_ + shifted_); }

double ScoreStats::mean() const { return n_ > 0 ? static_cast<double>(origin_ + shifted_ / n_) : 0; }

double ScoreStats::sd() const { return n_ > 0 ? std::sqrt(static_cast<double>(squares_ / n_)) : 0; }

std::optional<double> ScoreStats::u() const {
  if (n_ < 2) return std::nullopt;
  return std::sqrt(static_cast<double>(squares_ / (n_ - 1)));
}

double zValue(double score, double mean, double sd) { return (score - mean) / sd; }

std::int16_t tValue(double score, double mean, double sd) {
  return whole16(std::floor(10 * (score - mean) / sd + 50), u"採点");
}

int fiveLevel(double z) {
  constexpr double kBoundaries[] = {-1.5, -0.5, 0.5, 1.5};
  return 1 + static_cast<int>(std::count_if(std::begin(kBoundaries), std::end(kBoundaries),
                                            [z](double boundary) { return z >= boundary; }));
}

void QuestionStats::add(bool right, double rest) {
  if (n_ == 0) origin_ = rest;
  ++n_;
  const double x = rest - origin_;
  sum_ += x;
  squares_ += static_cast<long double>(x) * x;
  if (!right) return;
  ++right_;
  sumOfRight_ += x;
}

std::optional<double> QuestionStats::discrimination() const {
  if (right_ == 0 || right_ == n_) return std::nullopt;
  const auto spreadOfRest = static_cast<double>(squares_ - sum_ * sum_ / n_);
  if (!(spreadOfRest > 0)) return std::nullopt;
  const double spreadOfRight = static_cast<double>(right_) * (n_ - right_) / n_;
  return static_cast<double>(sumOfRight_ - sum_ * right_ / n_) / std::sqrt(spreadOfRest * spreadOfRight);
}

}  // namespace zelko::numbers
