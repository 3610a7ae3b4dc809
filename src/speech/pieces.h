// A sentence taken apart: what rules read, and what is left to the dictionary.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/text/text.h"

namespace zelko {

struct Piece {
  enum class Kind : std::uint8_t {
    japanese,  // kanji, hiragana and katakana: the dictionary reads it
    written,   // kana that is spoken as it stands
    number,    // a bare number, kana ready
    word,      // kana ready: a counted number, a Latin word, the name of a sign
    pause,
    stop,
    question,
    blank,
  };
  Kind kind;
  Text surface;  // what stands for it in the text that the dictionary sees
  Text kana;     // empty for `japanese`
};

// `plain` is in plain spelling. With `nameAll` every sign is named, pauses too.
std::vector<Piece> piecesOf(TextView plain, bool nameAll);

}  // namespace zelko
