// The cursor: the four moves and the jump.
#pragma once

#include <cstdint>

namespace zelko {

void nextItem();
void prevItem();
void nextRec(std::int16_t& item);
void prevRec(std::int16_t& item);
// The common form of a jump: commitBox, end of numbering, cursor, loadCache, dispAll, showCell.
void jumpTo(std::int32_t record, std::int16_t item);
// The same without storing: the caller has run commitBox and looked at the record count since.
void goTo(std::int32_t record, std::int16_t item);
// loadCache around curRec, mode cleared, and unless `keepRange` is 1 the range dropped; then showCell, dispAll,
// showTitle.
void reloadCur(int keepRange = 0);

}  // namespace zelko
