// The held range as the commands on it use it.
#pragma once

#include <cstdint>

#include "platform/forms/control.h"
#include "platform/text/text.h"

namespace zelko {

// A block of cells, smaller number first.
struct RangeBlock {
  std::int32_t rec1 = 0, rec2 = 0;
  std::int16_t item1 = 0, item2 = 0;
};

// The range with its corners in order; the variables themselves stay as the user made them.
RangeBlock heldBlock();
// Puts the corners of the range variables in order.
void orderRange();

// "記録2から4の範囲の記録" or "2記録"; the same for items; both joined for a rectangle.
Text recordsWords(const RangeBlock& block);
Text itemsWords(const RangeBlock& block);
Text rectangleWords(const RangeBlock& block);

// The colours of the block that is held and of the one it would land on, by the kind of the range.
Colour rangeColour();
Colour targetColour();

// Forms and menu entries of ranges.
void registerRanges();

}  // namespace zelko
