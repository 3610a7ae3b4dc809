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
  std::int32_t first = 1, last = 0;  // last below first: towards the head
  std::vector<int> items;
  bool backward() const { return last < first; }
};

// A held range: its records (all of them for a range of items) and its items (those of `otherwise` for a range of
// records). Without one `records` and `otherwise` as they are.
CellScope scopeOf(std::int32_t first, std::int32_t last, std::vector<int> otherwise);
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
  std::int64_t cut = 0;   // of these, did not fit their item whole
  bool stopped = false;   // by the user, at a question or between two records
  bool failed = false;    // a record could not be read or written, which was told
};

// Runs it on the open table, whose row is stored. The cursor goes to each cell that is asked about; the caller loads the
// cache behind it.
CellRunResult runOverCells(const CellRun& run);

}  // namespace zelko
