// Replacement through a code file: a table whose first item holds keys and another what stands for each.
#pragma once

#include <cstdint>

#include "files/picker/filenumber.h"
#include "tablejobs/replace/cellrun.h"
#include "tablejobs/replace/codetable.h"

namespace zelko {

enum class CodesRead { whole, empty, stopped, failed };

// Adds the records of the chosen file, whose description stands in the second set.
CodesRead readCodes(const FileItem& chosen, CodeTable& codes);

struct CodesReplaced {
  CellRunResult run;
  std::int64_t unknown = 0;  // cells whose text is no key
};
// Writes the range, or the current item of all records, anew; the caller ends the run.
CodesReplaced replaceByCodes(const CodeTable& codes);

// mnuDICT: asks for the file and its item, whether case counts, and writes the range, or the current item of all
// records, anew.
void codeReplace();

void registerCodeReplace();

}  // namespace zelko
