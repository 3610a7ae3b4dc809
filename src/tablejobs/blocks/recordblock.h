// The held range of records, put behind the records of another table.
#pragma once

namespace zelko {

// mnuBROCK and its output.
void registerRecordBlock();

}  // namespace zelko
