// From a sentence of the program to what an engine that knows only kana can say.
#pragma once

#include "platform/text/text.h"
#include "speech/dictionary.h"

namespace zelko {

// Katakana, blanks between words, "、" for a pause, "。" and "？" at the end of a sentence: nothing else, apart from
// kanji where no dictionary is installed. Kanji are read by the dictionary; numbers with their counters, Latin words
// and signs by rules. Half-width kana is the program's own spelling of sounds and stays as written. A sentence of
// signs alone has them named, so that no character is mute; blanks alone give an empty text. Takes any units, lone
// surrogates and control characters included, in a time that grows evenly with them. More than `limit` kana are cut at
// a word, and "イカ リャク" is said for the rest.
Text kanaForSpeech(TextView sentence, Dictionary& dictionary, std::size_t limit = Text::npos);

}  // namespace zelko
