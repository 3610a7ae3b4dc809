// The five commands that sort, for the menu; and what the two into a file share.
#pragma once

#include <vector>

#include "tablejobs/sort/sortrange.h"

namespace zelko {

void registerSorting();

// From the name of the output on: the records in order go into it, and the user is asked `question`, where to work
// then. False where the output was refused, told: its dialog stays.
bool runSortOutput(const Text& fullName, const std::vector<SortKey>& keys, TextView question);
// The dialog of the output goes, nothing was sorted.
void leaveSortOutput();

}  // namespace zelko
