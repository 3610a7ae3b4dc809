// How a job that left a new table ends: in which of the two files the user works on.
#pragma once

#include "platform/text/text.h"

namespace zelko {

class Form;

enum class WorkIn {
  source,  // yes
  output,  // no
  again,   // cancel: where the job has nothing to do again, as yes
};
// "<<<<<元のﾌｧｲﾙで作業しますか>>>>?" and the question, with yes, no and cancel; msgAnswer holds the answer too.
WorkIn askWhereToWork(TextView question, TextView title);

// All files are closed and the output becomes the open table, on its first cell; the dialog goes. False after a message
// where it can't be opened: the old table is open again.
bool workInOutput(const Text& fullName, Form& dialog);

// The whole ending of a job whose dialog is still open: the question, then the output as the open table, or the source
// again on its cell. `mode` is empty then.
void endInOutput(const Text& fullName, Form& dialog, TextView question, TextView title);

// Whether a file may take output: not read-only, no folder, and nothing of another table is lost by it. For a table
// whose rewrite was interrupted the user is asked whether to finish that first.
bool mayTakeOutput(const Text& fullName);

}  // namespace zelko
