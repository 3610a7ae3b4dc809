// Where the user is: the cursor, the range, and the word that says what the editor is in the middle of.
#pragma once

#include <cstdint>

#include "platform/text/text.h"

namespace zelko {

extern std::int32_t curRec;   // 1..record count + 1
extern std::int16_t curItem;  // 0..itemCount

// What the program is in the middle of: empty in plain entry, "HTYU" while a range is being chosen, and so on.
// Published for those who look at the program from outside; who begins something sets and clears it, and nobody
// branches on it.
extern Text mode;

// 0 none, 1 rectangle, 2 whole records, 3 whole items. The first of a pair is the anchor and may be above the second.
extern std::int16_t rangeKind;
extern std::int32_t rangeRec1, rangeRec2;
extern std::int16_t rangeItem1, rangeItem2;
extern std::int32_t moveTo;  // the destination being pointed at

inline constexpr std::uint16_t kNoItem = 65535;
extern std::uint16_t spItem;  // the always-displayed item, or kNoItem
extern bool spItemIsRead;     // the menu mnuJY: moves read the always-displayed item too

void dropRange();    // the five range variables become 0
void resetCursor();  // everything in this header as at the start

}  // namespace zelko
