// What an item file says, apart from the tables in use: read whole or not at all, written whole or not at all.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/text/text.h"

namespace zelko {

struct ItemLine {
  Text name;
  Text alignment;  // "L" or "R"; anything else counts as "L"
  std::int16_t width = 0;
};

// One to 255 items.
struct TableDescription {
  std::vector<ItemLine> items;
  Text memo;
  Text reserved = {};  // the field in front of the memo; written, and not read
};

enum class ReadResult {
  ok,
  notATable,  // the first line is not that of an item file, or its item count is out of range
  broken,     // cannot be opened, ends too early, or holds a number that is none for its place
  tooWide,    // the widths sum to more than a record
};

// Reads the item file of that name as file 2, which is closed afterwards. `out` is filled only on success.
ReadResult readDescription(TextView itemFile, TableDescription& out);

// Writes a new work file, as file 2, on the disk. False where a byte did not reach it; what there is of it is deleted
// then.
bool writeDescription(TextView itemFile, const TableDescription& description);

}  // namespace zelko
