// The commands that give the open table another order or another shape. Each rewrites the data file as a whole, with
// the progress dialog and its stop button, and ends in reloadCur (range dropped, mode cleared). What the user is asked
// first is the caller's business; the box is committed and flushRec has run before.
//
// True when the table was changed; false when the table is as it was: it is read-only (told), the user stopped the
// work, the change has no sense (a beep) or a file failed (told).
#pragma once

#include <cstdint>

#include "platform/text/text.h"

namespace zelko {

// `count` blank records before curRec, which may be the new line. Path and drive are those of the open table.
bool insertRecords(std::int32_t count, TextView path, TextView drive);
// Writes the records to the clip file, then deletes them. A stop during the clip copy stops the whole command.
bool deleteRecords(std::int32_t first, std::int32_t last);
// The block goes before record `destination`, which lies outside of it; one more than the record count is the end.
// Mode stays "moverecord" until the end.
bool moveRecords(std::int32_t first, std::int32_t last, std::int32_t destination, TextView path, TextView drive);

// As many items as the range counts before the first: one byte wide, left-justified, named by their number. Beyond 254
// items or bytes a beep.
bool insertItems(std::int16_t first, std::int16_t last);
// The ID item and all items together can't be deleted: a beep.
bool deleteItems(std::int16_t first, std::int16_t last);
// The block goes before item `destination`, which lies outside of it; one more than itemCount is the end.
bool moveItems(std::int16_t first, std::int16_t last, std::int16_t destination);

// Blanks the cells of a rectangle in place, after writing them to the clip file.
bool rangeClear(std::int32_t rec1, std::int32_t rec2, std::int16_t item1, std::int16_t item2);

// The item one byte wider or narrower, in the description and the cache only; frmFLN is the form around them.
void widenItem(std::int16_t item);
void narrowItem(std::int16_t item);
// Gives all records and the item file the widths of the description. No stop.
bool applyWidth();

// Menu entries and frmFLN.
void registerRewrites();

}  // namespace zelko
