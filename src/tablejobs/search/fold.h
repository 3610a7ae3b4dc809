// Spellings of one word brought together, for a search that does not care how it was typed.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// Katakana becomes hiragana, half-width kana full-width first, a voicing mark one character with the kana in front of
// it; full-width signs, digits, letters and blanks become half-width; an old or popular form of a kanji becomes the
// common one. The case of letters stays. Every character of the result stands for one of the text, or for a kana and
// its mark.
Text folded(TextView text);

}  // namespace zelko
