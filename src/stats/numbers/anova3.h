// Three-way analyses of variance. Rows that a design lacks are not present.
#pragma once

#include <span>

#include "stats/numbers/anova.h"
#include "stats/numbers/matrix.h"

namespace zelko::numbers {

struct ThreeWay {
  AnovaRow a, b, c, ab, ac, bc, abc, error, total;
};

// Groups count from 1; every cell of the crossed designs holds the same number of values (see cells.h for the checks):
// a fault where not. More than 600 rows: a subscript fault.

// One value a cell: the interaction of all three is the error.
ThreeWay threeWaySingle(std::span<const double> values, std::span<const int> a, std::span<const int> b,
                        std::span<const int> c);

// Two values a cell and more: tested against the spread within cells.
ThreeWay threeWayReplicated(std::span<const double> values, std::span<const int> a, std::span<const int> b,
                            std::span<const int> c);

// C are subjects who meet all levels of A and B: A is tested against AC, B against BC, AB against the rest, which
// stands as `error` and has no row in the printed table.
ThreeWay threeWaySubjects(std::span<const double> values, std::span<const int> a, std::span<const int> b,
                          std::span<const int> subject);

// Subjects within the levels of A, each measured at all levels of B: a row of `values` is a subject, a column a level
// of B, a[row] the group. C is the spread of subjects within groups, BC the rest; A is tested against C, B and AB
// against BC. Group sizes may differ; no group is empty. More than 600 rows: a subscript fault.
ThreeWay threeWayNested(const Matrix& values, std::span<const int> a);

}  // namespace zelko::numbers
