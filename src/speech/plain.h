// The first step from a sentence to its sound: one spelling for each sign, so that the rules behind it stay short.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// Full-width letters, digits and signs become half-width ones; circled digits, Roman numerals and squared units are
// written out; rare forms of a kanji become the common one. A line end or a tab becomes a full-width blank (a
// pause); other control characters and lone surrogates go. Half-width kana stays: it is a spelling of sounds.
Text plainSpelling(TextView text);

// Half-width kana with its voiced marks, as full-width katakana. Other characters pass.
Text fullWidthKana(TextView text);

bool isHalfWidthKana(char16_t unit);  // with its long mark and voiced marks, without its punctuation
bool isKatakana(char16_t unit);       // with the long mark
bool isHiragana(char16_t unit);
bool isKanji(char16_t unit);
bool isDigit(char16_t unit);   // 0 to 9, half-width
bool isLetter(char16_t unit);  // a to z, A to Z, half-width

}  // namespace zelko
