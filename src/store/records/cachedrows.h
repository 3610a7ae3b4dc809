// What the rows of the cache were when they were read; known to the cache and to the storing of its rows only.
#pragma once

#include "store/table/table.h"

namespace zelko {

struct RowAsRead {
  CacheRow bytes{};
  bool there = false;   // the record was in the file
  bool unread = false;  // it is there, but could not be read: the row is slashed
};

// Null where the cache does not hold the record.
CacheRow* cachedRow(std::int32_t record);
RowAsRead* cachedRowAsRead(std::int32_t record);

// A changed row could not be stored because its record can't be read: told as a failed write is, once.
void tellUnstored(std::int32_t record, const CacheRow& row);

}  // namespace zelko
