#include "voice/cellhooks.h"

namespace zelko {

CellHooks cellHooks;

}  // namespace zelko
