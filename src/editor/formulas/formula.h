// Formulas such as (@5+@)*2. Nothing is parsed: items become numbers, then the text itself is rewritten from the
// innermost bracket on, operator by operator, until one number is left. Every step passes through single precision and
// its printed form, and so does what goes wrong on the way; docs/formulas.md tells which results differ from school
// arithmetic.
//
// Division by zero, an overflow and an item number beyond the table throw a Fault; a missing operand is a halt, a Fault
// of its own that nothing here catches.
#pragma once

#include <optional>

#include "platform/text/text.h"

namespace zelko {

// The value; where brackets don't match, 0 and `text` becomes "error". Otherwise `text` stays.
double evalFormula(Text& text);

// Each "@" and the digits behind it replaced by the number in that item of the current record as it stands on disk; "@"
// alone is the current item. Uses row 1 of the cache.
Text expandItems(TextView text);

// The operand beside the operator at `position` (from 1), with its sign; "LsikiError" or "RsikiError" where no operator
// stands there.
Text leftOperand(TextView text, std::size_t position);
Text rightOperand(TextView text, std::size_t position);
float applyOp(TextView left, char16_t op, TextView right);

// `message` is empty where the text may be evaluated. The order of operators is not looked at.
void checkFormula(TextView text, Text& message);
// The same for the value of a condition: an "@" needs its number, and item 0 is one.
void checkNumExpression(TextView text, Text& message);

// For forms: nothing where the brackets don't match, and where a step is divided by zero or runs over. A halt passes
// through.
std::optional<double> formulaValue(TextView text);

}  // namespace zelko
