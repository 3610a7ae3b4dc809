// The distribution of one column of numbers: the values, their figures, the classes.
#pragma once

#include <cstdint>
#include <vector>

#include "stats/numbers/distribution.h"
#include "stats/numbers/moments.h"

namespace zelko {

struct ValueDistribution {
  std::vector<double> values;
  numbers::Spread spread;
  double minV = 0, maxV = 0;  // what the first and the last class are centred on
  int classes = 0;
  numbers::ClassEdges edges;
  numbers::ClassCounts freq{};

  int n() const { return static_cast<int>(values.size()); }
  // After the values: their figures, and their extremes as limits.
  void measure();
  // After limits or number of classes.
  void count();
};

// The numbers of an item in firstRecord to lastRecord; false where the reading was stopped or failed (told). More than
// 15000 are a fault.
bool readValues(int item, std::vector<double>& values);

// Where all values are equal: asks for other limits, by voice, until they differ. An empty answer ends the questions;
// the lower limit is then 1 below the upper one.
void askLimits(double& minV, double& maxV);

}  // namespace zelko
