// The records in the order in which another file lists them.
#pragma once

namespace zelko {

// The command IDSORT: the questions, the work, what came of it.
void sortByOtherFile();

}  // namespace zelko
