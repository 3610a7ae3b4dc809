// Going over the cells of the open table, record by record, for one that is looked for: round from a cell to that cell.
#pragma once

#include <cstdint>
#include <functional>

#include "platform/text/text.h"

namespace zelko {

class Matcher;

struct CellAt {
  std::int32_t record = 1;
  std::int16_t item = 0;

  auto operator<=>(const CellAt&) const = default;
};

// Which cells, and in which order.
struct SearchWay {
  bool allItems = true;
  std::int16_t item = 0;  // where not all are searched
  bool towardsHead = false;
};

// The cell behind that one in the table of so many records, round its ends. With one item: the next record's.
CellAt steppedOff(CellAt from, const SearchWay& way, std::int32_t count);

enum class ScanEnd {
  hit,
  cameRound,  // no hit: `at` is the start
  stopped,
  failed,  // a record could not be read; not told
};

struct Scan {
  ScanEnd end = ScanEnd::cameRound;
  CellAt at;  // of a hit, or the start of the round
};

// From that cell to the start of the round, which comes last. `onRecord` is called before each record, with the cell
// that is looked at last where nothing hits; false stops. A dialog of `work` opens where it takes a second; without it
// none.
Scan scanCells(const Matcher& matcher, const SearchWay& way, CellAt from, CellAt start, TextView work,
               const std::function<bool(CellAt)>& onRecord);

struct HitCount {
  std::int64_t all = 0;
  std::int64_t before = 0;  // in front of the cell
  bool isHit = false;       // the cell itself
  bool stopped = false, failed = false;
};

// All cells of the table that hit, and where the given one stands among them.
HitCount countCells(const Matcher& matcher, const SearchWay& way, CellAt cell, TextView work);

}  // namespace zelko
