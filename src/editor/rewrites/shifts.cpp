#include "editor/rewrites/shifts.h"

#include "store/records/records.h"
#include "store/table/cursor.h"
#include "voice/talk.h"

namespace zelko {

namespace {

std::string_view head(std::string_view row, int item) {
  return row.substr(0, static_cast<std::size_t>(itemStart[static_cast<std::size_t>(item)] - 1));
}

}  // namespace

void shiftLeft(int item) {
  const std::string_view row = rowBytes(currentRow());
  std::string moved(head(row, item));
  for (int j = item; j < itemCount; ++j) {
    const auto to = static_cast<std::size_t>(j);
    moved += paddedCell(trimmed(cellOfRow(currentRow(), j + 1)), itemWidth[to], itemLR[to]);
  }
  setRow(currentRow(), moved);
}

void shiftRight(int item) {
  const std::string_view row = rowBytes(currentRow());
  const std::string_view left = head(row, item);
  std::string moved(left);
  moved.append(static_cast<std::size_t>(itemWidth[static_cast<std::size_t>(item)]), ' ');
  moved.append(row.substr(left.size()));
  setRow(currentRow(), moved);
}

}  // namespace zelko
