// Any bytes as a clip file, as a backup, and as a formula.
#pragma once

#include <string_view>

namespace zelko::test {

// End the process where the program breaks its word; the sanitizers see the rest.
void checkClipFile(std::string_view bytes);
void checkBackup(std::string_view bytes);
void checkFormulaText(std::string_view bytes);
// The first byte says which: 'c', 'b', or a formula.
void checkByKind(std::string_view input);

}  // namespace zelko::test
