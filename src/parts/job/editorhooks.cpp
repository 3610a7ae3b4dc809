#include "parts/job/editorhooks.h"

namespace zelko {

EditorHooks editorHooks;

}  // namespace zelko
