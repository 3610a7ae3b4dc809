// A text of a window stored under a name that is asked for.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// Asks for the name, `preset` in the folder of the reports at first. A file that stands there is replaced after a
// question only; a file of the program or of a table is refused. What came of it is said.
void saveTextAs(TextView text, TextView preset);

}  // namespace zelko
