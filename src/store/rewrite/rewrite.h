// The engine of all rewrites: a table's records in a new order or shape, through work files beside it.
#pragma once

#include <cstdint>
#include <functional>

#include "store/rewrite/rewriteplan.h"

namespace zelko {

enum class RewriteEnd {
  done,
  stopped,  // by the user; the table is as it was
  failed,   // a file could not be made, written or put in its place; nothing told
  refused,  // told: an interrupted rewrite stands in the way, or another program replaced the table meanwhile, which
            // is as it was
};

// Asked on the way with the number of records that are done; false stops the work. Asked at each of the first
// thousands of records and at the last, and so often in between that a stop is answered at once.
using KeepGoing = std::function<bool(std::int64_t done)>;

// Records of the old table, the first counted from 0, into `out`; false where they can't be read.
using ReadRecords = std::function<bool(std::int64_t first, std::size_t count, char* out)>;
// Takes the records of the new table, block by block; false where they can't be written.
using WriteRecords = std::function<bool(std::string_view records)>;

// Makes the new records, each 254 bytes and CR LF, a block at a time.
RewriteEnd rewriteRecords(const RewritePlan& plan, const ReadRecords& read, const WriteRecords& write,
                          const KeepGoing& keepGoing);

// How many records the new table has.
std::int64_t recordsOf(const RewritePlan& plan);

// The items of the open table, with the widths that its records have on disk.
std::vector<ItemLine> itemsOnDisk();

// Rewrites the open table: WORK.QQQ, as file 2 and where the data file really lies, and where `items` is given
// KWORK.QQQ from the second description; when both are on the disk they take the place of the old files, and the item
// file is read again. File 1 is open afterwards. Where it fails or is stopped the table, its description included, is
// as it was and the work files are gone; only where a finished file could not take its place is the rest of the swap
// left for the next opening (see recovery.h).
RewriteEnd rewriteTable(const RewritePlan& plan, const std::vector<ItemLine>* items, const KeepGoing& keepGoing);
// The same for that many records as `read` gives them, 256 bytes each, with the items as they are.
RewriteEnd rewriteTable(std::int32_t records, const ReadRecords& read, const KeepGoing& keepGoing);

}  // namespace zelko
