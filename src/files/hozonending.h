// How a job that left a new table ends: in which of the two files the user works on.
#pragma once

#include "platform/text.h"

namespace zelko {

class Form;

// "<<<<<元のﾌｧｲﾙで作業しますか>>>>?" and the question, with yes, no and cancel: msgAnswer holds the answer.
void askWhereToWork(TextView question, TextView title);

// All files are closed and the output becomes the open table, on its first cell; the dialog goes. False after a message
// where it can't be opened: the old table is open again.
bool workInOutput(const Text& fullName, Form& dialog);

// The output file, closed by then, becomes what it was before a job that failed: `length` bytes, or gone where it did
// not exist (-1).
void takeBackOutput(const Text& fullName, std::int64_t length);
// The length of a file, for takeBackOutput; -1 where there is none.
std::int64_t lengthOfOutput(const Text& fullName);

// Whether a file may take output: not read-only, no folder, and not the item file of a table.
bool mayTakeOutput(const Text& fullName);

}  // namespace zelko
