// Format patterns of numbers and texts, and pattern match.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// Numeric patterns of one to four sections, and the named ones in any case of their letters. Rounds half away from
// zero on the 15-digit decimal text of the value. Any pattern gives a text:
// - Without a pattern, and as "General Number", the text is that of str() with a zero before a bare point.
// - An empty second or third section stands for the first; a "-" is set in front of it where the value is negative.
// - A section without a digit place prints its literals alone; an open quote reaches to the end.
// - The sign belongs to the value: -0.001 under "0.00" is "-0.00".
Text format(double value, TextView pattern);

// Text patterns: "@" "&" "<" ">" "!". Every other character stands, "\" and quotes too.
Text formatText(TextView text, TextView pattern);

// "*" any run, "?" one unit, "#" one digit (half-width), "[abc]", "[a-z]", "[!abc]". "[]" matches nothing and takes
// nothing, "[!]" is the mark itself. A list without its end, or a range that runs backwards, is a fault.
bool likeMatch(TextView text, TextView pattern);

}  // namespace zelko
