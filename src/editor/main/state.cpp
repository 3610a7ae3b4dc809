#include "editor/main/state.h"

namespace zelko {

std::int16_t viewKind = 0;
std::int16_t allItemsOn = 1;
std::array<std::int16_t, kMaxItems> entryItem{};
std::int16_t inputLimit = 0;
std::int16_t limitAside = 0;
std::int16_t autoIdOn = 0;
float autoIdValue = 0;
Text idText;
std::int16_t moveFlag = 0;
std::int32_t charTwips = 120, boxCharTwips = 136;
Text lastCleared;
Text lastInput;
int lastInputLen = 0;
std::int16_t inputDrop = 0;
bool caretGuard = false;
double sumMark = 0;
std::int16_t listCaller = 0;

void resetEditor() {
  viewKind = 0;
  allItemsOn = 1;
  entryItem.fill(0);
  inputLimit = limitAside = 0;
  autoIdOn = 0;
  autoIdValue = 0;
  idText.clear();
  moveFlag = 0;
  charTwips = 120;
  boxCharTwips = 136;
  lastCleared.clear();
  lastInput.clear();
  lastInputLen = 0;
  inputDrop = 0;
  caretGuard = false;
  sumMark = 0;
  listCaller = 0;
}

}  // namespace zelko
