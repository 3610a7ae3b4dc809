// The cells of an analysis of variance, read and tested: a wrong one is told with its place, and nothing is analysed.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "stats/numbers/cells.h"
#include "stats/numbers/matrix.h"
#include "stats/variance/designitems.h"

namespace zelko {

enum class ReadEnd { whole, refused, stopped };  // refused: told

// An item a column; each ends with the last record, or with `mayEndEarly` at its first blank or 0, behind which no
// value may follow.
struct ColumnsRead {
  ReadEnd end = ReadEnd::refused;
  std::vector<std::vector<double>> columns;
};
ColumnsRead readVarianceColumns(const ItemSpan& items, bool mayEndEarly);

// All cells of those items, a row a record.
struct MatrixRead {
  ReadEnd end = ReadEnd::refused;
  numbers::Matrix values;
};
MatrixRead readVarianceMatrix(const ItemSpan& items);

// A design with grouping items: group numbers are whole ones from 1 to 254, each used below the highest, 2 to 99 of
// them.
struct DesignRead {
  ReadEnd end = ReadEnd::refused;
  numbers::Matrix values;                    // a row a record, a column an item of the values
  std::array<std::vector<int>, 3> groups{};  // of A, B, C, a number a record
};
DesignRead readDesign(const DesignItems& items);

// How many values each cell of a design must hold.
enum class CellSize {
  one,      // "三元配置" with the highest interaction as error
  several,  // two and more, all the same
  unequal,  // two and more
};
// False, told with the levels of the first wrong cell.
bool cellsFit(const DesignRead& read, std::size_t factors, CellSize size);

}  // namespace zelko
