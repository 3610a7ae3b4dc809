// Numbers as text, both ways.
#pragma once

#include <cstdint>

#include "platform/text/text.h"

namespace zelko {

// The longest prefix that makes a number; 0 where there is none. Blanks, tabs and line feeds are skipped anywhere;
// the exponent's letter is E or D in either case; full-width digits are none. "&H" and "&O" without a sign are read
// too: up to 4 hex digits (16 octal bits) as a signed 16-bit value, more as a signed 32-bit one, further digits are
// ignored. Faults with an overflow beyond the range of a double; below it gives 0.
double val(TextView text);

// The ordinary numeric text form: a leading blank in place of a plus sign, 15 significant digits (7 for a
// single), no zero before the point. Fixed while the places fit, else d.dddE+nn. Faults with an overflow where the
// value is no finite number.
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
