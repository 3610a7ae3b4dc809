// The small commands that work on one cell, one record, or the way the cursor walks.
#pragma once

#include "platform/forms/keys.h"
#include "platform/text/text.h"

namespace zelko {

// Keypad digit 96..105: row sum, column sum, scores, formulas. Any other code beeps.
void sumKey(int code);
// The keypad digit that Ctrl and a digit stand for, of the keypad or of the upper row (many keyboards have no keypad);
// 0 for any other key.
int sumKeyOf(const KeyEvent& key);
// Keypad 0 or 1 on the held range: the sum is offered to the clipboard. True where it is there now, and heard.
bool sumKeyOnRange(int code);

void idAuto();    // numbering of the ID item on or off
void setLimit();  // sets or clears inputLimit
// Space and End on an empty box: puts a limit aside, or brings it back, and says so; nothing without one.
void switchLimitAside();
// The text of Label8 at the opening of a table.
Text limitCaption();

void shiftLeft(int item);   // the cells behind the item, one item to the left, each fitted to its new item
void shiftRight(int item);  // a blank at the item; the bytes behind it move right, whatever their borders

}  // namespace zelko
