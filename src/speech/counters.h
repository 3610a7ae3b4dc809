// Counters: how a number and the word behind it change each other's sound (イッカイ, サンボン, ツイタチ).
#pragma once

#include "platform/text/text.h"

namespace zelko {

struct CountedNumber {
  std::size_t length = 0;  // units of the counter in the text; 0: none stands there
  Text kana;               // number and counter together
};

// `digits` is the whole number ("12", no leading zero; empty for a decimal fraction), `number` its kana, and the
// counter is looked for at `at` (from 0) of a text in plain spelling. `afterMonth` tells whether a month was named
// before.
CountedNumber counted(TextView digits, const Text& number, TextView text, std::size_t at, bool afterMonth);

bool counterAt(TextView text, std::size_t at);

}  // namespace zelko
