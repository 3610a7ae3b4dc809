// The principal factor method: communalities, loadings with and without iteration, what they reproduce, factor scores
// (Harman, Modern Factor Analysis).
#pragma once

#include <span>
#include <vector>

#include "stats/numbers/covariance.h"
#include "stats/numbers/matrix.h"

namespace zelko::numbers {

// Squared multiple correlations, 1 - 1 / r^ii. A singular matrix is a division fault.
std::vector<double> smc(const Matrix& correlation);
// The largest absolute correlation of each item.
std::vector<double> maxCorrelations(const Matrix& correlation);

// The eigenvalues of the correlations with that diagonal.
std::vector<double> eigenvaluesWith(const Matrix& correlation, std::span<const double> diagonal);

class FactorExtraction {
 public:
  // communalities: one an item; factors: 1 to the number of items (else a subscript fault).
  FactorExtraction(const Matrix& correlation, std::span<const double> communalities, int factors);

  // Puts the communalities into the diagonal, takes loadings and new communalities. True where none moved by more than
  // eps; otherwise the cycle is counted. A negative eigenvalue among the factors is a fault. The solution without
  // iteration is one call.
  bool cycle(double eps);

  int cycles() const { return cycles_; }
  const Matrix& loadings() const { return loadings_; }  // items by factors
  const std::vector<double>& communalities() const { return communalities_; }
  const std::vector<double>& eigenvalues() const { return eigenvalues_; }

 private:
  Matrix correlation_, loadings_;
  std::vector<double> communalities_, eigenvalues_;
  int factors_, cycles_ = 0;
};

// AA' with the uniquenesses added on the diagonal.
Matrix reproduced(const Matrix& loadings, std::span<const double> communalities);
// The correlations less the reproduced ones.
Matrix residual(const Matrix& correlation, const Matrix& reproducedOnes);

// Regression estimates: weights R^-1 A, items by factors. A singular matrix is a division fault.
Matrix scoreWeights(const Matrix& correlation, const Matrix& loadings);
// Records by factors, from the standardised data.
Matrix factorScores(const Matrix& data, const Covariance& basics, const Matrix& weights);

}  // namespace zelko::numbers
