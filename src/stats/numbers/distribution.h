// The classes of a histogram. The edges are singles, as they are printed.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace zelko::numbers {

inline constexpr std::size_t kDistributionLimit = 15000;
inline constexpr std::size_t kGroupDistributionLimit = 2000;
inline constexpr int kMostClasses = 255;

// Classes run from 1 to `classes`; the first and the last are centred on the smallest and the largest value.
struct ClassEdges {
  int classes = 0;
  float lowEdge = 0;
  double highEdge = 0;
  float classWidth = 0;

  float lower(int k) const;
  float upper(int k) const;
  float mark(int k) const;  // the middle of class k
};

// minV below maxV, 2 to 255 classes. An overflow fault where an edge is no single.
ClassEdges classEdges(double minV, double maxV, int classes);

// freq[k] for class k, freq[0] for the values outside all of them. A value beside the edges only by the rounding of the
// edges to singles counts as they say.
using ClassCounts = std::array<float, 256>;
ClassCounts classCounts(std::span<const double> values, const ClassEdges& edges);

// The same counts with edges in double precision: they differ where the values need more than the 7 digits of a single.
std::vector<int> exactClassCounts(std::span<const double> values, double minV, double maxV, int classes);

// Subscript faults beyond 15000 values, beyond 2000 in a group.
void requireDistribution(std::size_t values);
void requireGroupDistribution(std::size_t values);

}  // namespace zelko::numbers
