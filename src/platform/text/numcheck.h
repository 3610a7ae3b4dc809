// What counts as a number in a cell.
#pragma once

#include "platform/text/text.h"

namespace zelko {

inline constexpr int kBlankCell = -1;

// Of a trimmed text: 0 for a number (any text whose leading number is not zero, and digits with at most one point),
// -1 for an empty text, else the position of the first character that is neither digit nor first point. A number beyond
// the range of a double is no number; where it has digits alone the position is 1.
int numCheck(TextView text);

// Whether all of a text is one number, without blanks in it: sign, digits with at most one point, exponent. A number
// beyond the range of a double is none.
bool isWholeNumber(TextView text);

}  // namespace zelko
