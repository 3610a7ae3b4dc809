// What a rewrite makes of the records and cells of a table: plain data, and the procedures that apply it to bytes.
#pragma once

#include <cstdint>
#include <vector>

#include "store/table/description.h"

namespace zelko {

// Records of the old table in their order, or blank ones.
struct Stretch {
  std::int32_t first = 0;  // 0: blank records
  std::int32_t count = 0;
  bool operator==(const Stretch&) const = default;
};

enum class Justify { keep, left, right };  // keep: the bytes from the left, whatever stands there

// Where the bytes of a cell come from and where they go; places count from 0.
struct CellMove {
  int from = 0, fromWidth = 0;
  int to = 0, toWidth = 0;
  Justify justify = Justify::keep;
  bool operator==(const CellMove&) const = default;
};

struct RewritePlan {
  std::vector<Stretch> stretches;
  std::vector<CellMove> cells;
  // True: a record is the old one with the cells laid over it. False: it is blank where no cell goes.
  bool overOld = true;
};

// The order of records for the three rewrites, for a table of `count` records. Numbers count from 1 and lie inside the
// table; a place one behind the last record is the end.
std::vector<Stretch> stretchesWithInserted(std::int32_t count, std::int32_t before, std::int32_t inserted);
std::vector<Stretch> stretchesWithDeleted(std::int32_t count, std::int32_t first, std::int32_t last);
std::vector<Stretch> stretchesWithMoved(std::int32_t count, std::int32_t first, std::int32_t last, std::int32_t before);

// A new shape of the items: for each new item the number of the old one, -1 for one that was not there.
using ItemOrder = std::vector<int>;
ItemOrder orderWithInserted(int items, int before, int inserted);
ItemOrder orderWithDeleted(int items, int first, int last);
ItemOrder orderWithMoved(int items, int first, int last, int before);

// The items in their new order; one that was not there is one byte wide, left-justified and named by its number.
std::vector<ItemLine> itemsInOrder(const std::vector<ItemLine>& old, const ItemOrder& order);
// How the cells get from the old items to the new ones. A cell that changes its width keeps its left end, or, where its
// item is right-justified, is right-justified anew. Nothing is taken from or put behind the 254 bytes of a record.
std::vector<CellMove> cellMoves(const std::vector<ItemLine>& old, const std::vector<ItemLine>& items,
                                const ItemOrder& order);

// The cell of an item, to be laid over the old record: justified anew by its other alignment.
CellMove realigned(const std::vector<ItemLine>& items, int item, TextView alignment);

// Lays the cells of `old` (256 bytes, 254 of them are looked at) into `out`, which is blank or the old record already.
// Behind a cell that got wider and is not justified stands `newByte`.
void layCells(const std::vector<CellMove>& cells, const char* old, char* out, char newByte = ' ');

}  // namespace zelko
