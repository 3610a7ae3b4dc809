// What the serial classes raise: the class it comes from, and what was wrong.
#pragma once

#include "platform/text/text.h"

namespace zelko {

struct SerialError {
  Text source, message;
};

}  // namespace zelko
