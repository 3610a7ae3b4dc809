// Cells of tables that are drawn in characters.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// Without its leading blanks, then blanks in front up to that many half-width characters. A longer text stands whole.
Text rightAligned(TextView text, std::size_t columns);
// The same with the bar that ends a cell.
Text barred(TextView text, std::size_t columns);
Text repeated(TextView piece, std::size_t times);

}  // namespace zelko
