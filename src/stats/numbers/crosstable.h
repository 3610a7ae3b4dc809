// The cross table of two items and its tests.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "stats/numbers/fourfold.h"

namespace zelko::numbers {

inline constexpr int kLastCategory = 30;  // and all above
inline constexpr int kSumIndex = 50;

struct CrossTable {
  // tbl[row][column]: the row is the category of item 2, the column that of item 1. Index 0 holds records without a
  // category; sums over the categories 1 to 30 stand at index 50, also of row 0 and column 0.
  std::array<std::array<std::int16_t, 51>, 51> tbl{};
  int rows = 0, columns = 0;  // the highest occupied category

  int total() const { return tbl[kSumIndex][kSumIndex]; }
};

// A value is rounded to a whole number, half to even; from 30 on it counts under 30. Negative: a subscript fault; a
// count beyond 16 bits: an overflow fault.
CrossTable crossTable(std::span<const double> item1, std::span<const double> item2);

struct CrossTest {
  // In the order of the tests; tooLarge is more than 5 columns or 16 rows.
  enum class Refusal { none, tooLarge, noTotal, emptyCell };
  Refusal refusal = Refusal::none;
  int df = 0;  // 0: no result
  float chi = 0;
  double phi = 0;  // sqrt(chi / (sqrt(df) N)): Tschuprow's coefficient
  double p = 0;    // chiP
  double exactP = 0;
};

CrossTest crossTest(const CrossTable& table);

// The test of one cell against the rest of its column (b), of its row (c) and of the square (d), never corrected.
FourfoldTest cellTest(const CrossTable& table, int row, int column);

}  // namespace zelko::numbers
