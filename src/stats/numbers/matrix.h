// A dense matrix, row by row, and its inverse.
#pragma once

#include <span>
#include <string_view>
#include <vector>

namespace zelko::numbers {

struct Matrix {
  int rows = 0, columns = 0;
  std::vector<double> cells;

  Matrix() = default;
  Matrix(int r, int c) : rows(r), columns(c), cells(static_cast<std::size_t>(r) * static_cast<std::size_t>(c)) {}

  double& operator()(int i, int j) { return cells[static_cast<std::size_t>(i) * columns + j]; }
  double operator()(int i, int j) const { return cells[static_cast<std::size_t>(i) * columns + j]; }
  std::span<const double> row(int i) const {
    return std::span(cells).subspan(static_cast<std::size_t>(i) * columns, static_cast<std::size_t>(columns));
  }
};

// The inverse of a symmetric positive matrix by Gauss-Jordan elimination on the diagonal. A division fault where a
// pivot is 0, or what rounding left of one.
Matrix inv(Matrix m, std::u16string_view analysis);

}  // namespace zelko::numbers
