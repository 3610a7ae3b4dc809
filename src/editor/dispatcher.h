// What a key does in the input box: key down acts, key up speaks.
#pragma once

#include "platform/keys.h"

namespace zelko {

void inputKeyDown(KeyEvent& key);
void inputKeyUp(KeyEvent& key);

}  // namespace zelko
