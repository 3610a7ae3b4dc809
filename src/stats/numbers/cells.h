// How records fall into the cells of a design with grouping items.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <vector>

namespace zelko::numbers {

struct CellCounts {
  std::array<int, 3> levels{1, 1, 1};  // the highest level of A, B, C; 1 for an unused factor
  std::vector<int> n;                  // empty where a factor has more than 99 levels

  int index(int a, int b, int c = 1) const { return ((a - 1) * levels[1] + b - 1) * levels[2] + c - 1; }
  int at(int a, int b, int c = 1) const { return n[index(a, b, c)]; }
};

// Group numbers from 1 (a subscript fault below, or above 255), the same length; c may be empty.
CellCounts cellCounts(std::span<const int> a, std::span<const int> b, std::span<const int> c = {});

using CellPlace = std::array<int, 3>;  // levels of A, B, C from 1
std::optional<CellPlace> firstCellBelow(const CellCounts& counts, int least);
std::optional<CellPlace> firstCellOtherThan(const CellCounts& counts, int n);
// Cells of different sizes.
bool sizesDiffer(const CellCounts& counts);
// Whether the number of occupied levels of that factor (0 A, 1 B, 2 C) differs between the levels of another one.
bool levelsDiffer(const CellCounts& counts, int factor);

}  // namespace zelko::numbers
