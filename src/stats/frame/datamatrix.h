// The cells of chosen items as a matrix of numbers, for analyses that refuse a cell that is none.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/text/text.h"
#include "stats/numbers/matrix.h"

namespace zelko {

struct BadCell {
  std::int32_t record = 0;
  int item = 0;
  int check = 0;  // of numCheck: kBlankCell, or the place of the first bad character
};

struct DataMatrix {
  numbers::Matrix data;        // a row a record of the range, a column an item
  std::optional<BadCell> bad;  // the first cell that is no number: nothing behind it was read
  bool whole = false;          // false after a bad cell, a stop (analysisMode is "BREAK"), or a failure (told)
};

enum class TestedCells { all, lowerTriangle };  // the others of a triangle are 0

// More records than `most` are a subscript fault of that analysis.
DataMatrix readDataMatrix(const std::vector<std::int16_t>& items, TextView analysis, TestedCells tested,
                          std::optional<std::size_t> most = {});

}  // namespace zelko
