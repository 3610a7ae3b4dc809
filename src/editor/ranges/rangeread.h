// What a range says of itself, while it is being chosen and when it is finished.
#pragma once

namespace zelko {

// The state of the range that is being chosen: 0 where it stands, 1 and 5 the cell, 2 its data by record, 3 how it is
// chosen, 4 the record or the held items of it.
void RangeYOMi(int number);
// The data of a finished range, record by record; of a large one the first 51000 bytes.
void rangeReadAloud();

}  // namespace zelko
