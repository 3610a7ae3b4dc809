// Names of files, folders and tables as they are joined, shown and said.
#pragma once

#include <vector>

#include "platform/forms/control.h"

namespace zelko {

// A file name as it is said: what is no character of any text is replaced.
Text spokenName(TextView name);
// An item file without its leading letter is the name of its table.
Text tableOfItemFile(TextView itemFile);
// "/" stands once between them.
Text pathIn(TextView folder, TextView name);

// The box that has the focus, named behind a report; empty for everything else.
TextView boxWord(const Control* focused);

// After a change of folder: the folder, the first of the names (already as they are said), the box with the focus.
Text folderReport(TextView folder, const std::vector<Text>& names, TextView box);
inline constexpr std::size_t kNamesInReport = 3;

extern const TextView kNoFileHere;  // for a list without an entry

}  // namespace zelko
