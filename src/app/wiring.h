// Puts the floors together: every folder registers its commands and forms, and the program starts.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// Once, before anything is shown.
void wireProgram();
// Shows the first form: the table that the command line names, or the start screen. `table` as the command line has it.
void startProgram(TextView table);

}  // namespace zelko
