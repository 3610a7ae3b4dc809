// What is asked before a sort by one key, in place or into a file: the same questions.
#pragma once

#include <optional>

#include "parts/job/job.h"
#include "tablejobs/sort/sortrange.h"

namespace zelko {

struct RecordSpan {
  std::int32_t first = 1, last = 0;
  std::int32_t count() const { return last - first + 1; }
};

// The held range of records, in order, or the whole table.
RecordSpan recordsToSort();
// OK to the sort of the whole table or of the range.
bool confirmSort();
// The key item and its direction; a cancel of the direction leads back to the item. nullopt for no item.
std::optional<SortKey> askSortKey(TextView directionQuestion);

// What came of a sort, for the ear.
Text sortedWords(JobEnd end, std::int32_t records);

// For the end of a command that did nothing: the range goes, and the cell is said.
void leaveSort();

}  // namespace zelko
