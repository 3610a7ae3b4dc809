// Making a folder by ear, for every form that has a folder box.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// Asks for a name and makes a folder of it in `parent`. False where none was made: nothing was entered, or the user was
// told why not.
bool makeFolder(TextView parent);

}  // namespace zelko
