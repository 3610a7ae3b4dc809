#include "stats/numbers/limits.h"

#include <cmath>
#include <limits>
#include <string>

#include "platform/fault.h"

namespace zelko::numbers {

namespace {

template <class Whole>
Whole whole(double x, std::u16string_view analysis) {
  const double rounded = std::nearbyint(x);
  if (!(rounded >= std::numeric_limits<Whole>::min() && rounded <= std::numeric_limits<Whole>::max())) {
    stop(analysis, kOverflow);
  }
  return static_cast<Whole>(rounded);
}

}  // namespace

void stop(std::u16string_view analysis, std::u16string_view what) {
  throw Fault{std::u16string(analysis) + u"：" + std::u16string(what)};
}

void requireAtMost(std::size_t count, std::size_t limit, std::u16string_view analysis, std::u16string_view what) {
  if (count <= limit) return;
  const std::string digits = std::to_string(limit);
  stop(analysis,
       std::u16string(what) + u"は" + std::u16string(digits.begin(), digits.end()) + u"までです。" + kSubscript);
}

double divided(double a, double b, std::u16string_view analysis) {
  if (!(b < 0 || b > 0)) stop(analysis, kDivisionByZero);
  return a / b;
}

double root(double x, std::u16string_view analysis) {
  if (!(x >= 0)) stop(analysis, u"負の数の平方根は求められません。");
  return std::sqrt(x);
}

float single(double x, std::u16string_view analysis) {
  if (!(std::abs(x) <= std::numeric_limits<float>::max())) stop(analysis, kOverflow);
  return static_cast<float>(x);
}

std::int16_t whole16(double x, std::u16string_view analysis) { return whole<std::int16_t>(x, analysis); }

std::int32_t whole32(double x, std::u16string_view analysis) { return whole<std::int32_t>(x, analysis); }

}  // namespace zelko::numbers
