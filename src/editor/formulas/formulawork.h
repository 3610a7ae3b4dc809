// What the sources of the formula evaluator share; nobody else includes it.
#pragma once

#include "platform/fault.h"
#include "platform/text/text.h"

namespace zelko {

// A step that can't be taken ends the program.
[[noreturn]] void haltFormula();
bool isHalt(const Fault& fault);

// Digits, point and exponent from one end to the other, as str writes them.
bool isOneNumber(TextView text);

}  // namespace zelko
