// What the rows and columns of a cross report stand for, so that its tables can be walked cell by cell.
#pragma once

#include <vector>

#include "parts/reading/tablewalk.h"

namespace zelko {

class CrossNames {
 public:
  // The lines of a pair, which begin at that position of the report. Columns are the categories of `columnItem`.
  void add(std::size_t start, const std::vector<Text>& lines, TextView columnItem, TextView rowItem);
  CellNames names() const {
    return [lines = lines_](auto... asked) { return nameOf(lines, asked...); };
  }

 private:
  struct Line {
    std::size_t start = 0;
    Text row, columnItem;
    bool isHead = false;  // the categories of the columns
  };
  static Text nameOf(const std::vector<Line>& lines, NamedPart part, TextView name, std::size_t position);

  std::vector<Line> lines_;  // in the order of their starts
};

}  // namespace zelko
