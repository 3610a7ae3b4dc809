// Ctrl and a digit: sums, scores, formulas.
#pragma once

#include "platform/forms/keys.h"

namespace zelko {

// Keypad digit 96..105: row sum, column sum, scores, formulas. Any other code beeps.
void sumKey(int code);
// The keypad digit that Ctrl and a digit stand for, of the keypad or of the upper row (many keyboards have no keypad);
// 0 for any other key.
int sumKeyOf(const KeyEvent& key);
// Keypad 0 or 1 on the held range: the sum is offered to the clipboard. True where it is there now, and heard.
bool sumKeyOnRange(int code);

}  // namespace zelko
