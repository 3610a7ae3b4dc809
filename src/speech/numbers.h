// Numbers as a Japanese speaker says them, for engines that read "123" place by place.
#pragma once

#include "platform/text/text.h"

namespace zelko {

struct SpokenNumber {
  std::size_t length = 0;  // units taken from the text; 0: no number begins there
  Text kana;
  bool counted = false;  // a counter or a unit was taken with it
};

// The number that begins at `at` (from 0) of a text in plain spelling, with its sign, decimals, thousands commas and
// counter ("3月", "-5", "1,234円"), or a whole group: date, time, telephone number, house number.
SpokenNumber readNumber(TextView text, std::size_t at);

// A number in kanji ("三百円", "二十日") that has at least two signs and a counter; others are left to the dictionary.
SpokenNumber readKanjiNumber(TextView text, std::size_t at);

Text wholeNumberKana(TextView digits);  // up to 16 digits by value, longer ones place by place
Text placesKana(TextView digits);       // as a telephone number is read

}  // namespace zelko
