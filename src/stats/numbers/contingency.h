// The typed n by m table: chi-square, three coefficients of association, and the simulation of chance tables.
#pragma once

#include <optional>
#include <vector>

#include "stats/numbers/random.h"

namespace zelko::numbers {

inline constexpr int kMostCategories = 97;

struct Counts {
  int rows = 0, columns = 0;
  std::vector<int> cells;  // row by row
};

struct CountSums {
  std::vector<double> rows, columns;
  double total = 0;
};
CountSums cellSum(const Counts& counts);

struct ContingencyTest {
  bool valid = false;  // no margin of 0, two categories and more on both sides
  double chi = 0;      // sum of (O - E)^2 / E
  int df = 0;
  std::optional<double> p;  // chiP; none where its steps leave the range of a double
  double exactP = 0;
  double c1 = 0;  // sqrt(chi / (N (larger count of categories - 1)))
  double c2 = 0;  // Cramer's V: the smaller count
  double c3 = 0;  // Tschuprow's T: sqrt((r - 1)(c - 1))
};
ContingencyTest nmchiphi(const Counts& counts);

// Chance tables of as many observations, each thrown into one of the cells with the same probability.
class ContingencyTrials {
 public:
  // `observed` is the chi-square that a chance table must exceed. More than 97 categories on a side: a subscript fault.
  ContingencyTrials(const Counts& counts, double observed);

  // One table. False where a margin of it is 0, so that its chi-square cannot be computed: the run ends there.
  bool once(const RandomBits& bits);

  int done() const { return done_; }
  int hits() const { return hits_; }
  double rate() const { return done_ > 0 ? static_cast<double>(hits_) / done_ : 0; }

 private:
  Counts thrown_;
  long total_;
  double observed_;
  int done_ = 0, hits_ = 0;
};

}  // namespace zelko::numbers
