// What the store tells the main form. The wiring registers who listens; until then nobody does, and the store works
// without a form.
#pragma once

#include <functional>

namespace zelko {

struct MainFormHooks {
  std::function<void()> showTitle = [] {};                   // the record count may have changed
  std::function<void(bool)> showReadOnlyMark = [](bool) {};  // the mark "ReadOnly!" comes or goes
  std::function<void()> showTable = [] {};                   // other records have come in the place of those shown
};
extern MainFormHooks mainFormHooks;

// The mark says that writes of the open table are refused, and that the user has been told.
bool readOnlyMarkShown();
void showReadOnlyMark(bool shown);

}  // namespace zelko
