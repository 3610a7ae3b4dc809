#include "stats/numbers/exact.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zelko::numbers {

namespace {

constexpr double kTiny = 1e-300;

// The continued fraction of the incomplete beta function by the method of Lentz; converges fast for x below (a + 1) /
// (a + b + 2).
double betaFraction(double x, double a, double b) {
  const auto awayFromZero = [](double v) { return std::abs(v) < kTiny ? kTiny : v; };
  double c = 1, d = 1 / awayFromZero(1 - (a + b) * x / (a + 1)), h = d;
  for (int k = 1; k < 100000; ++k) {
    const double k2 = 2.0 * k;
    const double even = k * (b - k) * x / ((a + k2 - 1) * (a + k2));
    d = 1 / awayFromZero(1 + even * d);
    c = awayFromZero(1 + even / c);
    h *= d * c;
    const double odd = -(a + k) * (a + b + k) * x / ((a + k2) * (a + k2 + 1));
    d = 1 / awayFromZero(1 + odd * d);
    c = awayFromZero(1 + odd / c);
    h *= d * c;
    if (std::abs(d * c - 1) < 1e-15) break;
  }
  return h;
}

// Stirling's remainder log Gamma(z) - ((z - 1/2) log z - z + log(2 pi) / 2).
double stirlingRest(double z) {
  if (z < 15) return std::lgamma(z) - ((z - 0.5) * std::log(z) - z + 0.91893853320467274178);
  const double s = 1 / (z * z);
  return (1.0 / 12 - s * (1.0 / 360 - s * (1.0 / 1260 - s * (1.0 / 1680 - s / 1188)))) / z;
}

}  // namespace

double normalTail(double z) { return std::erfc(z / std::sqrt(2.0)) / 2; }

double chiExact(double chi, int df) {
  const double h = chi / 2;
  if (h <= 0) return 1;
  const bool isOdd = df % 2 != 0;
  // Terms h^k e^-h / Gamma(k + 1), k whole for even degrees, halves for odd ones; taken from the last one down, which
  // is scaled by Stirling's formula, so that none leaves the range.
  const double last = df / 2.0 - 1;
  double sum = isOdd ? std::erfc(std::sqrt(h)) : 0;
  if (last < 0) return sum;
  // The largest term lies at k near h: begin there and go both ways.
  const double lowest = isOdd ? 0.5 : 0;
  const double top = std::clamp(std::floor(h) + lowest, lowest, last);
  const double peak = top == 0 ? std::exp(-h)
                               : std::exp(top * std::log(h / top) + (top - h) - stirlingRest(top)) /
                                     std::sqrt(2 * 3.14159265358979323846 * top);
  double term = peak;
  for (double k = top; k >= lowest && term > 0; k -= 1) {
    sum += term;
    term *= k / h;
  }
  term = peak;
  for (double k = top + 1; k <= last && term > 0; k += 1) sum += term *= h / k;
  return sum;
}

double f(double x, int m, int n) {
  const double a = m / 2.0, b = n / 2.0, s = a + b;
  // x f(x) = p^a q^b / B(a, b) with p = m x / (m x + n); the powers are taken about the mode, where they are near 1.
  const double scale = m * x + n, p = m * x / scale, q = n / scale;
  const double powers = a * std::log(p * s / a) + b * std::log(q * s / b);
  const double rest = stirlingRest(s) - stirlingRest(a) - stirlingRest(b);
  return std::exp(powers + rest) * std::sqrt(a * b / (2 * 3.14159265358979323846 * s)) / x;
}

double prbF(double F, int m, int n) {
  if (!(F > 0)) return 1;
  if (std::isinf(F)) return 0;
  const double a = m / 2.0, b = n / 2.0, scale = m * F + n;
  const double p = m * F / scale, q = n / scale;
  const double front = F * f(F, m, n);
  if (q < (b + 1) / (a + b + 2)) return front / b * betaFraction(q, b, a);
  return 1 - front / a * betaFraction(p, a, b);
}

double tExact(double t, int v) {
  // Near 0 the square of t is a small F, whose tail is near 1 without loss.
  return prbF(t * t, 1, v);
}

Binomial binomialExact(int r, double p, int n) {
  if (p <= 0) return {r == 0 ? 1.0 : 0.0, 1};
  const double odds = p / (1 - p);
  const int mode = std::min(n, static_cast<int>((n + 1) * p));
  double all = 0, upToR = 0, atR = 0;
  const auto take = [&](int i, double weight) {
    all += weight;
    if (i <= r) upToR += weight;
    if (i == r) atR = weight;
  };
  double weight = 1;
  for (int i = mode; i >= 0; --i) {
    take(i, weight);
    weight *= i / ((n - i + 1) * odds);
  }
  weight = 1;
  for (int i = mode; i < n; ++i) {
    weight *= (n - i) * odds / (i + 1);
    take(i + 1, weight);
  }
  return {atR / all, upToR / all};
}

}  // namespace zelko::numbers
