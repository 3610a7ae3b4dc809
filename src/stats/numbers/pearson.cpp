#include "stats/numbers/pearson.h"

#include <cmath>
#include <vector>

#include "platform/fault.h"
#include "stats/numbers/limits.h"

namespace zelko::numbers {

namespace {

constexpr const char16_t* kName = u"ﾋﾟｱｿﾝ積率相関係数";
constexpr double kLargest = 2147483647;

// Half to even, for values within 32 bits.
double rounded(double x) {
  constexpr double kOnes = 6755399441055744;  // from here to its double a double's last digit is 1
  return (x + kOnes) - kOnes;
}

double wholeNumber(double x) {
  const double whole = rounded(x);
  if (!(whole >= -kLargest - 1 && whole <= kLargest)) stop(kName, kOverflow);
  return whole;
}

struct Column {
  std::vector<double> raw;    // as the cells have it
  std::vector<double> whole;  // what the sums are made of

  explicit Column(std::size_t n) : raw(n), whole(n) {}
  void keep(std::size_t n) {
    raw.resize(n);
    whole.resize(n);
  }
};

// The pairs of which both whole numbers are not 0.
void pairUp(std::span<const double> x, std::span<const double> y, Column& px, Column& py) {
  std::size_t n = 0;
  for (std::size_t i = 0; i < x.size(); ++i) {
    px.raw[n] = x[i];
    py.raw[n] = y[i];
    px.whole[n] = wholeNumber(x[i]);
    py.whole[n] = wholeNumber(y[i]);
    if (px.whole[n] != 0 && py.whole[n] != 0) ++n;
  }
  px.keep(n);
  py.keep(n);
}

// Deviations from the mean, by way of the first value, so that large values keep their digits.
std::vector<double> deviations(std::span<const double> values) {
  std::vector<double> result(values.size());
  double sum = 0;
  for (std::size_t i = 0; i < values.size(); ++i) sum += result[i] = values[i] - values[0];
  const double mean = sum / static_cast<double>(values.size());
  for (double& x : result) x -= mean;
  return result;
}

double dot(std::span<const double> x, std::span<const double> y) {
  double sum = 0;
  for (std::size_t i = 0; i < x.size(); ++i) sum += x[i] * y[i];
  return sum;
}

// Puts (x - mean) / SD, rounded, in place of the whole numbers where asked. False without spread.
bool standardise(std::vector<double>& whole, bool wanted) {
  const std::vector<double> gaps = deviations(whole);
  const double sd = std::sqrt(dot(gaps, gaps) / static_cast<double>(whole.size()));
  if (!(sd > 0)) return false;
  for (std::size_t i = 0; wanted && i < whole.size(); ++i) whole[i] = rounded(gaps[i] / sd);
  return true;
}

// The sum of products, which a double holds exactly; each must fit 32 bits.
double sumOfProducts(std::span<const double> x, std::span<const double> y) {
  double sum = 0;
  for (std::size_t i = 0; i < x.size(); ++i) {
    const double product = x[i] * y[i];
    if (std::abs(product) > kLargest) stop(kName, kOverflow);
    sum += product;
  }
  return sum;
}

double sumOf(std::span<const double> x) {
  double sum = 0;
  for (const double value : x) sum += value;
  return sum;
}

}  // namespace

Pearson pearson(std::span<const double> x, std::span<const double> y, bool standardised) {
  requireAtMost(x.size(), kPearsonLimit, kName, u"記録");
  Pearson result;
  Column px(x.size()), py(y.size());
  pairUp(x, y, px, py);
  result.n = static_cast<int>(px.raw.size());
  if (result.n <= 1) return result;
  const bool hasSpreadX = standardise(px.whole, standardised), hasSpreadY = standardise(py.whole, standardised);
  if (!hasSpreadX || !hasSpreadY) return result;

  const double n = result.n, sx = sumOf(px.whole), sy = sumOf(py.whole);
  const double sxx = sumOfProducts(px.whole, px.whole), syy = sumOfProducts(py.whole, py.whole);
  const double sxy = sumOfProducts(px.whole, py.whole);
  if (sxx == 0 || syy == 0) return result;
  result.refused = false;
  result.r = divided(n * sxy - sx * sy, std::sqrt(n * syy - sy * sy) * std::sqrt(n * sxx - sx * sx), kName);

  const std::vector<double> dx = deviations(px.raw), dy = deviations(py.raw);
  const double spreads = dot(dx, dx) * dot(dy, dy);
  if (spreads > 0) result.exact = dot(dx, dy) / std::sqrt(spreads);
  return result;
}

}  // namespace zelko::numbers
