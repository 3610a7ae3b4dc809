// The classes of a distribution as a table.
#pragma once

#include <vector>

#include "platform/text/text.h"
#include "stats/numbers/distribution.h"

namespace zelko {

// Heading, rule, a row a class, rule.
std::vector<Text> classTable(const numbers::ClassEdges& edges, const numbers::ClassCounts& freq);

// A class in a sentence: its limits, its mark, its count.
Text classSentence(const numbers::ClassEdges& edges, const numbers::ClassCounts& freq, int k);

}  // namespace zelko
