// The frequency list of one item as it stands in the report.
#pragma once

#include <vector>

#include "platform/text/text.h"
#include "stats/numbers/frequencies.h"

namespace zelko {

// The second line of an item is the heading of its list; the window has a full-width blank where the file has two.
Text frequencyHeading(bool inWindow);

// "[", the text in ten Shift-JIS bytes, "]", count, percent, bar.
Text frequencyRow(const numbers::Frequency& row, int n);

// The rule above and below a list.
Text frequencyRule();

}  // namespace zelko
