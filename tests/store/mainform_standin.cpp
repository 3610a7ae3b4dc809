// The main form, as far as the store knows it, until the editor brings its own.
#include "store/mainform.h"

namespace zelko {

namespace {
bool markShown = false;
}

void showTitle() {}
bool readOnlyMarkShown() { return markShown; }
void showReadOnlyMark(bool shown) { markShown = shown; }

}  // namespace zelko
