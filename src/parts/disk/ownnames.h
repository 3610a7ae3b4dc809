// The names that the program uses for its own files.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// Whether a table or folder of that name (a full or a bare one, with or without ".txt", in any case of its letters)
// would take the place of a file that the program makes for itself, or would have its item file there.
bool isOwnName(TextView name);

}  // namespace zelko
