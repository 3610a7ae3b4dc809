// The cursor: the four moves and the jump.
#pragma once

#include <cstdint>

namespace zelko {

// What a move is made for. While a range is chosen it stores, shows and announces nothing.
enum class MoveFor { entry, range };

void nextItem(MoveFor what = MoveFor::entry);
void prevItem(MoveFor what = MoveFor::entry);
void nextRec(std::int16_t& item, MoveFor what = MoveFor::entry);
void prevRec(std::int16_t& item, MoveFor what = MoveFor::entry);
// The common form of a jump: commitBox, end of numbering, cursor, loadCache, dispAll, showCell.
void jumpTo(std::int32_t record, std::int16_t item);
// The same without storing: the caller has run commitBox and looked at the record count since.
void goTo(std::int32_t record, std::int16_t item);
// loadCache around curRec, `mode` empty, and unless `keepRange` is 1 the range dropped; then showCell, dispAll,
// showTitle.
void reloadCur(int keepRange = 0);

}  // namespace zelko
