// The clipboard, which is the speech channel: what is put there stands, or the caller is told.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// Counts what the display refuses; once, before the first text is set.
void watchClipboardRefusals();

bool readClipboard(Text& out);
bool emptyClipboard();
// Set again until the display takes it.
bool putOnClipboard(TextView text);

}  // namespace zelko
