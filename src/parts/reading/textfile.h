// A text file as one text for a box.
#pragma once

#include <optional>

#include "platform/text/text.h"

namespace zelko {

// All lines, Shift-JIS, each with CR LF behind it; nullopt where the file can't be read to its end.
std::optional<Text> readTextFile(TextView path);

// The text as it stands, Shift-JIS, in place of what is there. False where a byte did not reach the file.
bool writeTextFile(TextView path, TextView text);

}  // namespace zelko
