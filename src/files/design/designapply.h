// From a checked design to the files: a new table, or another shape of the open one.
#pragma once

#include <vector>

#include "files/design/designcheck.h"

namespace zelko {

// The data file that is meant by what was typed: ".txt" behind it where it lacks that, a relative name in appDir.
// Empty where it has no stem.
Text tableNameTyped(TextView typed);

// Makes the table and opens it. Where files of that name exist the user has agreed: the item file is replaced, the
// records stay. False after a message; what was there is as before, and the table in edit is open.
bool makeTable(TextView dataFile, TextView memo, const std::vector<ItemLine>& items);

// Gives the open table the rows, and, where `withRecords`, all its records too; opens it again on record 1. False after
// a message or a stop: the table is as it was.
bool redesignTable(TextView memo, const std::vector<DesignRow>& rows, bool withRecords);

}  // namespace zelko
