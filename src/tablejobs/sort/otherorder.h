// The order of one table's records by the keys that another one lists: plain records and keys, without files.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "platform/text/text.h"

namespace zelko {

// One record on the way: its number, its key as it is compared (trimmed, its case taken away where that does not
// count), and whether the whole record is blank. False stops the way.
using KeyVisit = std::function<bool(std::int32_t record, const Text& key, bool blank)>;
// Goes over records `first` to `last` in their order; false where a visit stopped it or a record can't be read.
using KeyWalk = std::function<bool(std::int32_t first, std::int32_t last, const KeyVisit& visit)>;

struct OtherOrderJob {
  std::int32_t orderCount = 0;  // records of the table that gives the order
  KeyWalk orderKeys;
  std::int32_t first = 1, last = 0;  // the range to be put in order
  KeyWalk rangeKeys;
  std::function<Text(std::int32_t record)> keyOf;  // of one record of the range, read again
};

struct OtherOrder {
  // What stands in the range afterwards: numbers of its records, 0 for a blank one.
  std::vector<std::uint32_t> records;
  std::int32_t found = 0, notFound = 0, kept = 0;  // listed and there; listed and not there; not listed
};

// For each key of the order, blank ones skipped, the first record of the range with that key that is not taken yet,
// else a blank record; behind them the records that are left, but for blank ones. nullopt where a walk ended early. The
// time is linear in both counts; a million records of the range take 12 MB, more of them go through in stretches.
std::optional<OtherOrder> orderAsListed(const OtherOrderJob& job);

}  // namespace zelko
