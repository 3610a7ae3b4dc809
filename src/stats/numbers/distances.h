// Distances between records.
#pragma once

#include <cstddef>

#include "stats/numbers/matrix.h"

namespace zelko::numbers {

inline constexpr std::size_t kObjectLimit = 200;

// data: a row an object, a column an item; all give a symmetric matrix of objects. More than 200: a subscript fault.

// Squared Euclidean.
Matrix yuk(const Matrix& data);
// The same on values divided by the item's standard deviation (divisor n - 1). A constant item is a division fault.
Matrix stYuk(const Matrix& data);
// Mahalanobis: (xi - xj)' S^-1 (xi - xj), S the covariances. A singular S is a division fault.
Matrix maha(const Matrix& data);
// Minkowski with exponent p; p of 0 is a division fault.
Matrix mink(const Matrix& data, double p);
// A typed distance matrix: its lower triangle, made symmetric. Square.
Matrix lowerTriangle(const Matrix& typed);

}  // namespace zelko::numbers
