// How typed text becomes part of a record: what the moves and the input box share.
#pragma once

#include "editor/main/state.h"

namespace zelko {

// Writes the input box into the current row; only flushRec reaches the disk.
void commitCell();
// If the box holds text (trimmed): commitCell, flushRec, box emptied. Else flushRec.
void commitBox();

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
