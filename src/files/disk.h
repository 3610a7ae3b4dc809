// The spoken file picker.
#pragma once

#include "platform/text.h"

namespace zelko {

// Shows frmDISK for the job that `mode` names (empty or "YOMIKOMI" opens a table).
void showFilePicker();

// Asks for a name and makes a folder of it under `parent`, spoken; false where none was made.
bool makeFolder(TextView parent);

void registerFilePicker();

}  // namespace zelko
