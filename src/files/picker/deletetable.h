// Deleting what the picker shows.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// Both files of a table, after a question; a missing data file is no hindrance. The table in edit is refused. True when
// both are gone; else the user was asked or told.
bool deleteTable(TextView dataFile, TextView itemFile);

// One file, after a question.
bool deleteLayout(TextView file);

// Whether the two names lead to one file, by links too.
bool isSameFile(TextView one, TextView other);

}  // namespace zelko
