// What a new table must not take from another one. The two files of a table are told apart by a letter in front of the
// name only: the data of "kakeibo" lie where the item file of a table "akeibo" would be.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// Whether the item file of the table with that data file would lie where another table has its records.
bool itemFileIsDataOfOther(TextView dataFile);

// Whether making, or lengthening, a table of that name would destroy files of another one, or of the program itself:
// where that is so, or where the data file is itself an item file.
bool takesFilesOfOther(TextView dataFile);

// Whether the name is that of a table whose rewrite was interrupted, once the user has refused to have it finished: a
// new file of that name would bury the records that wait for it.
bool waitsForItsRecords(TextView dataFile);

}  // namespace zelko
