// A text of a window stored under a name that is asked for.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// Asks for the name, `preset` in the folder of the reports at first. A file that stands there is replaced after a
// question only; a file of the program or of a table is refused. What came of it is said.
void saveTextAs(TextView text, TextView preset);

// Whether a file of that name may be written: one of the program or of a table is refused (told), one that stands there
// is asked about.
bool mayReplaceFile(const Text& path, TextView title);

}  // namespace zelko
