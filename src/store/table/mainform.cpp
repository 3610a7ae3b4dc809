#include "store/table/mainform.h"

namespace zelko {

MainFormHooks mainFormHooks;

namespace {
bool markShown = false;
}

bool readOnlyMarkShown() { return markShown; }

void showReadOnlyMark(bool shown) {
  markShown = shown;
  mainFormHooks.showReadOnlyMark(shown);
}

}  // namespace zelko
