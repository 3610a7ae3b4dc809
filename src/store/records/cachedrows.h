// What the rows of the cache were when they were read; known to the cache and to the storing of its rows only.
#pragma once

#include "store/table/table.h"

namespace zelko {

struct RowAsRead {
  CacheRow bytes{};
  bool there = false;  // the record was in the file
};

// Null where the cache does not hold the record.
CacheRow* cachedRow(std::int32_t record);
RowAsRead* cachedRowAsRead(std::int32_t record);

}  // namespace zelko
