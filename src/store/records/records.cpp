#include "store/records/records.h"

#include <algorithm>
#include <limits>

#include "platform/fault.h"
#include "platform/files/files.h"
#include "store/table/cursor.h"
#include "store/table/mainform.h"
#include "store/table/notice.h"

namespace zelko {

namespace {

constexpr int kDataFile = 1;

// The last failed write that was told, so that a move that flushes twice tells it once.
struct ToldFailure {
  int file = 0;  // 0: none
  std::int32_t record = 0;
  CacheRow bytes{};
};
ToldFailure told;

void tellRefusedWrite(FileError error, int file, std::int32_t record, const CacheRow& bytes) {
  if (error == FileError::pathAccess) {
    if (readOnlyMarkShown()) return;
    showReadOnlyMark(true);
    tellReadOnly();
    return;
  }
  if (told.file == file && told.record == record && told.bytes == bytes) return;
  told = {file, record, bytes};
  tellWriteError();
}

// The index of the record's row in the cache; 0 where it isn't there.
std::size_t rowIndex(std::int32_t record) {
  const std::int64_t row = std::int64_t{record} - cacheBase + 2;
  return row >= 2 && row < kCacheRows ? static_cast<std::size_t>(row) : 0;
}

}  // namespace

void forgetToldFailure() { told.file = 0; }

std::int32_t recCountOf(int file) {
  const std::int64_t records = fileLength(file) / recLen;
  // The new line behind the last record has a number too.
  constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max() - 1;
  return static_cast<std::int32_t>(std::min(records, kMost));
}

std::int32_t recCount() { return recCountOf(kDataFile); }

bool getRec(int file, std::int32_t record, CacheRow& out) {
  if (record >= 1 && getRecord(file, record, out.data()) == FileError::none) {
    // Behind the end of the file everything reads as NUL, so only then is a look at its length needed.
    if (out.back() != '\0' || record <= recCountOf(file)) return true;
  }
  setRow(out, blankRec);
  return false;
}

bool putRec(int file, std::int32_t record, std::string_view bytes) {
  CacheRow buffer{};
  std::copy_n(bytes.begin(), std::min(bytes.size(), buffer.size()), buffer.begin());
  const FileError error = putRecord(file, record, buffer.data());
  if (error != FileError::none) {
    tellRefusedWrite(error, file, record, buffer);
    return false;
  }
  if (told.file == file && told.record == record) forgetToldFailure();
  return true;
}

CacheRow& currentRow() {
  const std::size_t row = rowIndex(curRec);
  if (row == 0) throw Fault{kSubscript};
  return recCache[row];
}

std::string_view rowBytes(const CacheRow& row) { return {row.data(), kDataBytes}; }

void setRow(CacheRow& row, std::string_view bytes) {
  const std::size_t length = std::min<std::size_t>(bytes.size(), kDataBytes);
  const auto rest = std::copy_n(bytes.begin(), length, row.begin());
  std::fill(rest, row.end() - 2, ' ');
  row[kDataBytes] = '\r';
  row[kDataBytes + 1] = '\n';
}

bool flushRec() {
  CacheRow& row = currentRow();
  const std::string_view bytes = rowBytes(row);
  if (curRec > recCount() && (bytes == slashRec || bytes == blankRec)) return true;
  // A last cell that reaches over the line end gives those bytes back.
  row[kDataBytes] = '\r';
  row[kDataBytes + 1] = '\n';
  const bool stored = putRec(kDataFile, curRec, {row.data(), row.size()});
  if (curRec >= recCount()) mainFormHooks.showTitle();
  return stored;
}

void loadCache(std::int32_t record) {
  forgetToldFailure();
  cacheBase = std::max(1, record - cacheSize / 2 + 1);
  const std::int32_t count = recCount();
  for (int i = 0; i < cacheSize; ++i) {
    CacheRow& row = recCache[static_cast<std::size_t>(i + 2)];
    const std::int64_t number = std::int64_t{cacheBase} + i;
    if (number > count)
      setRow(row, blankRec);
    else
      getRec(kDataFile, static_cast<std::int32_t>(number), row);
  }
}

void cacheScrollUp() {
  if (curRec == 1 || cacheBase == 1) return;
  --cacheBase;
  const auto first = recCache.begin() + 2;
  std::copy_backward(first, first + cacheSize - 1, first + cacheSize);
  getRec(kDataFile, cacheBase, *first);
}

void takeRow(std::int32_t record) {
  const std::size_t row = rowIndex(record);
  if (row >= 2 && row < static_cast<std::size_t>(cacheSize) + 2)
    recCache[1] = recCache[row];
  else
    getRec(kDataFile, record, recCache[1]);
}

Text cellAt(std::int32_t record, int item) {
  getRec(kDataFile, record, recCache[0]);
  return cellOfRow(recCache[0], item);
}

}  // namespace zelko
