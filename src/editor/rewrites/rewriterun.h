// What the rewriting commands share: the run itself with its dialog, and the cursor and the view behind it.
#pragma once

#include <functional>

#include "store/rewrite/rewrite.h"

namespace zelko {

struct RewriteJob {
  TextView text;  // of the progress dialog
  RewritePlan plan;
  const std::vector<ItemLine>* items = nullptr;  // the new items, where they change
  std::function<void()> whenDone = {};           // puts cursor and settings right for the new table; before a reload
  bool canStop = true;
};

// Refuses a read-only table, runs the rewrite, tells a failure and ends in reloadCur. True where the table was changed.
bool runRewrite(const RewriteJob& job);

// Every record in its place.
std::vector<Stretch> allRecords();

}  // namespace zelko
