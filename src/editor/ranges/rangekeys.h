// Ranges as the input box sees them: beginning one by key, and the keys on a finished one.
#pragma once

#include "platform/forms/keys.h"

namespace zelko {

// 1 rectangle, 2 whole records, 3 whole items. Refused with a beep on the new line, with a notice in the card view.
void startRange(int kind);
// A key while a finished range is at hand; false when it has no meaning there.
bool finishedRangeKey(const KeyEvent& key);
// Mask hidden, range variables 0, the cell shown again with an empty box that has the focus.
void dropRangeAndShow();

// Whether the digit of the keypad can work on the held range: 0 wants a single record across several items, 1 a single
// item across several records.
bool sumFitsRange(int code);
// The row and the column sum, which read the range; the other digits work at the cursor.
bool isPlainSum(int code);
// The digit on a finished range, which is dropped; a beep where it does not fit.
void sumOnFinishedRange(int code);

}  // namespace zelko
