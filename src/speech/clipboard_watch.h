// The clipboard of the desktop, watched for new texts.
#pragma once

#include <functional>

#include "platform/text/text.h"

namespace zelko {

// Runs until the program is ended from outside and hands over each text put on the clipboard, equal ones again. An
// emptied clipboard is no text. False at once where no display can be reached.
bool watchClipboard(int argc, char** argv, const std::function<void(TextView)>& newText);

}  // namespace zelko
