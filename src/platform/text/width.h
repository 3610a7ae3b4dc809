// Full-width characters of typed input brought to their half-width form.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// Digits, letters, the common signs, the ideographic blank and the Japanese punctuation; everything else stays.
Text toHalfWidth(TextView text);
// Trimmed, and without any half-width or ideographic blank inside.
Text removeBlanks(TextView text);

}  // namespace zelko
