// A text on paper, as it stands in a box: line under line, long lines wrapped, page after page.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// False after the notice that there is no printer.
bool printText(TextView text);

}  // namespace zelko
