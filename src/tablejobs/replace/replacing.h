// The replacement of a text within one cell, on its bytes: what is not replaced keeps the codes that it had.
#pragma once

#include <string>
#include <string_view>

#include "platform/text/text.h"

namespace zelko {

struct ReplaceRule {
  Text search, with;
  bool equal = false;       // the whole cell must be the search text, else it is enough that it holds it
  bool caseCounts = false;  // else capitals and small letters are the same
  bool wholeCell = false;   // the whole cell becomes the replacement, else the matching part only

  // Whether there is nothing to do anywhere: both texts are the same, as far as case counts.
  bool changesNothing() const;
};

// Whether a trimmed cell is one to replace. An empty search text is held by every cell, but only a whole cell can be
// replaced by it.
bool isHit(const ReplaceRule& rule, TextView cell);

// The Shift-JIS bytes of a hit cell with the replacement in them, not yet fitted to a width. Every place is replaced,
// from the left, none within what was put there.
std::string replaceCell(const ReplaceRule& rule, std::string_view cell);

}  // namespace zelko
