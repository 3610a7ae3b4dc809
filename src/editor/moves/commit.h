// How typed text becomes part of a record: what the moves and the input box share.
#pragma once

#include "editor/main/state.h"

namespace zelko {

// Writes the input box into the current row; only flushRec reaches the disk. A cell that was copied to the box and not
// edited keeps its bytes: not every code comes back from its text as it was.
void commitCell();
// The cell of the cursor into the box.
void fillBoxWithCell();
// If the box holds text (trimmed): commitCell, flushRec, box emptied. Else flushRec. False where the user held the
// store back: the cursor stays.
bool commitBox();

// A move from the input box runs: the box that is being cleared is not echoed.
class MoveScope {
 public:
  MoveScope() : kept_(moveFlag) { moveFlag = 1; }
  ~MoveScope() { moveFlag = kept_; }
  MoveScope(const MoveScope&) = delete;
  MoveScope& operator=(const MoveScope&) = delete;

 private:
  std::int16_t kept_;
};

}  // namespace zelko
