#include "stats/numbers/covariance.h"

#include <cmath>

namespace zelko::numbers {

namespace {

// Deviations from the means, a row an item, so that products run along memory.
Matrix deviations(const Matrix& data, std::vector<Spread>& items) {
  Matrix result(data.columns, data.rows);
  std::vector<double> column(static_cast<std::size_t>(data.rows));
  for (int j = 0; j < data.columns; ++j) {
    for (int i = 0; i < data.rows; ++i) column[i] = data(i, j);
    items.push_back(spreadOf(column));
    const Spread& item = items.back();
    for (int i = 0; i < data.rows; ++i) result(j, i) = (column[i] - item.origin) - item.shift;
  }
  return result;
}

double dot(std::span<const double> x, std::span<const double> y) {
  double sums[4] = {};
  std::size_t i = 0;
  for (; i + 4 <= x.size(); i += 4) {
    for (std::size_t k = 0; k < 4; ++k) sums[k] += x[i + k] * y[i + k];
  }
  for (; i < x.size(); ++i) sums[0] += x[i] * y[i];
  return (sums[0] + sums[1]) + (sums[2] + sums[3]);
}

}  // namespace

Covariance var(const Matrix& data) {
  Covariance result;
  const Matrix centred = deviations(data, result.items);
  const int p = data.columns;
  for (int j = p - 1; j >= 0; --j) {
    if (data.rows < 2 || result.items[j].squares <= 0) result.constantItem = j;
  }
  result.covariance = Matrix(p, p);
  const double divisor = data.rows > 1 ? data.rows - 1 : 1;
  for (int i = 0; i < p; ++i) {
    result.covariance(i, i) = result.items[i].variance();
    for (int j = 0; j < i; ++j) {
      result.covariance(i, j) = result.covariance(j, i) = dot(centred.row(i), centred.row(j)) / divisor;
    }
  }
  if (result.constantItem >= 0) return result;
  result.correlation = Matrix(p, p);
  for (int i = 0; i < p; ++i) {
    result.correlation(i, i) = 1;
    for (int j = 0; j < i; ++j) {
      const double r = result.covariance(i, j) / (result.items[i].u() * result.items[j].u());
      result.correlation(i, j) = result.correlation(j, i) = r;
    }
  }
  return result;
}

}  // namespace zelko::numbers
