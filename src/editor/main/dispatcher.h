// The keys of the input box: what a key does when it goes down.
#pragma once

#include "platform/forms/keys.h"

namespace zelko {

// In the order in which a key is looked at: choosing a range, a finished range, Ctrl+F, sums, dropping a range, Esc,
// moves. A key that was used is swallowed.
void inputKeyDown(KeyEvent& key);

}  // namespace zelko
