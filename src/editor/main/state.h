// The editor's own words, beside the cursor and the table.
#pragma once

#include <array>
#include <cstdint>

#include "platform/text/text.h"
#include "store/table/table.h"

namespace zelko {

extern std::int16_t viewKind;                          // 0 sheet, 1 card, 2 grid view
extern std::int16_t allItemsOn;                        // 1: the cursor visits all items; 0: only entry items
extern std::array<std::int16_t, kMaxItems> entryItem;  // 1 marks an entry item
extern std::int16_t inputLimit;                        // 0: the item's width; 1..249: that many bytes
extern std::int16_t limitAside;                        // the suspended limit; 0 none
extern std::int16_t autoIdOn;                          // 1: the ID cell is numbered on moving
extern float autoIdValue;
extern Text idText;            // the stamped number while the cursor stands on item 0
extern std::int16_t moveFlag;  // 1 while a move from the input box runs: no echo
extern std::int32_t charTwips, boxCharTwips;
extern Text lastCleared;  // the cell last blanked by mnuCTRLD
extern Text lastInput;    // the input box at the last change
extern int lastInputLen;
extern std::int16_t inputDrop;   // 1: a change empties the box instead of speaking
extern bool caretGuard;          // caretEnd is at work: key-down stands still
extern double sumMark;           // 99999 while a sum on a range is asked for
extern std::int16_t listCaller;  // which box the item list fills

void resetEditor();

}  // namespace zelko
