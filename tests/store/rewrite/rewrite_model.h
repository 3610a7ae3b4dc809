// A second store without any of the first one's ideas: cells as strings, records as rows of them, and operations on it
// that are also carried out by the program.
#pragma once

#include <string>
#include <vector>

#include "store/rewrite/rewriteplan.h"

namespace zelko::test {

enum class What { insert, erase, move, insertItems, eraseItems, moveItems, width, align };

// Records and items count from 0 here. erase, move: `first`..`last`; `place`: before which one; width: `by`.
struct Operation {
  What what;
  int first = 0, last = 0, place = 0, by = 0;
};

struct Model {
  std::vector<ItemLine> items;
  std::vector<std::vector<std::string>> records;

  std::string bytes() const;
  void apply(const Operation& operation);
  // Whether the operation has a sense here.
  bool allows(const Operation& operation) const;
};

// A table of cells that are easily damaged: double-byte characters, blanks in front and inside, halves of characters.
Model sampleTable(int records, int items);
// Every kind of operation at the first and last places.
std::vector<Operation> edgeOperations(const Model& model);

// What the program is asked to do: the plan, and the new items where they change.
struct Task {
  RewritePlan plan;
  std::vector<ItemLine> items;
  bool itemsChange = false;
};
Task taskOf(const Operation& operation, const std::vector<ItemLine>& items, std::int32_t records);

}  // namespace zelko::test
