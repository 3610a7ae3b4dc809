// The cache of records around the cursor.
#include <algorithm>
#include <set>
#include <utility>

#include "platform/fault.h"
#include "store/records/cachedrows.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/notice.h"

namespace zelko {

namespace {

constexpr int kDataFile = 1;

std::array<RowAsRead, kCacheRows> asRead;
std::set<std::int32_t> toldUnread;  // each record that can't be read is told once, until it can be
bool unreadToTell = false;

// 0 where the cache does not hold the record.
std::size_t rowIndex(std::int32_t record) {
  const std::int64_t at = std::int64_t{record} - cacheBase;
  return at >= 0 && at < cacheSize ? static_cast<std::size_t>(at) + 2 : 0;
}

void setUnread(std::size_t index, std::int32_t record) {
  setRow(recCache[index], slashRec);
  asRead[index].unread = true;
  unreadToTell = toldUnread.insert(record).second || unreadToTell;
}

void tellUnread() {
  if (std::exchange(unreadToTell, false)) tellReadError();
}

void fillRow(std::size_t index, std::int64_t record, std::int32_t count, const std::string& outside) {
  RowAsRead& read = asRead[index];
  read.there = record <= count;
  read.unread = false;
  if (!read.there)
    setRow(recCache[index], outside);
  else if (getRec(kDataFile, static_cast<std::int32_t>(record), recCache[index]))
    toldUnread.erase(static_cast<std::int32_t>(record));
  else
    setUnread(index, static_cast<std::int32_t>(record));
  read.bytes = recCache[index];
}

void fillRows(const std::string& outside) {
  const std::int32_t count = recCount();
  for (std::size_t i = 0; i < static_cast<std::size_t>(cacheSize); ++i)
    fillRow(i + 2, cacheBase + static_cast<std::int64_t>(i), count, outside);
  tellUnread();
}

}  // namespace

CacheRow* cachedRow(std::int32_t record) {
  const std::size_t index = rowIndex(record);
  return index == 0 ? nullptr : &recCache[index];
}

RowAsRead* cachedRowAsRead(std::int32_t record) {
  const std::size_t index = rowIndex(record);
  return index == 0 ? nullptr : &asRead[index];
}

CacheRow& currentRow() {
  CacheRow* row = cachedRow(curRec);
  if (row == nullptr) throw Fault{kSubscript};
  return *row;
}

CacheRow rowOf(std::int32_t record) {
  if (const CacheRow* row = cachedRow(record)) return *row;
  CacheRow row;
  getRec(kDataFile, record, row);
  return row;
}

void loadCache(std::int32_t record) {
  forgetToldFailure();
  cacheBase = std::max(1, record - cacheSize / 2 + 1);
  fillRows(blankRec);
}

void fillCache() {
  toldUnread.clear();
  fillRows(slashRec);
  if (recCount() == 0) setRow(recCache[2], blankRec);
}

void cacheScrollUp() {
  if (curRec == 1 || cacheBase == 1) return;
  --cacheBase;
  const auto behindLast = [](auto& rows) { return rows.begin() + 2 + cacheSize; };
  std::copy_backward(recCache.begin() + 2, behindLast(recCache) - 1, behindLast(recCache));
  std::copy_backward(asRead.begin() + 2, behindLast(asRead) - 1, behindLast(asRead));
  fillRow(2, cacheBase, recCount(), blankRec);
  tellUnread();
}

void takeRow(std::int32_t record) { recCache[1] = rowOf(record); }

Text cellOfCur(int item) { return cellOfRow(recCache[1], item); }

Text cellAt(std::int32_t record, int item) {
  getRec(kDataFile, record, recCache[0]);
  return cellOfRow(recCache[0], item);
}

}  // namespace zelko
