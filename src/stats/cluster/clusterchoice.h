// What a cluster analysis is made of, and how its parts are called in the report and in the picture.
#pragma once

#include "platform/text/text.h"
#include "stats/numbers/clustering.h"

namespace zelko {

// "raw" for measures, "mat" for a distance matrix that stands in the table.
extern Text inputKind;

enum class Distance { matrix, squared, standardised, mahalanobis, minkowski };

struct ClusterChoice {
  Distance distance = Distance::squared;
  double exponent = 2;  // of the Minkowski distance
  numbers::Linkage method = numbers::Linkage::single;
  double beta = -0.25;  // of the flexible method
  int processOut = 0;   // 1: each step is reported
  bool picture = false;
};

// Of the report; the constants of Minkowski's distance and of the flexible method stand behind their names.
Text distanceName(const ClusterChoice& choice);
Text methodName(const ClusterChoice& choice);
// The shorter ones of the picture.
Text pictureDistance(Distance distance);
Text pictureMethod(numbers::Linkage method);

}  // namespace zelko
