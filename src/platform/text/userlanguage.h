// The language in which a command line answers.
#pragma once

namespace zelko {

// Whether the environment asks for Japanese: the first of LC_ALL, LC_MESSAGES and LANG that is set decides.
bool userReadsJapanese();

}  // namespace zelko
