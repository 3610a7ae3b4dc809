#include "store/table/cursor.h"

namespace zelko {

std::int32_t curRec = 1;
std::int16_t curItem = 0;
Text mode;

std::int16_t rangeKind = 0;
std::int32_t rangeRec1 = 0, rangeRec2 = 0;
std::int16_t rangeItem1 = 0, rangeItem2 = 0;
std::int32_t moveTo = 0;

std::uint16_t spItem = kNoItem;
bool spItemIsRead = false;

void dropRange() {
  rangeKind = 0;
  rangeRec1 = rangeRec2 = 0;
  rangeItem1 = rangeItem2 = 0;
}

void resetCursor() {
  curRec = 1;
  curItem = 0;
  mode.clear();
  dropRange();
  moveTo = 0;
  spItem = kNoItem;
  spItemIsRead = false;
}

}  // namespace zelko
