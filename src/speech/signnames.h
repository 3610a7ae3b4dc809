// The full names of signs, each its own: where a sentence may say マル for three of them, a description may not.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// Katakana, Japanese words and figures. Of a sign that is not known: "記号" and its code. Letters, digits and kana are
// no signs.
Text signName(char16_t sign);

}  // namespace zelko
