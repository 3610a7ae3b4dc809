// The pointer of a move or copy: where it may stand, and what it says.
#pragma once

#include <cstdint>

#include "platform/forms/keys.h"
#include "platform/text/text.h"

namespace zelko {

// What the destination is pointed at for.
enum class Pointing { records, items, cellsToCopy, cellsToMove };

// One key that moves the pointer, curRec or curItem and moveTo with it. False for a key that belongs to no pointer; a
// beep where it can't go there. `sentence` is what it says when it stands somewhere else, else empty.
bool movePointer(Pointing what, const KeyEvent& key, Text& sentence);

}  // namespace zelko
