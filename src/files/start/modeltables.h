// The model tables and samples that come with the program.
#pragma once

#include "platform/text/text.h"

namespace zelko {

struct ModelTable {
  int index;  // 1..6 models, 100 and 101 samples
  TextView data, items, storedData, storedItems;
  bool sample() const { return index >= 100; }
};

// Null for an index that is none.
const ModelTable* modelTable(int index);

// When the item file of the model can't be opened, both stored files are copied into place; an interrupted rewrite of
// the table comes first. False, and nothing new is left behind, where that fails or the user does not let it finish.
bool healModelTable(const ModelTable& model);

}  // namespace zelko
