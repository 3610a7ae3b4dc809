// Words in Latin letters, as Japanese ears know them.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// A run of half-width letters in katakana: the words of the program and of computers by a small list, Japanese
// names in Roman spelling by their syllables, everything else letter by letter.
Text latinKana(TextView word);

// The name of a half-width letter, of either case.
TextView letterName(char16_t letter);

}  // namespace zelko
