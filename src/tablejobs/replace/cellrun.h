// A run over cells that changes some of them: the cells in their order, asked one by one or changed at once.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/text/text.h"

namespace zelko {

// Which cells, in which order: the items of each record as they stand here.
struct CellScope {
  std::int32_t first = 1, last = 0;  // backward: from `last` to `first`
  std::vector<int> items;
  bool backward = false;
};

// A held range: its records (all of them for a range of items), from its end where `backward`, and its items (`items`
// for a range of records). Without one what is given.
CellScope scopeOf(std::int32_t first, std::int32_t last, std::vector<int> items, bool backward = false);
// Items 0 to the last, and the one of the cursor.
std::vector<int> allItems();
std::vector<int> currentItemOnly();

struct CellRun {
  TextView work;   // of the progress dialog
  TextView title;  // of the questions
  CellScope scope;
  // What the bytes of a cell, without the blanks that fill it up, become before they are fitted to its width; nothing
  // for a cell that stays.
  std::function<std::optional<std::string>(std::string_view cell)> change;
  // The question for a cell with its place, its text and what it becomes; empty: nothing is asked.
  std::function<Text(std::int32_t record, int item, const Text& old, const Text& becomes)> question = {};
};

struct CellRunResult {
  std::int64_t changed = 0;
  std::int64_t cut = 0;  // of these, did not fit their item whole
  bool stopped = false;  // by the user, at a question or between two records
  bool failed = false;   // a record could not be read or written, which was told
};

// Runs it on the open table, whose row is stored. The cursor goes to each cell that is asked about; the caller loads
// the cache behind it.
CellRunResult runOverCells(const CellRun& run);
// Behind it: the range is dropped, cache, title and view are those of the table as it is now, in silence. A failure is
// told; false then.
bool endCellRun(const CellRunResult& result);
// What was cut, said behind the closing dialog of a run; nothing where all of it fitted.
void sayWhatWasCut(const CellRunResult& result);

}  // namespace zelko
