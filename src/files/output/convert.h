// A text file made into a table.
#pragma once

namespace zelko {

// mnuCZLK, the picker's "CVZLKF", and its job in the output dialog.
void registerConversion();

}  // namespace zelko
