// Looking at the items of a table before it is opened.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// Shows the item list of the table with that data file, under `name`. The open table, the second description and the
// read-only mark are as before when it returns; a file that is no table is told.
void showTableItems(TextView dataFile, TextView name);

}  // namespace zelko
