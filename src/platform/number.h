// Numbers as text, both ways.
#pragma once

#include <cstdint>

#include "platform/text.h"

namespace zelko {

// The longest prefix that makes a number, blanks skipped anywhere; 0 where there is none. "&H" and "&O" are
// read too. Faults with an overflow beyond the range of a double.
double val(TextView text);

// The ordinary numeric text form: a leading blank in place of a plus sign, 15 significant digits (7 for a
// single), no zero before the point.
Text str(double value);
Text str(float value);
Text str(std::int64_t value);
inline Text str(int value) { return str(static_cast<std::int64_t>(value)); }

// The trimmed form, as it is spoken and shown.
Text decimal(std::int64_t value);

// Rounded half to even; faults with an overflow where the value does not fit.
std::int16_t toInt16(double value);
std::int32_t toInt32(double value);

}  // namespace zelko
