// The report on Spearman's rank coefficients between two runs of items.
#pragma once

#include <cstdint>

#include "platform/forms/form.h"
#include "platform/text/text.h"

namespace zelko {

struct ItemRun {
  std::int16_t first = 1, last = 1;
};

// Each item of the one run with each of the other, over firstRecord to lastRecord. Ends with AnalysisRun::finish(form);
// a report that can't be opened, and a stop, are told.
void runSpearman(Form& form, ItemRun group1, ItemRun group2, TextView folder, bool anew);

}  // namespace zelko
