#include "stats/numbers/distances.h"

#include <cmath>
#include <vector>

#include "stats/numbers/covariance.h"
#include "stats/numbers/limits.h"

namespace zelko::numbers {

namespace {

constexpr const char16_t* kName = u"クラスタ分析";

template <class Distance>
Matrix between(const Matrix& data, Distance distance) {
  requireAtMost(static_cast<std::size_t>(data.rows), kObjectLimit, kName, u"記録");
  Matrix result(data.rows, data.rows);
  for (int i = 0; i < data.rows; ++i) {
    for (int j = 0; j < i; ++j) result(i, j) = result(j, i) = distance(data.row(i), data.row(j));
  }
  return result;
}

using Row = std::span<const double>;

double squared(Row x, Row y) {
  double sum = 0;
  for (std::size_t k = 0; k < x.size(); ++k) sum += (x[k] - y[k]) * (x[k] - y[k]);
  return sum;
}

double power(double x, double p) {
  if (p == 1) return x;
  return p == 2 ? x * x : std::pow(x, p);
}

}  // namespace

Matrix yuk(const Matrix& data) { return between(data, squared); }

Matrix stYuk(const Matrix& data) {
  const Covariance basics = var(data);
  Matrix standard = data;
  for (int k = 0; k < data.columns; ++k) {
    const Spread& item = basics.items[k];
    for (int i = 0; i < data.rows; ++i)
      standard(i, k) = divided((data(i, k) - item.origin) - item.shift, item.u(), kName);
  }
  return yuk(standard);
}

Matrix maha(const Matrix& data) {
  const Matrix inverse = inv(var(data).covariance, kName);
  std::vector<double> gap(static_cast<std::size_t>(data.columns));
  return between(data, [&](Row x, Row y) {
    for (std::size_t k = 0; k < x.size(); ++k) gap[k] = x[k] - y[k];
    double sum = 0;
    for (int k = 0; k < inverse.rows; ++k) {
      double along = 0;
      for (int l = 0; l < inverse.rows; ++l) along += inverse(k, l) * gap[l];
      sum += gap[k] * along;
    }
    return sum;
  });
}

Matrix mink(const Matrix& data, double p) {
  const double inverse = divided(1, p, kName);
  return between(data, [&](Row x, Row y) {
    double sum = 0;
    for (std::size_t k = 0; k < x.size(); ++k) sum += power(std::abs(x[k] - y[k]), p);
    return p == 2 ? std::sqrt(sum) : power(sum, inverse);
  });
}

Matrix lowerTriangle(const Matrix& typed) {
  requireAtMost(static_cast<std::size_t>(typed.rows), kObjectLimit, kName, u"記録");
  Matrix result(typed.rows, typed.rows);
  for (int i = 0; i < typed.rows; ++i) {
    for (int j = 0; j < i; ++j) result(i, j) = result(j, i) = typed(i, j);
  }
  return result;
}

}  // namespace zelko::numbers
