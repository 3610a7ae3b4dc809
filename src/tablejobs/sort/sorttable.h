// The table of sort keys as it is typed, checked.
#pragma once

#include <vector>

#include "tablejobs/sort/sortrange.h"

namespace zelko {

struct SortRow {
  Text item, direction;  // as typed
};

// The wrong cell of the first row that has one.
struct SortTableFault {
  Text message;
  int row = 0;             // from 0
  bool direction = false;  // it is the direction
};

// Rows that are blank at the end don't count, but for the first one. The message is empty where all rows are right;
// `keys` has them then.
SortTableFault checkSortTable(const std::vector<SortRow>& rows, std::vector<SortKey>& keys);

}  // namespace zelko
