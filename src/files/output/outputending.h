// How a job that left a new table ends: in which of the two files the user works on.
#pragma once

#include "platform/text/text.h"

namespace zelko {

class Form;

// "<<<<<元のﾌｧｲﾙで作業しますか>>>>?" and the question, with yes, no and cancel: msgAnswer holds the answer.
void askWhereToWork(TextView question, TextView title);

// All files are closed and the output becomes the open table, on its first cell; the dialog goes. False after a message
// where it can't be opened: the old table is open again.
bool workInOutput(const Text& fullName, Form& dialog);

// Whether a file may take output: not read-only, no folder, and nothing of another table is lost by it. For a table
// whose rewrite was interrupted the user is asked whether to finish that first.
bool mayTakeOutput(const Text& fullName);

}  // namespace zelko
