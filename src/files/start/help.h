// Help texts: a text file shown for reading line by line.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// Opens frmHelp on the file of that name in appDir; a message where it can't be read.
void showHelpFile(TextView name);

void registerHelp();

}  // namespace zelko
