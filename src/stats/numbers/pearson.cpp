#include "stats/numbers/pearson.h"

#include <cmath>
#include <cstdint>
#include <vector>

#include "platform/fault.h"
#include "stats/numbers/limits.h"
#include "stats/numbers/moments.h"

namespace zelko::numbers {

namespace {

constexpr const char16_t* kName = u"ﾋﾟｱｿﾝ積率相関係数";

struct Column {
  std::vector<double> raw;    // as the cells have it
  std::vector<double> whole;  // what the sums are made of
};

double product(double a, double b) { return whole32(a * b, kName); }

// Both whole numbers not 0; how many pairs.
int pairUp(std::span<const double> x, std::span<const double> y, Column& px, Column& py) {
  for (Column* column : {&px, &py}) {
    column->raw.reserve(x.size());
    column->whole.reserve(x.size());
  }
  for (std::size_t i = 0; i < x.size(); ++i) {
    const double wx = whole32(x[i], kName), wy = whole32(y[i], kName);
    if (wx == 0 || wy == 0) continue;
    px.raw.push_back(x[i]);
    px.whole.push_back(wx);
    py.raw.push_back(y[i]);
    py.whole.push_back(wy);
  }
  return static_cast<int>(px.raw.size());
}

void standardise(std::vector<double>& whole, const Spread& spread) {
  const double sd = spread.sd();
  for (double& x : whole) x = std::nearbyint((x - spread.mean) / sd);
}

// Of the sums over whole numbers, which a double holds exactly; false where the coefficient is refused.
bool ofWholeNumbers(std::span<const double> x, std::span<const double> y, double& r) {
  double sx = 0, sy = 0, sxx = 0, syy = 0, sxy = 0;
  for (std::size_t i = 0; i < x.size(); ++i) {
    sx += x[i];
    sy += y[i];
    sxx += product(x[i], x[i]);
    syy += product(y[i], y[i]);
    sxy += product(x[i], y[i]);
  }
  if (syy == 0 || sxx == 0) return false;
  const auto n = static_cast<double>(x.size());
  const double spreadY = std::sqrt(n * syy - sy * sy), spreadX = std::sqrt(n * sxx - sx * sx);
  r = divided(n * sxy - sx * sy, spreadY * spreadX, kName);
  return true;
}

double ofValues(std::span<const double> x, std::span<const double> y) {
  const Spread sx = spreadOf(x), sy = spreadOf(y);
  if (sx.squares <= 0 || sy.squares <= 0) return 0;
  const double dx = sx.mean - x[0], dy = sy.mean - y[0];
  long double sum = 0;
  for (std::size_t i = 0; i < x.size(); ++i) sum += static_cast<long double>(x[i] - x[0] - dx) * (y[i] - y[0] - dy);
  return static_cast<double>(sum / std::sqrt(static_cast<long double>(sx.squares) * sy.squares));
}

}  // namespace

Pearson pearson(std::span<const double> x, std::span<const double> y, bool standardised) {
  requireAtMost(x.size(), kPearsonLimit, kName, u"記録");
  Pearson result;
  Column px, py;
  result.n = pairUp(x, y, px, py);
  const Spread sx = spreadOf(px.whole), sy = spreadOf(py.whole);
  if (result.n <= 1 || sx.squares <= 0 || sy.squares <= 0) return result;
  if (standardised) {
    standardise(px.whole, sx);
    standardise(py.whole, sy);
  }
  result.refused = !ofWholeNumbers(px.whole, py.whole, result.r);
  if (!result.refused) result.exact = ofValues(px.raw, py.raw);
  return result;
}

}  // namespace zelko::numbers
