// The commands and forms of this floor.
#pragma once

namespace zelko {

void registerEditor();

}  // namespace zelko
