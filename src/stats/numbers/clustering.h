// Hierarchical clustering by the recurrence of Lance and Williams (Computer Journal 9, 1967).
#pragma once

#include <cstdint>
#include <vector>

#include "stats/numbers/matrix.h"

namespace zelko::numbers {

inline constexpr double kFirstMinimum = 10000;  // a distance from here on is never chosen

// The methods by their numbers, 1 to 7.
enum class Linkage { single = 1, complete, average, centroid, median, ward, flexible };

struct Merge {
  int i = 0, j = 0;  // objects from 1, i < j; the new cluster keeps the number i
  double mergeLevel = 0;
  std::int16_t mergeCode = 0;  // i * 256 + j, less 65536 above 32767
  int members = 0;             // objects in the new cluster
};

class Clustering {
 public:
  // distances: symmetric, at most 200 objects (a subscript fault). beta: the constant of the flexible method. A method
  // outside 1 to 7 is a fault.
  Clustering(Matrix distances, Linkage method, double beta);

  // Chooses the next pair, which then stands in merges().back(): the smallest positive distance below 10000, the first
  // in row order among equals; a 0 at once while steps are not more than the zeros among the objects at the start.
  // False when one cluster is left, or nothing to choose. D() and size() are still as before the merge: the step can be
  // reported.
  bool choose();
  // Merges the chosen pair.
  void merge();
  // All of it.
  void clustring();

  int objects() const { return D_.rows; }
  const Matrix& D() const { return D_; }
  int size(int object) const { return size_[object - 1]; }  // 0: retired
  const std::vector<Merge>& merges() const { return merges_; }
  bool complete() const { return static_cast<int>(merges_.size()) == objects() - 1; }
  double highestLevel() const;

 private:
  struct Weights {
    double i, j, beta, gamma;
  };
  Weights weights(double ni, double nj, double nh) const;

  Matrix D_;
  Linkage method_;
  double beta_;
  std::vector<int> size_;
  std::vector<Merge> merges_;
  int zeros_ = 0;
};

}  // namespace zelko::numbers
