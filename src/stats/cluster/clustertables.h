// The report of a clustering, as its lines: a step with its matrix, and the summary.
#pragma once

#include <vector>

#include "platform/text/text.h"
#include "stats/numbers/clustering.h"

namespace zelko {

// The step that was chosen last, before its merge: the pair, its distance, and the lower triangle of the distances in
// blocks of columns; "*" stands for objects that are part of another by then.
std::vector<Text> outResult(const numbers::Clustering& clustering);

// A line a step, a form feed after every 41.
std::vector<Text> outSry(const std::vector<numbers::Merge>& merges);

}  // namespace zelko
