// A telephone number among the characters of cells.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// In a cell that is taken for a number: in half width, the run of digits and hyphens around the first hyphen; without a
// hyphen all its digits. Empty where there are none.
Text numberOfCell(TextView cell);
// In any other text: 9 to 11 digits that begin with 0, hyphens and brackets between them. Empty where there are none.
Text numberInText(TextView text);

// Digit by digit, for the ear, without brackets: "0､3､の､1".
Text spokenNumber(TextView number);
// "tel:" with the digits and a leading +; empty for a number without a digit.
Text linkOf(TextView number);

}  // namespace zelko
