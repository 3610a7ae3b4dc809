// The records of the open table put in the order in which another file lists them: the files' side of it.
#pragma once

#include "parts/job/job.h"
#include "tablejobs/sort/otherorder.h"
#include "tablejobs/sort/sortquestions.h"

namespace zelko {

struct OtherFileOrder {
  int orderFile = 0;  // open for random access, its table in the second description
  int orderItem = 0;  // whose cells are the keys, in that file
  int item = 0;       // whose cells are compared with them
  RecordSpan span;    // of the open table
  bool caseCounts = true;
};

// How many steps the progress of it has.
std::int64_t stepsOfOrder(const OtherFileOrder& order);
// The table takes its new order, and its new length, in one swap; until then, at a stop and after a failure it is as it
// was. `counts` has no records afterwards.
JobEnd sortAsListed(const OtherFileOrder& order, Progress& progress, OtherOrder& counts);

}  // namespace zelko
