#include "stats/numbers/distribution.h"

#include <cmath>

#include "stats/numbers/limits.h"

namespace zelko::numbers {

namespace {
constexpr const char16_t* kName = u"度数分布";
}

float ClassEdges::lower(int k) const { return lowEdge + static_cast<float>(k - 1) * classWidth; }

float ClassEdges::upper(int k) const { return lower(k) + classWidth; }

float ClassEdges::mark(int k) const { return lowEdge + classWidth / 2 + static_cast<float>(k - 1) * classWidth; }

ClassEdges classEdges(double minV, double maxV, int classes) {
  const double half = (maxV - minV) / classes / 2;
  ClassEdges edges;
  edges.classes = classes;
  edges.lowEdge = single(minV - half, kName);
  edges.highEdge = maxV + half;
  edges.classWidth = single((edges.highEdge - edges.lowEdge) / classes, kName);
  return edges;
}

ClassCounts classCounts(std::span<const double> values, const ClassEdges& edges) {
  ClassCounts freq{};
  for (const double x : values) {
    std::size_t k = 0;
    if (!(single(x, kName) < edges.lowEdge || x > edges.highEdge)) {
      const double steps = std::floor((x - edges.lowEdge) / edges.classWidth);
      if (steps >= 0 && steps < kMostClasses) k = static_cast<std::size_t>(steps) + 1;
    }
    ++freq[k];
  }
  return freq;
}

std::vector<int> exactClassCounts(std::span<const double> values, double minV, double maxV, int classes) {
  const double half = (maxV - minV) / classes / 2;
  const double width = (maxV - minV + 2 * half) / classes;
  std::vector<int> counts(static_cast<std::size_t>(classes) + 1);
  for (const double x : values) {
    const double steps = std::floor(((x - minV) + half) / width);
    const bool isInside = steps >= 0 && steps < classes;
    ++counts[isInside ? static_cast<std::size_t>(steps) + 1 : 0];
  }
  return counts;
}

void requireDistribution(std::size_t values) { requireAtMost(values, kDistributionLimit, kName, u"数値"); }

void requireGroupDistribution(std::size_t values) {
  requireAtMost(values, kGroupDistributionLimit, u"群別度数分布", u"一つの群の数値");
}

}  // namespace zelko::numbers
