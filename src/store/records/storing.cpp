// Storing the current row: only what was changed, and never over another program's change without a question.
#include <algorithm>

#include "platform/files/blockfiles.h"
#include "store/records/cachedrows.h"
#include "store/records/records.h"
#include "store/records/recordshape.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"
#include "store/table/mainform.h"
#include "store/table/sharing.h"

namespace zelko {

namespace {

constexpr int kDataFile = 1;

bool heldBack = false;

// Past the read window, which may be a moment old.
RowAsRead onDisk(std::int32_t record) {
  RowAsRead now;
  std::size_t got = 0;
  const std::int64_t place = (std::int64_t{record} - 1) * recLen;
  const FileError error = readBlock(kDataFile, place, now.bytes.data(), recLen, got);
  now.unread = error != FileError::none;
  now.there = !now.unread && got == recLen;
  if (!now.there) setRow(now.bytes, blankRec);
  return now;
}

bool isSame(const RowAsRead& one, const RowAsRead& other) {
  return one.there == other.there && (!one.there || rowBytes(one.bytes) == rowBytes(other.bytes));
}

// Records that another program took away behind the end come back blank: no hole is left in front of this one.
bool closeGap() {
  CacheRow blank;
  setRow(blank, blankRec);
  for (std::int32_t record = recCount() + 1; record < curRec; ++record)
    if (!putRec(kDataFile, record, {blank.data(), blank.size()})) return false;
  return true;
}

bool store(CacheRow& row, RowAsRead& read, const RowAsRead& now) {
  CacheRow record = row;
  if (read.there && now.there)
    keepOthersCells(record.data(), read.bytes.data(), now.bytes.data(), RecordShape::ofOpenTable());
  setRow(record, rowBytes(record));
  if (!closeGap() || !putRec(kDataFile, curRec, {record.data(), record.size()})) return false;
  row = record;
  read = {record, true, false};
  return true;
}

bool takeTheirs(bool replaced) {
  if (replaced && !openAgain()) return false;
  curRec = std::min(curRec, recCount() + 1);
  loadCache(curRec);
  mainFormHooks.showTitle();
  return true;
}

}  // namespace

bool storeWasHeldBack() { return heldBack; }

bool flushRec() {
  heldBack = false;
  CacheRow* row = cachedRow(curRec);
  if (row == nullptr) return true;
  RowAsRead& read = *cachedRowAsRead(curRec);
  const std::string_view bytes = rowBytes(*row);
  if (!read.there && (bytes == slashRec || bytes == blankRec)) return true;
  if (read.there && bytes == rowBytes(read.bytes)) {
    *row = read.bytes;  // also where text was typed over its line end
    return true;
  }

  const bool replaced = openFileWasReplaced();
  RowAsRead now = onDisk(curRec);
  if (!replaced && now.unread) {
    tellUnstored(curRec, *row);
    return false;
  }
  if (replaced || (!read.unread && !isSame(read, now))) {
    const Choice choice = askWhoseRecord(curRec, replaced);
    heldBack = choice == Choice::neither;
    if (heldBack) return false;
    if (choice == Choice::theirs) return takeTheirs(replaced);
    if (replaced) closeFile(kDataFile);
    if (replaced && !reopenData()) return putRec(kDataFile, curRec, bytes);  // which tells why
    now = onDisk(curRec);
  }
  if (read.unread && !now.there) return takeTheirs(false);  // of ours there is no whole record
  const bool stored = store(*row, read, now);
  if (curRec >= recCount()) mainFormHooks.showTitle();
  return stored;
}

}  // namespace zelko
