// Sentences about cells: where the cursor is, what a cell holds, what was typed into it.
#pragma once

#include "platform/text/text.h"

namespace zelko {

void talkCell();   // the current cell
void talkRange();  // the current record, or the held stretch of items

// The announcement of a move, composed from curRec and curItem, through the gate and talkNow.
void announceCell();
// The pieces of the report of the whole state (mnuVC); `inputText` is what the input box holds.
Text stateReport(TextView inputText);
// The current cell, on return to the input box: level 2 puts the two boxes' texts into the head.
void talkReturn(TextView head, TextView recordBox, TextView itemBox);

// Words for an edit in the input box, with the bytes left in the current item.
// " ざん", the bytes that the current item has left beside `text`, "バイト".
Text bytesLeft(TextView text);
Text diffTalk(TextView before, TextView after);

// The trimmed cell of the current record and item; record and item as decimals; the trimmed name.
Text currentCell();

}  // namespace zelko
