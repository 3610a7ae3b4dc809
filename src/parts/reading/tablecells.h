// A line of a printed table taken apart: the name of its row, and its values with the columns that they stand in.
#pragma once

#include <cstddef>
#include <vector>

#include "platform/text/text.h"

namespace zelko {

struct PrintedCell {
  std::size_t at = 0;               // characters from the start of the line
  std::size_t col = 0, endCol = 0;  // half-width columns, the end behind the last one
  Text text;
};

struct PrintedLine {
  enum class Kind { blank, rule, words, values };
  Kind kind = Kind::blank;
  Text name;                       // of a line of values: what stands before the first one
  bool bars = false;               // cells are parted by "|"
  std::vector<PrintedCell> cells;  // of a line of values the values, else all words
};

// Values are numbers, percents, and stars in their place; behind the first one nothing else may stand but "|", ":" and
// bars of signs. What stands in brackets is one word, and so are the words of a name.
PrintedLine printedLine(TextView line);

// The word of a heading that stands above the cell: the one that shares most columns with it, else the nearest; empty
// where the heading has none.
Text headingAbove(const PrintedLine& heading, const PrintedCell& cell);

}  // namespace zelko
