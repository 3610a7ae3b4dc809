#include "stats/numbers/probability.h"

#include <cmath>
#include <initializer_list>

#include "platform/fault.h"
#include "stats/numbers/limits.h"

namespace zelko::numbers {

namespace {

constexpr double kTwoOverPi = 0.63661977;

double polynomial(double y, std::initializer_list<double> coefficients) {
  double x = 0;
  for (const double c : coefficients) x = x * y + c;
  return x;
}

double finite(double x) {
  if (!std::isfinite(x)) stop(u"ｶｲ自乗値の確率", kOverflow);
  return x;
}

}  // namespace

double norm(double z) {
  const double w = std::abs(z) / 2;
  double x = 0;
  if (w >= 3) {
    x = 1;
  } else if (w >= 1) {
    x = polynomial(w - 2, {-0.000045255659, 0.00015252929, -0.000019538132, -0.000676904986, 0.001390604248,
                           -0.00079462082, -0.002034254878, 0.006549791214, -0.010557625006, 0.011630447319,
                           -0.009279453341, 0.005353579108, -0.002141268741, 0.000535310849, 0.999936657524});
  } else if (w > 0) {
    x = 2 * w *
        polynomial(w * w, {0.000124818987, -0.001075204047, 0.005198775019, -0.019198292004, 0.059054035642,
                           -0.151968751364, 0.319152932694, -0.5319230073, 0.797884560593});
  }
  return z > 0 ? (1 + x) / 2 : (1 - x) / 2;
}

double prbT(double t, int v) {
  if (v < 1) return 0;
  const double z = std::abs(t) / std::sqrt(v), c = 1 / (1 + z * z);
  const bool isOdd = v % 2 == 1;
  double p = isOdd ? 1 - std::atan(z) * kTwoOverPi : 1;
  // Each further term is the one before times c k / (k + 1).
  double term = isOdd ? z * c * kTwoOverPi : z * std::sqrt(c);
  for (int k = isOdd ? 2 : 1; k <= v - 1; k += 2) {
    p -= term;
    term *= c * k / (k + 1);
  }
  return p;
}

double paulF(double F, int m, int n) {
  const double a = 2.0 / (9.0 * n), b = 2.0 / (9.0 * m), u = std::cbrt(F);
  const double z = ((1 - a) * u - (1 - b)) / std::sqrt(a * u * u + b);
  return 1 - norm(z);
}

double chiP(double chi, int df) {
  if (!(chi >= 0)) stop(u"ｶｲ自乗値の確率", u"負の値です。");
  const double h = df / 2.0 + 1;
  double p = 1;
  for (int i = 1; i <= static_cast<int>(h); ++i) p *= h - i <= 0 ? 1 : h - i;
  if (df % 2 != 0) p *= std::sqrt(3.1415926536);
  finite(p);
  double S = 0, term = 1;
  for (int j = 2; j <= 80; j += 2) S += term *= chi / (j + df);
  S = finite(S + 1);
  return finite(1 - std::exp(-chi / 2) * finite(std::pow(chi / 2, df / 2.0)) / p * S);
}

Binomial Bp(int r, double p, int n) {
  double term = std::pow(1 - p, n), sum = term;
  for (int i = 0; i < r; ++i) {
    term *= static_cast<double>(n - i) / (i + 1) * p / (1 - p);
    sum += term;
  }
  return {term, sum};
}

bool sameToFourDigits(double own, double exact) { return std::abs(own - exact) < 0.00005; }

}  // namespace zelko::numbers
