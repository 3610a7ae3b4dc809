#include "stats/numbers/factor.h"

#include <algorithm>
#include <cmath>

#include "platform/fault.h"
#include "stats/numbers/eigen.h"
#include "stats/numbers/limits.h"

namespace zelko::numbers {

namespace {

constexpr const char16_t* kName = u"因子分析";

Matrix withDiagonal(Matrix m, std::span<const double> diagonal) {
  for (int i = 0; i < m.rows; ++i) m(i, i) = diagonal[i];
  return m;
}

}  // namespace

std::vector<double> smc(const Matrix& correlation) {
  const Matrix inverse = inv(correlation, kName);
  std::vector<double> h;
  for (int i = 0; i < inverse.rows; ++i) h.push_back(1 - 1 / inverse(i, i));
  return h;
}

std::vector<double> maxCorrelations(const Matrix& correlation) {
  std::vector<double> h(static_cast<std::size_t>(correlation.rows));
  for (int i = 0; i < correlation.rows; ++i) {
    for (int j = 0; j < correlation.rows; ++j) {
      if (j != i) h[i] = std::max(h[i], std::abs(correlation(i, j)));
    }
  }
  return h;
}

std::vector<double> eigenvaluesWith(const Matrix& correlation, std::span<const double> diagonal) {
  return eigen(withDiagonal(correlation, diagonal)).values;
}

FactorExtraction::FactorExtraction(const Matrix& correlation, std::span<const double> communalities, int factors)
    : correlation_(correlation), communalities_(communalities.begin(), communalities.end()), factors_(factors) {
  if (factors < 1) stop(kName, kSubscript);
  requireAtMost(static_cast<std::size_t>(factors), communalities.size(), kName, u"因子数");
}

bool FactorExtraction::cycle(double eps) {
  const Eigen solution = eigen(withDiagonal(correlation_, communalities_));
  eigenvalues_ = solution.values;
  const int p = correlation_.rows;
  loadings_ = Matrix(p, factors_);
  for (int k = 0; k < factors_; ++k) {
    const double length = root(solution.values[k], kName);
    for (int i = 0; i < p; ++i) loadings_(i, k) = length * solution.vectors(i, k);
  }
  double moved = 0;
  for (int i = 0; i < p; ++i) {
    double h = 0;
    for (const double a : loadings_.row(i)) h += a * a;
    moved = std::max(moved, std::abs(h - communalities_[i]));
    communalities_[i] = h;
  }
  if (moved <= eps) return true;
  ++cycles_;
  return false;
}

Matrix reproduced(const Matrix& loadings, std::span<const double> communalities) {
  const int p = loadings.rows;
  Matrix result(p, p);
  for (int i = 0; i < p; ++i) {
    for (int j = 0; j < p; ++j) {
      for (int k = 0; k < loadings.columns; ++k) result(i, j) += loadings(i, k) * loadings(j, k);
    }
    result(i, i) += 1 - communalities[i];
  }
  return result;
}

Matrix residual(const Matrix& correlation, const Matrix& reproducedOnes) {
  Matrix result = correlation;
  for (std::size_t i = 0; i < result.cells.size(); ++i) result.cells[i] -= reproducedOnes.cells[i];
  return result;
}

Matrix scoreWeights(const Matrix& correlation, const Matrix& loadings) {
  const Matrix inverse = inv(correlation, kName);
  Matrix weights(loadings.rows, loadings.columns);
  for (int i = 0; i < loadings.rows; ++i) {
    for (int j = 0; j < loadings.rows; ++j) {
      for (int k = 0; k < loadings.columns; ++k) weights(i, k) += inverse(i, j) * loadings(j, k);
    }
  }
  return weights;
}

Matrix factorScores(const Matrix& data, const Covariance& basics, const Matrix& weights) {
  Matrix scores(data.rows, weights.columns);
  for (int record = 0; record < data.rows; ++record) {
    for (int i = 0; i < data.columns; ++i) {
      const Spread& item = basics.items[i];
      const double standard = divided((data(record, i) - item.origin) - item.shift, item.u(), kName);
      for (int k = 0; k < weights.columns; ++k) scores(record, k) += weights(i, k) * standard;
    }
  }
  return scores;
}

}  // namespace zelko::numbers
