// Kana between their half-width and full-width forms, and half-width text made full-width. The tables hold what they
// always held, odd results included: files and speech of the users are in step with them.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// Each full-width katakana becomes its half-width form: a voiced one two characters, "ム" one with a blank behind it,
// "デ" one with its mark doubled. Semi-voiced kana, "ヴ", "ー" and everything else stay.
Text toHalfKana(TextView text);
// Each half-width kana becomes its full-width form, one by one: the mark of a voiced one stays half-width behind the
// plain kana. "ﾑ" gets a blank behind it.
Text toFullKana(TextView text);
// Trimmed; then digits, letters and the signs that toHalfWidth narrows become full-width. "-" becomes "ー", which
// toHalfWidth leaves as it is.
Text toFullWidth(TextView text);

}  // namespace zelko
