// Figures of a table: plain decimals of one width, in whatever notation the value is.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// A number's text without an exponent and without blanks: "3.5E-02" and "3.5D-02" give "0.035", "1E+20" 1 and twenty
// zeros. Zeros that say nothing are dropped.
Text plainDecimal(TextView number);
Text plainDecimal(double value);

// With that many decimals, the blanks in front; a value that is too wide keeps its digits and takes more columns.
Text figure(double value, std::size_t width, std::size_t decimals);

}  // namespace zelko
