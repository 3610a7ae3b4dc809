// The input limit: how many bytes fill a cell.
#pragma once

#include "platform/text/text.h"

namespace zelko {

void setLimit();  // sets or clears inputLimit
// Space and End on an empty box: puts a limit aside, or brings it back, and says so; nothing without one.
void switchLimitAside();
// The text of Label8 at the opening of a table.
Text limitCaption();

}  // namespace zelko
