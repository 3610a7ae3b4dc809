// The tree of a clustering: the order of its leaves, and where its joints lie.
#pragma once

#include <span>
#include <vector>

#include "stats/numbers/clustering.h"

namespace zelko::numbers {

struct Joint {
  double left = 0, right = 0;            // places of the two branches on the leaf axis
  double leftLevel = 0, rightLevel = 0;  // where the branches begin
  double level = 0;                      // where they join
  std::vector<int> members;              // objects from 1, in the order of the leaves
};

struct Dendrogram {
  std::vector<int> leaves;    // objects from 1; the place of leaves[k] is k + 1
  std::vector<Joint> joints;  // one a merge, in the order of the merges
};

// In every joint the branch of the pair's first object lies left. Clusters that were never joined stand side by side.
Dendrogram dendrogram(int objects, std::span<const Merge> merges);

}  // namespace zelko::numbers
