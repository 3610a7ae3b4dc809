// What a run of conversions makes of one cell.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// Which of them are wanted; they are done in this order.
struct Conversions {
  bool removeBlanks = false;
  bool lowerCase = false, upperCase = false;
  bool fullWidth = false, halfWidth = false;  // letters, digits and signs
  bool fullKana = false, halfKana = false;
  bool any() const { return removeBlanks || lowerCase || upperCase || fullWidth || halfWidth || fullKana || halfKana; }
};

Text converted(const Conversions& wanted, TextView cell);

}  // namespace zelko
