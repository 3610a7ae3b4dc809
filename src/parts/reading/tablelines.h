// A line of a printed table taken apart into its cells.
#pragma once

#include <cstddef>
#include <vector>

#include "platform/text/text.h"

namespace zelko {

struct TableToken {
  std::size_t start = 0, length = 0;  // characters from the start of the line
  std::size_t left = 0, right = 0;    // columns: Shift-JIS bytes, `right` behind the last
};

// Parted by bars, half-width and full-width blanks; an open bracket holds them together ("X( 1 )", "[*   ]"). What only
// parts cells (":", ",", "I", "-") is none, and a rule has none.
std::vector<TableToken> tokensOf(TextView line);

// The one that shares most columns with that stretch, else the one whose right end is nearest; null for an empty list.
const TableToken* nearestToken(const std::vector<TableToken>& tokens, std::size_t left, std::size_t right);

// A figure in a table, with a "%" or without; not a name.
bool isFigure(TextView cell);

}  // namespace zelko
