#include "store/records/recordshape.h"

#include <algorithm>
#include <cstring>

#include "platform/fault.h"
#include "platform/text/sjis.h"
#include "store/records/records.h"

namespace zelko {

CellPlace::CellPlace(int itemStart, std::int16_t itemWidth, TextView alignment, bool isLast)
    : width(itemWidth), right(alignment == u"R"), last(isLast) {
  const int from = std::clamp(itemStart - 1, 0, int{recLen});
  start = static_cast<std::uint16_t>(from);
  length = static_cast<std::uint16_t>(std::clamp(int{itemWidth}, 0, recLen - from));
}

std::string_view cellBytes(std::string_view record, const CellPlace& cell) {
  const bool holdsLineEnd =
      cell.start + cell.length > kDataBytes && record[kDataBytes] == '\r' && record[kDataBytes + 1] == '\n';
  if (!holdsLineEnd) return record.substr(cell.start, cell.length);
  const std::size_t start = std::min<std::size_t>(cell.start, kDataBytes);
  return record.substr(start, kDataBytes - start);
}

Text cellText(std::string_view record, const CellPlace& cell) {
  const std::string_view bytes = cellBytes(record, cell);
  Text text = fromSjis(bytes);
  text.append(cell.length - bytes.size(), u' ');
  return text;
}

void putCell(char* record, const CellPlace& cell, TextView text) { putCellBytes(record, cell, toSjis(text)); }

void putCellBytes(char* record, const CellPlace& cell, std::string_view bytes) {
  const std::string padded = paddedBytes(bytes, cell.width, cell.right);
  std::copy_n(padded.begin(), cell.length, record + cell.start);
  const int behind = cell.start + cell.length;
  if (cell.last && behind < kDataBytes) std::fill(record + behind, record + kDataBytes, ' ');
}

RecordShape RecordShape::ofOpenTable() {
  RecordShape shape;
  for (std::size_t i = 0; i <= static_cast<std::size_t>(itemCount); ++i)
    shape.cells_.emplace_back(itemStart[i], itemWidth[i], itemLR[i], static_cast<int>(i) == itemCount);
  return shape;
}

RecordShape RecordShape::ofOtherTable() {
  RecordShape shape;
  for (std::size_t i = 0; i <= static_cast<std::size_t>(otherItemCount); ++i)
    shape.cells_.emplace_back(otherItemStart[i], otherItemWidth[i], otherItemLR[i],
                              static_cast<int>(i) == otherItemCount);
  return shape;
}

RecordShape::RecordShape(const TableDescription& table) {
  int start = 1;
  for (std::size_t i = 0; i < table.items.size(); ++i) {
    cells_.emplace_back(start, table.items[i].width, table.items[i].alignment, i + 1 == table.items.size());
    start += table.items[i].width;
  }
}

void keepOthersCells(char* ours, const char* before, const char* onDisk, const RecordShape& shape) {
  int start = 0;
  const auto keepUpTo = [&](int end) {
    if (start >= end) return;
    const auto size = static_cast<std::size_t>(end - start);
    if (std::memcmp(ours + start, before + start, size) == 0) std::memcpy(ours + start, onDisk + start, size);
    start = end;
  };
  for (int item = 0; item <= shape.lastItem(); ++item)
    keepUpTo(std::min<int>(shape.at(item).start + shape.at(item).length, kDataBytes));
  keepUpTo(kDataBytes);
}

const CellPlace& RecordShape::at(int item) const {
  if (item < 0 || item > lastItem()) throw Fault{kSubscript};
  return cells_[static_cast<std::size_t>(item)];
}

}  // namespace zelko
