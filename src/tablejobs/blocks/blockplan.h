// What block extraction makes: which records and items, in which order, as plain data.
#pragma once

#include <optional>
#include <vector>

#include "platform/text/daytime.h"
#include "store/rewrite/rewriteplan.h"

namespace zelko {

struct BlockPlan {
  RewritePlan records;           // the new records out of the old ones
  TableDescription description;  // of the new table
  std::size_t leftOut = 0;       // items at the end of the list for which a record has no byte left
};

// The items in the order of the list, the cells joined without anything between them and cut at 254 bytes: an item
// that reaches beyond keeps the bytes in front of it as its width, those behind have none and are left out, so that the
// new table can be opened. `recordText` and `itemText` are checked; empty means all. nullopt where the item list yields
// nothing, or more than the 255 items of a table.
std::optional<BlockPlan> planBlocks(const TableDescription& table, std::int32_t records, TextView recordText,
                                    TextView itemText);

// The memo of the new table: its source, the items as far as 200 characters have room for them, the time.
Text memoOfBlocks(TextView source, const std::vector<std::int32_t>& items, const DateTime& now);

}  // namespace zelko
