// The beginning of a move or copy: from a finished range to the dialog in which the destination is pointed at.
#pragma once

namespace zelko {

// -1 left or up, 1 right or down. A beep where there is nothing to move past; a block that covers nearly all is dropped
// with it.
void startItemMove(int direction);
void startRecordMove(int direction);
// A rectangle is held; its cells are moved, or copied.
void startDataMove(bool moves);

void registerRangeMoves();

}  // namespace zelko
