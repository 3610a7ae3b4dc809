// How the store tells the user of a failure.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// The speech pause, a beep, then the voice dialog.
void tellFailure(TextView text, TextView title);
// The notice that the data file is read-only, with the way to change that.
void tellReadOnly();
// The notice that a write did not reach the file.
void tellWriteError();
void tellReadError();

}  // namespace zelko
