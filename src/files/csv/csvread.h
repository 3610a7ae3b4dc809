// CSV in, as the picker starts it.
#pragma once

namespace zelko {

// The command csvREAD: the file that is chosen in the picker goes behind the records of the open table; the picker
// closes, and the counts are said.
void csvREAD();

}  // namespace zelko
