// Where the figures of pairs stand in a report, so that each is named when its lines are walked cell by cell.
#pragma once

#include <initializer_list>
#include <vector>

#include "parts/reading/tablewalk.h"

namespace zelko {

class PairCells {
 public:
  // A line of that pair, which begins at that position of the report: what the pair's name is followed by, for each of
  // its cells ("英語と数学" and u"のＮ"); the literals live on.
  void add(std::size_t start, TextView line, std::int16_t i, std::int16_t j, std::initializer_list<TextView> suffixes);
  CellNames names() const;

 private:
  struct Cell {
    std::size_t position = 0;
    std::int16_t i = 0, j = 0;
    TextView suffix;
  };
  std::vector<Cell> cells_;  // in the order of their positions
};

}  // namespace zelko
