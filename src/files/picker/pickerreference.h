// A table that serves another as a reference: its description goes into the second set.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// Takes the table of that data file as the reference, and hands over to the command "REF". The table in edit is
// refused.
void refFileacs(TextView dataFile);

// Reads the item file of a reference into the second set, with its name in otherDrive and otherPath. `error` is empty,
// or "error" after a message; the table in edit is open either way.
void refjinput(TextView dataFile, Text& error);

}  // namespace zelko
