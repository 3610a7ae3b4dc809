// Kaiser's Varimax rotation with normalised loadings (Psychometrika 23, 1958).
#pragma once

#include <span>
#include <vector>

#include "stats/numbers/matrix.h"

namespace zelko::numbers {

class Varimax {
 public:
  // loadings: items by factors. A communality of 0 is a division fault, a negative one a fault of its own.
  Varimax(const Matrix& loadings, std::span<const double> communalities);

  // Rotates each pair of factors once. True where the criterion moved by eps at most. The quadrants of the angle are
  // corrected by 3.14158860413563 and 3.14159, so a solution carries their error of some millionths.
  bool cycle(double eps);

  int cycles() const { return cycles_; }
  double criterion() const { return criterion_; }  // V, of the loadings as they are now
  const Matrix& loadings() const { return loadings_; }

 private:
  void rotate(int j, int k);
  double currentCriterion() const;

  Matrix loadings_;
  std::vector<double> communalities_;
  double criterion_;
  int cycles_ = 0;
};

}  // namespace zelko::numbers
