// The run behind frmDISP: items read one by one, their lists into the report.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/text/text.h"

namespace zelko {

class Form;

// Counts those items over firstRecord to lastRecord and writes the report into the folder, `anew` in place of what is
// there. The form goes behind a whole report and behind a stop; it stays where the report can't be opened or written.
void reportFrequencies(Form& form, const std::vector<std::int16_t>& items, TextView folder, bool anew);

}  // namespace zelko
