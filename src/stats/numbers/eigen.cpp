#include "stats/numbers/eigen.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace zelko::numbers {

namespace {

constexpr double kDiagonalEnough = 0.00001;

// The rotations keep, for each row, the column of its largest entry right of the diagonal: the largest of all is found
// in one pass over the rows.
class Jacobi {
 public:
  explicit Jacobi(Matrix m)
      : m_(std::move(m)), vectors_(m_.rows, m_.rows), largest_(static_cast<std::size_t>(m_.rows)) {
    for (int i = 0; i < m_.rows; ++i) vectors_(i, i) = 1;
    for (int i = 0; i + 1 < m_.rows; ++i) searchRow(i);
  }

  void run() {
    while (m_.rows > 1) {
      int i = 0;
      for (int row = 1; row + 1 < m_.rows; ++row) {
        if (entry(row) > entry(i)) i = row;
      }
      if (!(entry(i) > kDiagonalEnough)) return;
      rotate(i, largest_[i]);
    }
  }

  Eigen sorted() const {
    std::vector<int> order(static_cast<std::size_t>(m_.rows));
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](int i, int j) { return m_(i, i) > m_(j, j); });
    Eigen result{{}, Matrix(m_.rows, m_.rows)};
    for (int k = 0; k < m_.rows; ++k) {
      result.values.push_back(m_(order[k], order[k]));
      for (int i = 0; i < m_.rows; ++i) result.vectors(i, k) = vectors_(i, order[k]);
    }
    return result;
  }

 private:
  double entry(int row) const { return std::abs(m_(row, largest_[row])); }

  void searchRow(int row) {
    int best = row + 1;
    for (int j = row + 2; j < m_.rows; ++j) {
      if (std::abs(m_(row, j)) > std::abs(m_(row, best))) best = j;
    }
    largest_[row] = best;
  }

  void rotate(int i, int j) {
    const double a = m_(i, j), b = (m_(i, i) - m_(j, j)) / 2, r = std::sqrt(a * a + b * b);
    const double sign = b < 0 ? -1 : 1;
    const double cosine = std::sqrt((1 + std::abs(b) / r) / 2), sine = sign * a / (2 * r * cosine);
    const double ii = m_(i, i), jj = m_(j, j);
    for (int k = 0; k < m_.rows; ++k) {
      turn(m_(i, k), m_(j, k), cosine, sine);
      m_(k, i) = m_(i, k);
      m_(k, j) = m_(j, k);
      turn(vectors_(k, i), vectors_(k, j), cosine, sine);
    }
    m_(i, i) = ii * cosine * cosine + jj * sine * sine + 2 * a * sine * cosine;
    m_(j, j) = ii * sine * sine + jj * cosine * cosine - 2 * a * sine * cosine;
    m_(i, j) = m_(j, i) = 0;
    refresh(i, j);
  }

  static void turn(double& x, double& y, double cosine, double sine) {
    const double first = x * cosine + y * sine;
    y = y * cosine - x * sine;
    x = first;
  }

  void refresh(int i, int j) {
    for (int row = 0; row + 1 < m_.rows; ++row) {
      const bool isTouched = row == i || row == j || largest_[row] == i || largest_[row] == j;
      if (isTouched) {
        searchRow(row);
        continue;
      }
      for (const int column : {i, j}) {
        const double moved = std::abs(m_(row, column));
        const bool isFirstOfEquals = moved == entry(row) && column < largest_[row];
        if (column > row && (moved > entry(row) || isFirstOfEquals)) largest_[row] = column;
      }
    }
  }

  Matrix m_, vectors_;
  std::vector<int> largest_;
};

}  // namespace

Eigen eigen(Matrix symmetric) {
  Jacobi jacobi(std::move(symmetric));
  jacobi.run();
  return jacobi.sorted();
}

}  // namespace zelko::numbers
