// The cursor: showing a cell, storing what was typed, and the four moves.
#pragma once

#include <cstdint>

#include "platform/text/text.h"

namespace zelko {

// Fills the controls of Form1 for that cell.
void showCell(float record, float item, TextView preset, TextView spare);
// Repaints the view from the cache and gives the input box the focus when no mode forbids it.
void dispAll(std::int16_t& item);
// Writes the input box into the current row; only flushRec reaches the disk.
void commitCell();
void nextItem();
void prevItem();
void nextRec(std::int16_t& item);
void prevRec(std::int16_t& item);
// loadCache around curRec, mode cleared, and unless `keepRange` is 1 the range dropped; then showCell, dispAll,
// showTitle.
void reloadCur(int keepRange = 0);
// Moves the caret of the focused box to the end of its text; handlers of keys stand still meanwhile.
void caretEnd(TextView text);
// The running ID number into the ID cell of the current row.
void stampId();

// If the box holds text (trimmed): commitCell, flushRec, box emptied. Else flushRec.
void commitBox();
// The common form of a jump: commitBox, end of numbering, cursor, loadCache, dispAll, showCell.
void jumpTo(std::int32_t record, std::int16_t item);
// The same without storing: the caller has run commitBox and looked at the record count since.
void goTo(std::int32_t record, std::int16_t item);
// Empties the input box without any sentence and clears the echo memory.
void emptyInputBox();
// The program's own text into the input box: it is echoed as an edit and never committed by itself. All floors fill the
// box through this.
void fillInputBox(TextView text);

}  // namespace zelko
