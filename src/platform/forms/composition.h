// What an input method shows before it commits a text.
#pragma once

#include <functional>

#include "platform/text/text.h"

namespace zelko {

// Empty when there is none, or none any more. The stretch that is being chosen is highlighted: `length` characters
// from `start`; none is while the reading is still typed.
struct Composition {
  Text text;
  int start = 0, length = 0;
};

// Called by both hosts whenever the composition in the active control changes or ends; a commit ends it before the
// control gets its text.
void compositionChanged(const Composition& composition);

// Serves those calls in place of the one before; until there is one, nothing happens.
void onComposition(std::function<void(const Composition&)> serve);

}  // namespace zelko
