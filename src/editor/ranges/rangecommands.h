// What is done to the block of a finished range: clearing, deleting, inserting. Each asks first, and refuses a
// read-only table with its notice.
#pragma once

namespace zelko {

// Del: the cells of a rectangle are blanked; records and items are taken out.
void rangeDelete();
// Ins: as many records or items as the range counts, before its first.
void rangeInsert();
// Blanks the cells of the block, whatever the kind of the range; without a range says how to choose one.
void clearRangeData();

void registerRangeCommands();

}  // namespace zelko
