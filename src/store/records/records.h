// Records and cells of the open table, and the cache around the cursor.
#pragma once

#include <string_view>

#include "store/table/table.h"

namespace zelko {

// File 1 divided by recLen, fractions dropped.
std::int32_t recCount();
// The same for any file that is open for random access.
std::int32_t recCountOf(int file);

// One record, as it stands on disk, into 256 bytes. False past the end or on a read failure (`out` is then blank).
bool getRec(int file, std::int32_t record, CacheRow& out);
// Writes the first 256 bytes of `bytes` (NUL behind a shorter string) at that record number. False when nothing was
// stored: the user is told, but once only while the same bytes fail at the same record, and in silence while the
// read-only mark stands.
bool putRec(int file, std::int32_t record, std::string_view bytes);
// From here on a failed write is told again, as after each loadCache: for the beginning of a key or command.
void forgetToldFailure();

// The cache row of the current record; a fault where the cache does not hold it.
CacheRow& currentRow();
// Any record as it stands before the user: the row of the cache, with what was typed into it, else from the disk.
CacheRow rowOf(std::int32_t record);
std::string_view rowBytes(const CacheRow& row);      // its first 254 bytes
void setRow(CacheRow& row, std::string_view bytes);  // cut to 254 or padded with blanks; CR LF behind

// Stores the current row where it differs from what was read: its changed cells, with CR LF behind the record. A row
// beyond the count that is blank or slashes is not stored, nor is one outside the cache. Where another program has
// changed the record or put another file in the place of this one, the user is asked whose record stays. False when
// nothing was stored: the write failed, or the user held it back.
bool flushRec();
// The last flushRec was held back by the user, who wants to stay where the cursor is.
bool storeWasHeldBack();
// Reloads the cache centred on `record`, whole, from disk: flushRec must come first. A record that can't be read is
// told, once, and its row is slashed; what is typed into that row is stored only where the record can be read by then.
void loadCache(std::int32_t record);
// The same with the rows outside the file slashed, from cacheBase on, as a table is opened.
void fillCache();
// One record back, keeping the other rows.
void cacheScrollUp();

// The cell of `item`, cut by bytes, blanks included; the line end of the record counts as two blanks.
Text cellOfRow(const CacheRow& row, int item);
// The same of row 1, where takeRow puts rowOf(record); any repaint may take another: the program's own code passes
// rows.
Text cellOfCur(int item);
void takeRow(std::int32_t record);
// The cell read from disk through row 0.
Text cellAt(std::int32_t record, int item);

// `text` in Shift-JIS padded with blanks or cut to `width` bytes: "L" keeps its left end, "R" its right end.
std::string paddedCell(TextView text, int width, TextView alignment);
// The same for bytes: `right` keeps and fills from the right end.
std::string paddedBytes(std::string_view bytes, int width, bool right);
// Puts the padded cell into the row; only the bytes of that cell change, and behind the last item the row becomes
// blank.
void setCell(CacheRow& row, int item, TextView text);

// itemStart from itemWidth.
void computeItemStart();

}  // namespace zelko
