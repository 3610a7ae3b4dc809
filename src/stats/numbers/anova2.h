// Two-way analyses of variance.
#pragma once

#include <span>

#include "stats/numbers/anova.h"
#include "stats/numbers/matrix.h"

namespace zelko::numbers {

struct TwoWay {
  AnovaRow a, b, ab, error, total;
};

// One value a cell: columns are A (treatments, trials), rows B (treatments, subjects); tested against the residual.
// More than 600 rows: a subscript fault.
TwoWay twoWay(const Matrix& values);

// Several values a cell, sizes may differ; groups from 1, no cell empty; tested against the spread within cells. With
// unequal sizes the effects are those of the raw totals, the interaction is what they leave of the cells (it may be
// negative).
TwoWay twoWayCells(std::span<const double> values, std::span<const int> a, std::span<const int> b);

}  // namespace zelko::numbers
