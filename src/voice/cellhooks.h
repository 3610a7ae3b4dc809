// What the keys that every form answers need to know of the open table. The wiring registers it; until then nothing
// is said.
#pragma once

#include <functional>

namespace zelko {

struct CellHooks {
  std::function<void()> talkCell = [] {};      // Alt+N: the current cell
  std::function<void()> talkRange = [] {};     // Alt+M: the current record, or the held stretch of items
  std::function<void()> showItemList = [] {};  // Ctrl+L in a spoken input box: the items of the open table
};
extern CellHooks cellHooks;

}  // namespace zelko
