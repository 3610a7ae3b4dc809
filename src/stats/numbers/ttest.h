// Two groups compared by their means, standard deviations and counts.
#pragma once

namespace zelko::numbers {

struct Group {
  double mean = 0, sd = 0;  // divisor n
  int n = 0;
};

struct TTest {
  bool computed = false;  // both counts are 2 and more; else t and F are 0
  bool hasT = false;      // the pooled deviation is not 0
  double t = 0;
  int df = 0;    // n1 + n2 - 2
  double p = 0;  // prbT, two-sided
  double exactP = 0;
  double F = 0;  // the larger SD over the smaller one, not squared; 0.00001 for a divisor of 0
  int numeratorDf = 0, denominatorDf = 0;  // always n2 - 1 and n1 - 1, whichever SD is larger
  // The ratio of the unbiased variances, the larger above, with its own degrees and its upper tail.
  bool hasExactF = false;
  double exactF = 0;
  int exactNumeratorDf = 0, exactDenominatorDf = 0;
  double exactFP = 0;
};

TTest tTest(const Group& group1, const Group& group2);

}  // namespace zelko::numbers
