#include "editor/ranges/datamove.h"

#include <string>
#include <vector>

#include "platform/host.h"
#include "store/records/records.h"
#include "store/table/cursor.h"

namespace zelko {

namespace {

constexpr int kDataFile = 1;

bool store(std::int32_t record, CacheRow& row) {
  row[kDataBytes] = '\r';
  row[kDataBytes + 1] = '\n';
  return putRec(kDataFile, record, {row.data(), row.size()});
}

// The file grows before anything is put, record by record: a full disk is met while nothing is lost.
bool growTo(std::int32_t last) {
  CacheRow blank;
  setRow(blank, blankRec);
  for (std::int32_t record = recCount() + 1; record <= last; ++record) {
    if (!store(record, blank)) return false;
    host().letEventsThrough();
  }
  return true;
}

std::vector<Text> cellsOf(const CacheRow& row, const RangeBlock& block) {
  std::vector<Text> cells;
  for (int item = block.item1; item <= block.item2; ++item) cells.push_back(trimmed(cellOfRow(row, item)));
  return cells;
}

void blankCells(CacheRow& row, const RangeBlock& block) {
  for (int item = block.item1; item <= block.item2; ++item) setCell(row, item, u"");
}

void putCells(CacheRow& row, int toItem, const std::vector<Text>& cells) {
  for (const Text& cell : cells) {
    if (toItem > itemCount) return;
    setCell(row, toItem++, cell);
  }
}

bool copyRecord(const RangeBlock& block, std::int32_t from, std::int32_t to, std::int16_t toItem, bool moves) {
  CacheRow source, target;
  if (!getRec(kDataFile, from, source)) return false;
  const std::vector<Text> cells = cellsOf(source, block);
  if (from == to) {
    if (moves) blankCells(source, block);
    putCells(source, toItem, cells);
    return store(from, source);
  }
  if (!getRec(kDataFile, to, target)) return false;
  putCells(target, toItem, cells);
  if (!store(to, target)) return false;
  if (!moves) return true;
  blankCells(source, block);
  return store(from, source);
}

}  // namespace

bool copyBlock(const RangeBlock& block, std::int32_t toRec, std::int16_t toItem, bool moves) {
  const std::int32_t count = block.rec2 - block.rec1 + 1;
  if (!growTo(toRec + count - 1)) return false;
  // Towards the end from the last record on, as a record that is still to be read must not be written.
  const bool backwards = toRec > block.rec1;
  for (std::int32_t step = 0; step < count; ++step) {
    const std::int32_t at = backwards ? count - 1 - step : step;
    if (!copyRecord(block, block.rec1 + at, toRec + at, toItem, moves)) return false;
    host().letEventsThrough();
  }
  return true;
}

}  // namespace zelko
