// What a character is, in words that tell it from every other: for who writes by ear and has to choose among kanji that
// sound alike. Needs no dictionary at run time; docs/descriptions.md tells where the words come from.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// "学校のガク、まなぶ", "ひらがなのア", "半角大文字エー". `character` is one character, a pair of surrogates included;
// empty gives empty. Any two kanji of code page 932 get different words, that also sound different.
Text characterDescription(TextView character);

// The codes place by place and, of a kanji, the strokes: "シフトJIS 8 A 7 7、ユニコード 5 B 6 6、8画".
Text characterCode(TextView character);

bool isDescribedKanji(TextView character);

}  // namespace zelko
