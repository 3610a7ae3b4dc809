// Replacement through a code file: a table whose first item holds keys and another what stands for each.
#pragma once

namespace zelko {

// mnuDICT: asks for the file and its item, whether case counts, and writes the range, or the current item of all
// records, anew.
void codeReplace();

void registerCodeReplace();

}  // namespace zelko
