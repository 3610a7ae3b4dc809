// The lines of a cross report on one pair of items: result, three tables, and the 2 by 2 tests of the cells.
#pragma once

#include <vector>

#include "platform/text/text.h"
#include "stats/numbers/crosstable.h"

namespace zelko {

// "■1:英語×2:数学": names are cut to 10 characters.
Text crossHeading(int item1, TextView name1, int item2, TextView name2);

// The result, or why there is none; empty where there is nothing to test (one category on a side).
Text crossResult(const numbers::CrossTest& test);

// All lines behind the heading. The tests of the cells stand only where the test of the table ran.
std::vector<Text> crossLines(const numbers::CrossTable& table, const numbers::CrossTest& test);

}  // namespace zelko
