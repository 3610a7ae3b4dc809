// The release of a key at the input box.
#pragma once

#include "platform/forms/keys.h"

namespace zelko {

// The questions and the caret; each branch holds the gate.
void inputKeyUp(KeyEvent& key);

}  // namespace zelko
