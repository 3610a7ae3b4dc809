// One thing to say: the words, and what the tags among them ask of the voice.
#pragma once

#include <optional>

#include "platform/text/text.h"

namespace zelko {

struct Utterance {
  Text words;                // without tags
  std::optional<int> speed;  // 0 to 9, of the tag "＜速さ５＞"; the last one holds
  std::optional<int> rate;   // -100 to 100, as the speech service counts
  std::optional<int> pitch;  // -100 to 100
};

// The kana that a voice says in five minutes at this rate, without one at the middle: the longest sentence that makes
// sense. By the stock engine, which says 5, 10 and 26 a second at the rates -100, 0 and 100.
std::size_t longestKana(std::optional<int> rate);

// A sentence of the clipboard channel. A speed sets the rate evenly, 0 the slowest; 4 and 5 are the middle.
Utterance clipboardUtterance(TextView sentence);

// A sentence of the talking character, with its tags "\Spd=1500\" and "\PIT=0\". Without a tag the voice is as the
// user's settings have it.
Utterance agentUtterance(TextView sentence);

}  // namespace zelko
