#include "store/rewrite/rewriteplan.h"

#include <algorithm>
#include <cstring>
#include <numeric>

#include "platform/text/number.h"
#include "store/table/table.h"

namespace zelko {
namespace {

void add(std::vector<Stretch>& stretches, Stretch stretch) {
  if (stretch.count > 0) stretches.push_back(stretch);
}

struct Cell {
  int start = 0, width = 0;
};

// Cells by their bytes, cut at the end of the data bytes.
std::vector<Cell> cellsOf(const std::vector<ItemLine>& items) {
  std::vector<Cell> cells;
  int start = 0;
  for (const ItemLine& item : items) {
    const int from = std::min(start, kDataBytes);
    start += std::max<int>(item.width, 0);
    cells.push_back({from, std::min(start, kDataBytes) - from});
  }
  return cells;
}

// Two cells that lie side by side before and behind are one piece.
void append(std::vector<CellMove>& moves, const CellMove& move) {
  if (move.toWidth == 0) return;
  const auto isPiece = [](const CellMove& cell) {
    return cell.justify == Justify::keep && cell.fromWidth == cell.toWidth;
  };
  if (!moves.empty() && isPiece(moves.back()) && isPiece(move)) {
    CellMove& last = moves.back();
    if (last.from + last.fromWidth == move.from && last.to + last.toWidth == move.to) {
      last.fromWidth += move.fromWidth;
      last.toWidth += move.toWidth;
      return;
    }
  }
  moves.push_back(move);
}

void layJustified(const CellMove& cell, const char* old, char* out) {
  const char* first = old + cell.from;
  const char* last = first + cell.fromWidth;
  while (first < last && *first == ' ') ++first;
  while (last > first && last[-1] == ' ') --last;
  const auto width = static_cast<std::size_t>(cell.toWidth);
  const std::size_t length = std::min(static_cast<std::size_t>(last - first), width);
  const bool right = cell.justify == Justify::right;
  std::memset(out + cell.to, ' ', width);
  std::memcpy(out + cell.to + (right ? width - length : 0), right ? last - length : first, length);
}

}  // namespace

std::vector<Stretch> stretchesWithInserted(std::int32_t count, std::int32_t before, std::int32_t inserted) {
  std::vector<Stretch> stretches;
  add(stretches, {1, before - 1});
  add(stretches, {0, inserted});
  add(stretches, {before, count - before + 1});
  return stretches;
}

std::vector<Stretch> stretchesWithDeleted(std::int32_t count, std::int32_t first, std::int32_t last) {
  std::vector<Stretch> stretches;
  add(stretches, {1, first - 1});
  add(stretches, {last + 1, count - last});
  return stretches;
}

std::vector<Stretch> stretchesWithMoved(std::int32_t count, std::int32_t first, std::int32_t last,
                                        std::int32_t before) {
  const std::int32_t start = std::min(first, before);
  const std::int32_t end = std::max(last + 1, before);
  std::vector<Stretch> stretches;
  add(stretches, {1, start - 1});
  if (before > last) add(stretches, {last + 1, before - last - 1});
  add(stretches, {first, last - first + 1});
  if (before < first) add(stretches, {before, first - before});
  add(stretches, {end, count - end + 1});
  return stretches;
}

ItemOrder orderWithInserted(int items, int before, int inserted) {
  ItemOrder order(static_cast<std::size_t>(items));
  std::iota(order.begin(), order.end(), 0);
  order.insert(order.begin() + before, static_cast<std::size_t>(inserted), -1);
  return order;
}

ItemOrder orderWithDeleted(int items, int first, int last) {
  ItemOrder order = orderWithInserted(items, 0, 0);
  order.erase(order.begin() + first, order.begin() + last + 1);
  return order;
}

ItemOrder orderWithMoved(int items, int first, int last, int before) {
  ItemOrder order = orderWithInserted(items, 0, 0);
  const auto block = order.begin() + first, behind = order.begin() + last + 1, place = order.begin() + before;
  if (before < first)
    std::rotate(place, block, behind);
  else
    std::rotate(block, behind, place);
  return order;
}

std::vector<ItemLine> itemsInOrder(const std::vector<ItemLine>& old, const ItemOrder& order) {
  std::vector<ItemLine> items;
  for (const int source : order) {
    if (source >= 0)
      items.push_back(old[static_cast<std::size_t>(source)]);
    else
      items.push_back({u"項目" + decimal(static_cast<std::int64_t>(items.size())), u"L", 1});
  }
  return items;
}

std::vector<CellMove> cellMoves(const std::vector<ItemLine>& old, const std::vector<ItemLine>& items,
                                const ItemOrder& order) {
  const std::vector<Cell> before = cellsOf(old), after = cellsOf(items);
  std::vector<CellMove> moves;
  for (std::size_t i = 0; i < order.size(); ++i) {
    if (order[i] < 0) continue;
    const auto source = static_cast<std::size_t>(order[i]);
    const Cell from = before[source], to = after[i];
    const bool anew = from.width != to.width && items[i].alignment == u"R";
    append(moves, {from.start, from.width, to.start, to.width, anew ? Justify::right : Justify::keep});
  }
  return moves;
}

CellMove realigned(const std::vector<ItemLine>& items, int item, TextView alignment) {
  const Cell cell = cellsOf(items)[static_cast<std::size_t>(item)];
  return {cell.start, cell.width, cell.start, cell.width, alignment == u"R" ? Justify::right : Justify::left};
}

void layCells(const std::vector<CellMove>& cells, const char* old, char* out, char newByte) {
  for (const CellMove& cell : cells) {
    if (cell.justify != Justify::keep) {
      layJustified(cell, old, out);
      continue;
    }
    const auto kept = static_cast<std::size_t>(std::min(cell.fromWidth, cell.toWidth));
    std::memcpy(out + cell.to, old + cell.from, kept);
    if (cell.toWidth > cell.fromWidth)
      std::memset(out + cell.to + cell.fromWidth, newByte, static_cast<std::size_t>(cell.toWidth - cell.fromWidth));
  }
}

}  // namespace zelko
