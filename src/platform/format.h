// Format patterns of numbers and texts, and pattern match.
#pragma once

#include "platform/text.h"

namespace zelko {

// Numeric patterns of one to four sections, and the named ones. Rounds half away from zero on the decimal
// text of the value.
Text format(double value, TextView pattern);
// Text patterns: "@" "&" "<" ">" "!".
Text formatText(TextView text, TextView pattern);

// "*" any run, "?" one character, "#" one digit, "[abc]", "[a-z]", "[!abc]". A malformed list is a fault.
bool likeMatch(TextView text, TextView pattern);

}  // namespace zelko
